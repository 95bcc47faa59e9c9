// SPDX-License-Identifier: MIT
#include "textcursor.h"

#include "base/wholefile.h"
#include "printpreview.h"
#include "reportdocument.h"
#include "reportpages.h"
#include "reportrows.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>
#include <QPointer>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QTextTable>

#include <cmath>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr qreal pageMargin = 15; // mm
constexpr qreal logoWidth = 60;
constexpr qreal logoHeight = 18;
constexpr qreal keyPadding = 0.5;
constexpr qreal paragraphGap = 2;
constexpr qreal titlePoints = 20;
constexpr qreal headingPoints[] = {14, 11.5, 9.5};

using Dots = ReportDocument;

QPageLayout defaultPages()
{
    // The countries with inches take Letter.
    const bool inches = QLocale().measurementSystem() == QLocale::ImperialUSSystem;
    const QMarginsF margins(pageMargin, pageMargin, pageMargin, pageMargin);
    return {QPageSize(inches ? QPageSize::Letter : QPageSize::A4), QPageLayout::Portrait, margins,
            QPageLayout::Millimeter};
}

QTextCharFormat charFormat(qreal points, bool isBold)
{
    QTextCharFormat format;
    format.setProperty(QTextFormat::FontPixelSize, Dots::dotsOfPoints(points));
    format.setFontWeight(isBold ? QFont::Bold : QFont::Normal);
    return format;
}

QTextCharFormat boldFormat()
{
    QTextCharFormat format;
    format.setFontWeight(QFont::Bold);
    return format;
}

QTextBlockFormat blockFormat(qreal gapBefore, qreal gapAfter)
{
    QTextBlockFormat format;
    format.setTopMargin(Dots::dotsOfMillimetres(gapBefore));
    format.setBottomMargin(Dots::dotsOfMillimetres(gapAfter));
    return format;
}

/// The parts of the columns in the width, 1 together.
QList<double> columnShares(const QList<double>& widths, qsizetype columns)
{
    constexpr double widest = 1e6;
    QList<double> shares = widths;
    shares.resize(columns);
    double sum = 0;
    for (double& share : shares) {
        share = std::isfinite(share) && share > 0 ? std::min(share, widest) : 1;
        sum += share;
    }
    for (double& share : shares)
        share /= sum;
    return shares;
}

QTextTableFormat plainTableFormat(const QList<double>& shares)
{
    QList<QTextLength> widths;
    for (const double share : shares)
        widths.append(QTextLength(QTextLength::PercentageLength, 100 * share));
    QTextTableFormat format;
    format.setBorder(0);
    format.setCellSpacing(0);
    format.setCellPadding(0);
    format.setBottomMargin(Dots::dotsOfMillimetres(paragraphGap));
    format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    format.setColumnWidthConstraints(widths);
    return format;
}

} // namespace

struct TextCursor::Private
{
    QString title{};
    QString date = QLocale().toString(QDateTime::currentDateTime(), QLocale::ShortFormat);
    QImage logo{u":/Resources/logo.png"_s};
    QPageLayout pages = defaultPages();
    QString error{};
    std::unique_ptr<ReportDocument> document{};
    ReportRows* rows = nullptr; ///< the document owns it
    QTextCursor cursor{};
    /// Whether the document waits with its layout for the end of a change.
    bool isChanging = false;
    /// Whether what comes next begins a page.
    bool breaksPage = false;
    bool isCancelled = false;
    bool isWorking = false;
    QElapsedTimer sinceProgress{};

    QSizeF room() const { return ReportPages::textSize(pages); }
    /// Where text goes on; the layout waits until it is needed.
    QTextCursor& change()
    {
        if (!std::exchange(isChanging, true))
            cursor.beginEditBlock();
        return cursor;
    }
    void layOut()
    {
        const bool isChanged = std::exchange(isChanging, false);
        if (isChanged)
            cursor.endEditBlock();
        if (!isChanged && document->pageSize() == room())
            return;
        document->setPageSize(room());
        rows->place();
    }
    /// A paragraph of its own at the end. What a table leaves behind it is used.
    QTextCursor& beginBlock(QTextBlockFormat format, const QTextCharFormat& text = {})
    {
        QTextCursor& at = change();
        if (std::exchange(breaksPage, false))
            format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        if (at.block().length() > 1)
            at.insertBlock();
        at.setBlockFormat(format);
        at.setBlockCharFormat(text);
        at.setCharFormat(text);
        return at;
    }
    QTextTable* beginTable(qsizetype lines, qsizetype columns, QTextTableFormat format)
    {
        if (std::exchange(breaksPage, false))
            format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        return beginBlock({}).insertTable(int(lines), int(columns), format);
    }
    void clear()
    {
        // The block after a report that never ends needs no end of its change.
        cursor = {};
        document = std::make_unique<ReportDocument>();
        document->setPageSize(room());
        rows = new ReportRows(document.get());
        cursor = QTextCursor(document.get());
        isChanging = false;
        breaksPage = false;
    }
};

TextCursor::TextCursor(QObject* parent) : QObject(parent), d(std::make_shared<Private>())
{
    d->clear();
}

