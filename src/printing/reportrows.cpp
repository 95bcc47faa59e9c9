// SPDX-License-Identifier: MIT
#include "reportrows.h"

#include "reportdocument.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextBlock>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr int rowObject = QTextFormat::UserObject + 1;
constexpr int rowNumber = QTextFormat::UserProperty + 1;
constexpr qreal cellPadding = 1; // mm
constexpr qsizetype longestCell = 10'000;
constexpr QRgb headerGround = qRgb(0xd8, 0xdc, 0xe0);
constexpr QRgb evenRowGround = qRgb(0xf3, 0xf4, 0xf5);

qreal padding()
{
    return ReportDocument::dotsOfMillimetres(cellPadding);
}

/// As high as its lines, of which none begins below @p mostHeight.
qreal layOutText(QTextLayout& layout, qreal width, qreal mostHeight)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    qreal height = 0;
    while (height < mostHeight) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(width);
        line.setPosition({0, height});
        height += line.height();
    }
    layout.endLayout();
    return height;
}

QString cellText(const QString& text)
{
    QString shown = text.size() > longestCell ? text.left(longestCell) + u'…' : text;
    return shown.replace(u'\n', QChar::LineSeparator);
}

} // namespace

ReportRows::ReportRows(ReportDocument* document) : QObject(document), m_document(document)
{
    document->documentLayout()->registerHandler(rowObject, this);
}

void ReportRows::beginTable(const QTextCursor& cursor, const QStringList& header,
                            const QList<double>& shares)
{
    measure();
    Table table{.begin = cursor,
                .header = {},
                .shares = shares,
                .first = int(m_rows.size()),
                .end = int(m_rows.size())};
    table.begin.setKeepPositionOnInsert(true);
    for (const QString& text : header)
        table.header.append({.text = cellText(text)});
    table.headerHeight = heightOf(table, table.header, true);
    m_tables.append(table);
}

QSizeF ReportRows::pictureRoom(qsizetype column) const
{
    return {cellWidth(m_tables.last(), column), m_page.height() / 2};
}

void ReportRows::add(QTextCursor& cursor, const QList<Cell>& cells)
{
    Table& table = m_tables.last();
    Row row{.table = int(m_tables.size()) - 1,
            .cells = cells.first(std::min(cells.size(), table.header.size()))};
    for (Cell& cell : row.cells)
        cell.text = cellText(cell.text);
    row.height = heightOf(table, row.cells, false);
    row.hasHeader = table.first == table.end;
    if (!row.hasHeader)
        cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
    QTextCharFormat format;
    format.setObjectType(rowObject);
    format.setProperty(rowNumber, int(m_rows.size()));
    m_rows.append(row);
    table.end = int(m_rows.size());
    cursor.insertText(QString(QChar::ObjectReplacementCharacter), format);
}

void ReportRows::measure()
{
    if (m_page == m_document->pageSize())
        return;
    m_page = m_document->pageSize();
    for (Table& table : m_tables) {
        table.heights.clear();
        table.headerHeight = heightOf(table, table.header, true);
        for (int row = table.first; row < table.end; ++row)
            m_rows[row].height = heightOf(table, m_rows[row].cells, false);
    }
}

void ReportRows::place()
{
    measure();
    m_document->markContentsDirty(0, m_document->characterCount());
    for (const Table& table : std::as_const(m_tables)) {
        const QAbstractTextDocumentLayout* layout = m_document->documentLayout();
        qreal y = layout->blockBoundingRect(table.begin.block()).top();
        qreal pageEnd = (std::floor(y / m_page.height()) + 1) * m_page.height();
        for (int number = table.first; number < table.end; ++number) {
            Row& row = m_rows[number];
            row.hasHeader = number == table.first;
            if (y + fullHeight(row) > pageEnd) {
                y = pageEnd;
                pageEnd += m_page.height();
                row.hasHeader = true;
            }
            y += fullHeight(row);
        }
        m_document->markContentsDirty(table.begin.position(), m_document->characterCount());
    }
}

int ReportRows::fullHeight(const Row& row) const
{
    return row.height + (row.hasHeader ? m_tables[row.table].headerHeight : 0);
}

qreal ReportRows::cellWidth(const Table& table, qsizetype column) const
{
    return std::max(1.0, m_page.width() * table.shares[column] - 2 * padding());
}

int ReportRows::textHeight(Table& table, qsizetype column, const QString& text, bool isHeader) const
{
    const QString key = QString::number(column) + (isHeader ? u'h' : u'r') + text;
    const auto known = table.heights.constFind(key);
    if (known != table.heights.constEnd())
        return *known;
    QFont font = m_document->defaultFont();
    font.setBold(isHeader);
    QTextLayout layout(text, font);
    const int height =
        int(std::ceil(layOutText(layout, cellWidth(table, column), m_page.height())));
    table.heights.insert(key, height);
    return height;
}

int ReportRows::heightOf(Table& table, const QList<Cell>& cells, bool isHeader) const
{
    qreal height = 0;
    for (qsizetype column = 0; column < cells.size(); ++column) {
        const Cell& cell = cells[column];
        qreal own = cell.text.isEmpty() ? 0 : textHeight(table, column, cell.text, isHeader);
        if (!cell.picture.isEmpty())
            own += cell.pictureSize.height() *
                   std::min(1.0, cellWidth(table, column) / cell.pictureSize.width());
        height = std::max(height, own);
    }
    // Always with room for a header on its page.
    const qreal most = m_page.height() * 3 / 4;
    return int(std::ceil(std::min(height, most) + 2 * padding()));
}

QSizeF ReportRows::intrinsicSize(QTextDocument*, int, const QTextFormat& format)
{
    const Row& row = m_rows[format.intProperty(rowNumber)];
    return {m_page.width(), qreal(fullHeight(row))};
}

void ReportRows::drawObject(QPainter* painter, const QRectF& place, QTextDocument*, int,
                            const QTextFormat& format)
{
    const int number = format.intProperty(rowNumber);
    const Row& row = m_rows[number];
    const Table& table = m_tables[row.table];
    QRectF body = place;
    painter->save();
    painter->setPen(Qt::black);
    if (row.hasHeader) {
        QRectF head = place;
        head.setHeight(table.headerHeight);
        body.setTop(head.bottom());
        painter->fillRect(head, QColor(headerGround));
        QFont bold = m_document->defaultFont();
        bold.setBold(true);
        paintCells(*painter, head, table, table.header, bold);
    }
    if ((number - table.first) % 2 == 1)
        painter->fillRect(body, QColor(evenRowGround));
    paintCells(*painter, body, table, row.cells, m_document->defaultFont());
    painter->restore();
}

void ReportRows::paintCells(QPainter& painter, const QRectF& place, const Table& table,
                            const QList<Cell>& cells, const QFont& font) const
{
    qreal x = place.left();
    for (qsizetype column = 0; column < cells.size(); ++column) {
        const Cell& cell = cells[column];
        const qreal width = cellWidth(table, column);
        QPointF at(x + padding(), place.top() + padding());
        if (!cell.picture.isEmpty()) {
            const QSizeF size = cell.pictureSize * std::min(1.0, width / cell.pictureSize.width());
            painter.drawImage(QRectF(at, size), m_document->picture(cell.picture));
            at.ry() += size.height();
        }
        if (!cell.text.isEmpty()) {
            QTextLayout layout(cell.text, font);
            // A line that does not fit at all is left out.
            const qreal room = place.bottom() - padding() - at.y();
            layOutText(layout, width, room);
            layout.draw(&painter, at);
        }
        x += m_page.width() * table.shares[column];
    }
}

} // namespace CorvelGui
