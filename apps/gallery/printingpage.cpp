// SPDX-License-Identifier: MIT
#include "printingpage.h"

#include <CorvelGui/TextCursor>

#include <QElapsedTimer>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLinearGradient>
#include <QLocale>
#include <QPainter>
#include <QProgressDialog>
#include <QPushButton>
#include <QSpinBox>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr int shownPages = 3;

/// Something to see, another for each number.
QImage scenePicture(qsizetype number, const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient sky(0, 0, 0, size.height());
    sky.setColorAt(0, QColor::fromHsv(int(number * 37 % 360), 120, 220));
    sky.setColorAt(1, QColor::fromHsv(int(number * 37 % 360), 60, 90));
    painter.fillRect(image.rect(), sky);
    painter.setBrush(Qt::white);
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(
        QPointF(size.width() * (0.2 + 0.06 * double(number % 10)), size.height() * 0.4),
        size.height() / 8.0, size.height() / 8.0);
    return image;
}

QImage exampleLogo()
{
    QImage logo(480, 120, QImage::Format_ARGB32_Premultiplied);
    logo.fill(Qt::transparent);
    QPainter painter(&logo);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(30, 90, 160));
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(QRectF(0, 10, 100, 100), 20, 20);
    QFont font;
    font.setPixelSize(72);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(QColor(30, 90, 160));
    painter.drawText(QRect(120, 0, 360, 120), Qt::AlignVCenter, u"Corvel"_s);
    return logo;
}

TextCursor::Table exampleTable(int rows)
{
    return {.header = {u"Picture"_s, u"Time"_s, u"Camera"_s, u"What happened"_s},
            .widths = {2, 1.6, 1.2, 3},
            .rows = rows,
            .row = [](qsizetype row) {
                TextCursor::Cell picture;
                if (row < 40)
                    picture.picture = scenePicture(row, {320, 180});
                return QList<TextCursor::Cell>{
                    picture,
                    {.text = u"2026-03-02 %1:%2"_s.arg(row / 60 % 24, 2, 10, QChar(u'0'))
                                 .arg(row % 60, 2, 10, QChar(u'0'))},
                    {.text = u"Gate %1"_s.arg(row % 4 + 1)},
                    {.text = row % 7 == 0 ? u"Somebody came in, looked about for a while and went "
                                            "away again"_s
                                          : u"Movement"_s}};
            }};
}

} // namespace

PrintingPage::PrintingPage(QWidget* parent)
    : QWidget(parent), m_report(new TextCursor(this)), m_facts(new QLabel)
{
    auto* rows = new QSpinBox;
    rows->setRange(1, 100'000);
    rows->setValue(60);
    rows->setPrefix(tr("Rows: "));
    auto* make = new QPushButton(tr("&Make the report"));
    auto* preview = new QPushButton(tr("Pre&view and print…"));
    auto* save = new QPushButton(tr("&Save as PDF…"));
    auto* bar = new QHBoxLayout;
    for (QWidget* widget : QList<QWidget*>{rows, make, preview, save, m_facts})
        bar->addWidget(widget);
    bar->addStretch();
    auto* pages = new QHBoxLayout;
    for (int page = 0; page < shownPages; ++page) {
        m_pages.append(new QLabel);
        m_pages.last()->setAccessibleName(tr("Page %1").arg(page + 1));
        pages->addWidget(m_pages.last());
    }
    pages->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(bar);
    layout->addLayout(pages);
    layout->addStretch();
    connect(make, &QPushButton::clicked, this, [this, rows] { showReport(rows->value()); });
    connect(preview, &QPushButton::clicked, this, [this] { m_report->preview(this); });
    connect(save, &QPushButton::clicked, this, &PrintingPage::savePdf);
    showReport(rows->value());
}

void PrintingPage::showReport(int rows)
{
    constexpr int pixelsPerInch = 46;
    QProgressDialog progress(tr("Making the report…"), tr("Cancel"), 0, rows, this);
    progress.setWindowModality(Qt::WindowModal);
    connect(m_report, &TextCursor::progressed, &progress, &QProgressDialog::setValue);
    connect(&progress, &QProgressDialog::canceled, m_report, &TextCursor::cancel);
    QElapsedTimer timer;
    timer.start();
    m_report->clear();
    m_report->setLogo(exampleLogo());
    m_report->insertTitle(u"Events of the night"_s, u"Two gates, four cameras"_s);
    m_report->insertKeyValues({{u"Begin"_s, u"2 March 2026, 00:00"_s},
                               {u"End"_s, u"2 March 2026, 23:59"_s},
                               {u"Time zone"_s, u"Europe/Brussels"_s}});
    m_report->insertHeading(u"All of them"_s);
    m_report->insertParagraph(u"Pictures show the camera at the time of the event."_s);
    m_report->insertTable(exampleTable(rows));
    const int count = m_report->pageCount();
    const QLocale locale;
    m_facts->setText(
        tr("Pages: %1, laid out in %2 s")
            .arg(locale.toString(count), locale.toString(double(timer.elapsed()) / 1000, 'f', 1)));
    for (int page = 0; page < shownPages; ++page) {
        QImage image = m_report->pageImage(page, qRound(pixelsPerInch * devicePixelRatioF()));
        image.setDevicePixelRatio(devicePixelRatioF());
        m_pages[page]->setPixmap(QPixmap::fromImage(image));
    }
}

void PrintingPage::savePdf()
{
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Save report"), u"report.pdf"_s, tr("PDF (*.pdf)"));
    if (path.isEmpty())
        return;
    QElapsedTimer timer;
    timer.start();
    m_facts->setText(
        m_report->savePdf(path) == TextCursor::Outcome::Complete
            ? tr("Saved in %1 s").arg(QLocale().toString(double(timer.elapsed()) / 1000, 'f', 1))
            : m_report->errorText());
}

} // namespace Gallery