TextCursor::~TextCursor() = default;

QString TextCursor::title() const
{
    return d->title;
}

void TextCursor::setTitle(const QString& title)
{
    if (d->title == title)
        return;
    d->title = title;
    Q_EMIT titleChanged(title);
}

QString TextCursor::date() const
{
    return d->date;
}

void TextCursor::setDate(const QString& date)
{
    if (d->date == date)
        return;
    d->date = date;
    Q_EMIT dateChanged(date);
}

QImage TextCursor::logo() const
{
    return d->logo;
}

void TextCursor::setLogo(const QImage& logo)
{
    if (d->logo == logo)
        return;
    d->logo = logo;
    Q_EMIT logoChanged();
}

QPageLayout TextCursor::pageLayout() const
{
    return d->pages;
}

void TextCursor::setPageLayout(const QPageLayout& layout)
{
    if (!layout.isValid() || d->pages == layout)
        return;
    d->pages = layout;
    Q_EMIT pageLayoutChanged();
}

void TextCursor::insertTitle(const QString& title, const QString& subtitle)
{
    const QList<double> shares = d->logo.isNull() ? columnShares({}, 1) : columnShares({2, 1}, 2);
    QTextTable* head = d->beginTable(1, shares.size(), plainTableFormat(shares));
    QTextCursor text = head->cellAt(0, 0).firstCursorPosition();
    text.insertText(title, charFormat(titlePoints, true));
    if (!subtitle.isEmpty()) {
        text.insertBlock(blockFormat(1, 0), QTextCharFormat());
        text.insertText(subtitle, QTextCharFormat());
    }
    if (!d->logo.isNull()) {
        QTextCursor picture = head->cellAt(0, 1).firstCursorPosition();
        QTextBlockFormat right;
        right.setAlignment(Qt::AlignRight);
        picture.setBlockFormat(right);
        const qreal side = std::min(Dots::dotsOfMillimetres(logoWidth), d->room().width() / 3);
        picture.insertImage(
            d->document->addPicture(d->logo, {side, Dots::dotsOfMillimetres(logoHeight)}));
    }
    d->cursor.movePosition(QTextCursor::End);
    setTitle(title);
}

void TextCursor::insertHeading(const QString& text, int level)
{
    const qreal points = headingPoints[std::clamp(level, 1, 3) - 1];
    QTextBlockFormat format = blockFormat(points / 3, 1.5);
    format.setHeadingLevel(level);
    d->beginBlock(format, charFormat(points, true)).insertText(text);
}

void TextCursor::insertParagraph(const QString& text)
{
    d->beginBlock(blockFormat(paragraphGap / 2, paragraphGap)).insertText(text);
}

void TextCursor::insertKeyValues(const QList<std::pair<QString, QString>>& pairs)
{
    if (pairs.isEmpty())
        return;
    QTextTableFormat format = plainTableFormat(columnShares({1, 3}, 2));
    format.setCellPadding(Dots::dotsOfMillimetres(keyPadding));
    QTextTable* table = d->beginTable(pairs.size(), 2, format);
    for (int row = 0; row < pairs.size(); ++row) {
        table->cellAt(row, 0).firstCursorPosition().insertText(pairs[row].first, boldFormat());
        table->cellAt(row, 1).firstCursorPosition().insertText(pairs[row].second);
    }
    d->cursor.movePosition(QTextCursor::End);
}

TextCursor::Outcome TextCursor::insertTable(const Table& table)
{
    const qsizetype columns = table.header.size();
    if (columns == 0 || d->isWorking)
        return Outcome::Complete;
    const std::shared_ptr<Private> kept = d;
    ReportRows& rows = *kept->rows;
    rows.beginTable(kept->beginBlock({}), table.header, columnShares(table.widths, columns));
    const Outcome outcome = work(int(table.rows), [&](int number) {
        QList<ReportRows::Cell> cells;
        for (const Cell& cell : table.row ? table.row(number) : QList<Cell>()) {
            ReportRows::Cell own{.text = cell.text};
            if (!cell.picture.isNull() && cells.size() < columns) {
                const QTextImageFormat picture =
                    kept->document->addPicture(cell.picture, rows.pictureRoom(cells.size()));
                own.picture = picture.name();
                own.pictureSize = {picture.width(), picture.height()};
            }
            cells.append(own);
        }
        rows.add(kept->cursor, cells);
        return true;
    });
    if (outcome != Outcome::Complete)
        kept->clear();
    return outcome;
}

void TextCursor::insertPicture(const QImage& picture, const QString& caption)
{
    if (picture.isNull())
        return;
    QTextBlockFormat format = blockFormat(0, caption.isEmpty() ? paragraphGap : 0);
    QSizeF room = d->room();
    const qreal captionHeight = caption.isEmpty() ? 0 : Dots::dotsOfMillimetres(8);
    room.rheight() -= captionHeight + Dots::dotsOfMillimetres(paragraphGap);
    d->beginBlock(format).insertImage(d->document->addPicture(picture, room));
    if (!caption.isEmpty())
        d->beginBlock(blockFormat(0.5, paragraphGap), charFormat(8, false)).insertText(caption);
}

