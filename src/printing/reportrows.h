// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QHash>
#include <QObject>
#include <QSizeF>
#include <QStringList>
#include <QTextCursor>
#include <QTextObjectInterface>

namespace CorvelGui {

class ReportDocument;

/// The rows of the tables of a report. Each is an object in a line of its own of the document, so
/// that none is ever split, and the first of each page has the header of its table above it. The
/// layout of a QTextTable of as many rows would take seconds in which nothing could be cancelled.
class ReportRows : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    struct Cell
    {
        QString text = {};
        QString picture = {}; ///< name of a picture of the document; empty for none
        QSizeF pictureSize = {};
    };

    /// @p document must live longer.
    explicit ReportRows(ReportDocument* document);

    /// Begins a table where @p cursor stands, in an empty block. @p shares are the parts of its
    /// columns in the width, 1 together.
    void beginTable(const QTextCursor& cursor, const QStringList& header,
                    const QList<double>& shares);
    /// How large a picture in that column of the last table may be.
    QSizeF pictureRoom(qsizetype column) const;
    /// Adds a row to the last table.
    void add(QTextCursor& cursor, const QList<Cell>& cells);

    /// Finds out which rows begin a page. The document is laid out before and after it.
    void place();

    QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
    void drawObject(QPainter* painter, const QRectF& place, QTextDocument* document, int position,
                    const QTextFormat& format) override;

private:
    struct Table
    {
        QTextCursor begin;
        QList<Cell> header;
        QList<double> shares;
        int first = 0; ///< of its rows
        int end = 0;
        int headerHeight = 0;
        QHash<QString, int> heights = {}; ///< of texts that were measured
    };
    struct Row
    {
        int table = 0;
        QList<Cell> cells;
        int height = 0; ///< without a header
        bool hasHeader = false;
    };

    void measure();
    int heightOf(Table& table, const QList<Cell>& cells, bool isHeader) const;
    int textHeight(Table& table, qsizetype column, const QString& text, bool isHeader) const;
    int fullHeight(const Row& row) const;
    void paintCells(QPainter& painter, const QRectF& place, const Table& table,
                    const QList<Cell>& cells, const QFont& font) const;
    qreal cellWidth(const Table& table, qsizetype column) const;

    ReportDocument* const m_document;
    QList<Table> m_tables;
    QList<Row> m_rows;
    /// For which the heights are.
    QSizeF m_page;
};

} // namespace CorvelGui
