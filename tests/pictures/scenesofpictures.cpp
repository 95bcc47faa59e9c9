// SPDX-License-Identifier: MIT
#include "scenes.h"
#include "sheet.h"
#include "testsupport.h"

#include <CorvelGui/BusyIndicator>
#include <CorvelGui/ImageHelper>
#include <CorvelGui/PFractionalProgressBar>
#include <CorvelGui/PImageAndLabelWidget>
#include <CorvelGui/PImageWidget>
#include <CorvelGui/TextCursor>
#include <CorvelGui/ZoomGraphicsView>
#include <Hueloft/PIconHelper>

#include <QGraphicsScene>
#include <QPageLayout>

using namespace CorvelGui;
using namespace std::chrono_literals;

namespace {

/// Wider than high, with something else in each corner.
QImage photo()
{
    QImage photo(96, 54, QImage::Format_RGB32);
    photo.fill(QColor(60, 90, 130));
    QPainter painter(&photo);
    painter.fillRect(0, 0, 30, 20, QColor(220, 190, 60));
    painter.fillRect(66, 0, 30, 20, QColor(190, 70, 60));
    painter.fillRect(0, 34, 30, 20, QColor(70, 160, 90));
    painter.fillRect(40, 20, 16, 14, Qt::white);
    return photo;
}

struct Overlay : BusyIndicator
{
    using BusyIndicator::BusyIndicator;

    /// By hand, while the timer stands still.
    void step(int steps)
    {
        findChild<QTimer*>()->stop();
        for (int i = 0; i < steps; ++i)
            onTimeOut();
    }
};

} // namespace

void Scenes::images(Sheet& sheet)
{
    using Fit = PImageWidget::Fit;
    const auto image = [&sheet](const QString& name, const auto&... acts) {
        auto* widget = new PImageWidget;
        widget->setAutoFillBackground(true);
        widget->setBackgroundRole(QPalette::Base);
        sheet.show(name, widget, {84, 64}, acts...);
    };
    const std::tuple<const char*, Fit, Qt::Alignment> fits[] = {
        {"contain", Fit::Contain, Qt::AlignCenter}, {"bottom", Fit::Contain, Qt::AlignBottom},
        {"shrink", Fit::Shrink, Qt::AlignCenter},   {"shrink, left", Fit::Shrink, Qt::AlignLeft},
        {"cover", Fit::Cover, Qt::AlignCenter},     {"cover, right", Fit::Cover, Qt::AlignRight},
        {"stretch", Fit::Stretch, Qt::AlignCenter}};
    for (const auto& [name, fit, alignment] : fits) {
        image(QString::fromLatin1(name), [fit = fit, alignment = alignment](PImageWidget& widget) {
            widget.setFit(fit);
            widget.setAlignment(alignment);
            widget.setImage(fit == Fit::Shrink ? photo().copy(0, 0, 40, 30) : photo());
        });
    }
    image(u"shrunk, mirrored"_s, mirror, [](PImageWidget& widget) {
        widget.setFit(Fit::Shrink);
        widget.setAlignment(Qt::AlignLeft | Qt::AlignTop);
        widget.setImage(photo().copy(0, 0, 40, 90));
    });
    image(u"empty"_s);
    image(u"failed"_s, [](PImageWidget& widget) {
        widget.setSource(QUrl(u"qrc:/CorvelGui/common/none.png"_s));
        QTRY_COMPARE(widget.state(), PImageWidget::State::Failed);
    });
    image(u"placeholder"_s, [](PImageWidget& widget) {
        widget.setPlaceholder(u":/CorvelGui/common/binoculars.png"_s);
    });
    image(u"resource"_s, [](PImageWidget& widget) {
        widget.setSource(QUrl(u"qrc:/CorvelGui/common/open.png"_s));
        QTRY_COMPARE(widget.state(), PImageWidget::State::Ready);
    });
    image(u"disabled"_s, disable, [](PImageWidget& widget) { widget.setImage(photo()); });

    for (const Qt::Orientation orientation : {Qt::Vertical, Qt::Horizontal}) {
        for (const QString& text : {u"Main gate"_s, u"Yard behind the workshop, camera 10"_s}) {
            auto* labelled = new PImageAndLabelWidget;
            labelled->setText(text);
            labelled->setOrientation(orientation);
            labelled->imageWidget()->setImage(photo());
            if (orientation == Qt::Horizontal)
                labelled->imageWidget()->setFixedWidth(60);
            sheet.show(u"labelled"_s, labelled,
                       orientation == Qt::Vertical ? QSize(100, 90) : QSize(150, 50));
        }
    }
    const QImage lock = Hueloft::PIconHelper::GetLockImage_32x32();
    for (const QImage& prepared :
         {ImageHelper::rounded(photo(), 12), ImageHelper::rounded(photo()),
          ImageHelper::tinted(lock, QColor(60, 144, 224)),
          ImageHelper::scaled(photo(), {40, 40}, 1),
          ImageHelper::withOverlay(photo(), lock, Qt::AlignRight | Qt::AlignBottom),
          ImageHelper::withOverlay(photo(), lock)})
        sheet.paint(u"prepared"_s, prepared.size(),
                    [&](QPainter& painter) { painter.drawImage(0, 0, prepared); });

    QGraphicsScene scene(0, 0, 300, 200);
    scene.setBackgroundBrush(QColor(60, 70, 80));
    scene.addRect(40, 30, 120, 80, QPen(Qt::white, 4), QColor(30, 60, 120));
    for (const QVariant& rect : {QVariant(), QVariant(QRectF(30, 20, 80, 80))}) {
        auto* view = new ZoomGraphicsView(&scene, rect);
        view->setFrameShape(rect.isNull() ? QFrame::NoFrame : QFrame::Box);
        sheet.show(u"zoomed"_s, view, {130, 100});
    }
    sheet.show(u"zoomed, focus"_s, new ZoomGraphicsView(&scene, {}), {130, 100}, focus,
               [](ZoomGraphicsView& view) { QTest::keyClick(&view, Qt::Key_Plus); });
}