void TextCursor::insertPageBreak()
{
    d->breaksPage = true;
}

void TextCursor::clear()
{
    d->clear();
}

bool TextCursor::isEmpty() const
{
    return d->document->isEmpty();
}

QTextDocument* TextCursor::document() const
{
    return d->document.get();
}

int TextCursor::pageCount()
{
    d->layOut();
    return d->document->pageCount();
}

TextCursor::Outcome TextCursor::print(QPrinter& printer)
{
    if (d->isWorking)
        return Outcome::Cancelled;
    const std::shared_ptr<Private> kept = d;
    const QPageLayout own = std::exchange(kept->pages, printer.pageLayout());
    const int count = pageCount();
    const bool isPart = printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0;
    const int first = isPart ? printer.fromPage() - 1 : 0;
    const int end =
        isPart ? std::min(std::max(printer.toPage(), printer.fromPage()), count) : count;
    const Outcome outcome =
        paintPages(printer, first, end, printer.pageOrder() == QPrinter::LastPageFirst);
    if (outcome != Outcome::Complete)
        printer.abort();
    kept->pages = own;
    return outcome;
}

TextCursor::Outcome TextCursor::savePdf(const QString& path)
{
    if (d->isWorking)
        return Outcome::Cancelled;
    const std::shared_ptr<Private> kept = d;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setPageLayout(kept->pages);
        writer.setTitle(kept->title);
        writer.setCreator(QCoreApplication::applicationName());
        const Outcome outcome = paintPages(writer, 0, pageCount(), false);
        if (outcome != Outcome::Complete)
            return outcome;
    }
    kept->error = writeWholeFile(path, bytes);
    return kept->error.isEmpty() ? Outcome::Complete : Outcome::Failed;
}

TextCursor::Outcome TextCursor::paintPages(QPagedPaintDevice& device, int first, int end,
                                           bool isReversed)
{
    const std::shared_ptr<Private> kept = d;
    kept->error.clear();
    const ReportPages pages(*kept->document, kept->title, kept->date);
    QPainter painter;
    if (!painter.begin(&device)) {
        kept->error = tr("The printer does not accept the report.");
        return Outcome::Failed;
    }
    const qreal scale = qreal(device.logicalDpiX()) / Dots::dotsPerInch;
    const Outcome outcome = work(end - first, [&](int index) {
        if (index > 0 && !device.newPage())
            return false;
        painter.save();
        painter.scale(scale, scale);
        pages.paint(painter, isReversed ? end - 1 - index : first + index);
        painter.restore();
        return true;
    });
    if (outcome == Outcome::Failed)
        kept->error = tr("The printer does not accept all pages.");
    return outcome;
}

/// Does the steps from 0 on, and says how far it is. The report may be gone when this returns.
TextCursor::Outcome TextCursor::work(int total, const std::function<bool(int)>& step)
{
    constexpr qint64 progressInterval = 50; // ms
    const std::shared_ptr<Private> kept = d;
    const QPointer<TextCursor> alive(this);
    const auto goesOn = [&](int done) {
        kept->sinceProgress.start();
        Q_EMIT progressed(done, total);
        return alive && !kept->isCancelled;
    };
    kept->isCancelled = false;
    kept->isWorking = true;
    Outcome outcome = goesOn(0) ? Outcome::Complete : Outcome::Cancelled;
    for (int done = 0; done < total && outcome == Outcome::Complete; ++done) {
        const bool tells = done + 1 == total || kept->sinceProgress.hasExpired(progressInterval);
        if (!step(done))
            outcome = Outcome::Failed;
        else if (tells && !goesOn(done + 1))
            outcome = Outcome::Cancelled;
    }
    kept->isWorking = false;
    return outcome;
}

QImage TextCursor::pageImage(int page, int pixelsPerInch)
{
    if (page < 0 || page >= pageCount() || pixelsPerInch <= 0)
        return {};
    QImage image(d->pages.fullRectPixels(pixelsPerInch).size(), QImage::Format_RGB32);
    if (image.isNull())
        return {};
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.translate(d->pages.paintRectPixels(pixelsPerInch).topLeft());
    painter.scale(qreal(pixelsPerInch) / Dots::dotsPerInch,
                  qreal(pixelsPerInch) / Dots::dotsPerInch);
    ReportPages(*d->document, d->title, d->date).paint(painter, page);
    return image;
}

void TextCursor::preview(QWidget* parent)
{
    constexpr QSize windowSize(900, 760);
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageLayout(d->pages);
    printer.setDocName(d->title);
    const QPointer dialog = new QPrintPreviewDialog(&printer, parent);
    dialog->resize(windowSize);
    adaptPrintPreview(*dialog);
    connect(dialog, &QPrintPreviewDialog::paintRequested, this,
            [this](QPrinter* wanted) { print(*wanted); });
    dialog->exec();
    delete dialog;
}

QString TextCursor::errorText() const
{
    return d->error;
}

void TextCursor::cancel()
{
    d->isCancelled = d->isWorking;
}

} // namespace CorvelGui