void Scenes::progress(Sheet& sheet)
{
    const auto busy = [&sheet](const QString& name, int steps, double scale = 1,
                               std::chrono::milliseconds delay = 0ms, const auto&... acts) {
        auto* panel = new QWidget;
        (new QVBoxLayout(panel))->addWidget(new QLabel(u"Gate camera, north"_s));
        sheet.showAt(scale, name, panel, {110, 110}, [&](QWidget& shown) {
            auto* overlay = new Overlay(&shown);
            overlay->setDelay(delay);
            overlay->show();
            overlay->step(steps);
            (acts(*overlay), ...);
        });
    };
    for (const int steps : {0, 3, 7, 25, 41})
        busy(u"busy, step %1"_s.arg(steps), steps);
    busy(u"within its delay"_s, 5, 1, 1h);
    busy(u"at scale 2"_s, 10, 2);
    const auto setPicture = [](Overlay& overlay) {
        overlay.setBackgroundImage(QPixmap::fromImage(photo()));
    };
    busy(u"on a picture"_s, 5, 1, 0ms, setPicture);
    busy(u"off a picture"_s, 5, 1, 0ms, setPicture, [](Overlay& overlay) {
        overlay.step(1);
        overlay.setBackgroundImage({});
        overlay.step(1);
    });
    const std::tuple<int, int> bars[] = {{3, 0}, {3, 1}, {2000, 1234}, {3, 3}};
    for (const auto& [maximum, value] : bars) {
        auto* bar = new PFractionalProgressBar;
        bar->setRange(0, maximum);
        bar->setValue(value);
        sheet.show(u"fractions"_s, bar, {110, 0});
    }
}

void Scenes::report(Sheet& sheet)
{
    TextCursor report;
    report.setPageLayout(QPageLayout(QPageSize(QPageSize::A6), QPageLayout::Portrait,
                                     QMarginsF(10, 10, 10, 10), QPageLayout::Millimeter));
    report.setTitle(u"Events of the night"_s);
    report.setDate(u"2026-03-02"_s);
    report.setLogo(photo());
    report.insertTitle(u"Events of the night"_s, u"Two gates, four cameras"_s);
    report.insertKeyValues({{u"Begin"_s, u"2 March 2026, 00:00"_s}, {u"Zone"_s, u"UTC"_s}});
    report.insertHeading(u"All of them"_s);
    report.insertParagraph(u"Pictures show the camera at the time of the event."_s);
    report.insertHeading(u"One by one"_s, 2);
    report.insertTable(
        {.header = {u"Picture"_s, u"Camera"_s, u"What happened"_s},
         .widths = {2, 1.2, 3},
         .rows = 4,
         .row = [](qsizetype row) {
             return QList<TextCursor::Cell>{
                 {.picture = row == 1 ? QImage() : photo()},
                 {.text = u"Gate %1"_s.arg(row)},
                 {.text = u"Somebody came in, looked about for a while and went away"_s}};
         }});
    report.insertPicture(photo(), u"The gate"_s);
    report.insertPicture(photo().scaled(800, 1600), u"The gate, higher than the page"_s);
    for (int page = 0; page < report.pageCount(); ++page) {
        const QImage image = report.pageImage(page, 75);
        sheet.paint(u"page %1"_s.arg(page), image.size(),
                    [&](QPainter& painter) { painter.drawImage(0, 0, image); });
    }
}
