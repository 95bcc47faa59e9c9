// SPDX-License-Identifier: MIT
#include "csvbody.h"

#include <QAbstractItemModel>
#include <QHash>
#include <QItemSelection>
#include <QTextStream>

#include <algorithm>
#include <vector>

namespace CorvelGui {

namespace {

struct Range
{
    int top;
    int left;
    int bottom;
    int right;
};

/// The rows below one parent, on the way down.
struct Level
{
    QModelIndex parent;
    std::vector<Range> ranges; ///< sorted by their first row
    /// For each column the last row of the ranges that began above or in the present row.
    std::vector<int> selectedTo;
    int row = 0;
    size_t nextRange = 0;
};

class CsvBody
{
public:
    CsvBody(QTextStream& out, const QAbstractItemModel& list, const QItemSelection& selection,
            const CsvFormat& format)
        : m_out(out), m_list(list), m_format(format), m_columns(list.columnCount())
    {
        for (const QItemSelectionRange& range : selection)
            m_ranges[range.parent()].push_back(
                {range.top(), range.left(), range.bottom(), range.right()});
    }

    void writeColumnNames()
    {
        for (int column = 0; column < m_columns; ++column) {
            if (isWritten(column))
                writeText(column, m_list.headerData(column, Qt::Horizontal).toString());
        }
        m_out << '\n';
    }

    void writeRows()
    {
        std::vector<Level> levels{levelBelow(QModelIndex())};
        while (!levels.empty()) {
            Level& level = levels.back();
            if (level.row == m_list.rowCount(level.parent)) {
                levels.pop_back();
                continue;
            }
            writeRow(level);
            const QModelIndex item = m_list.index(level.row, 0, level.parent);
            ++level.row;
            if (m_list.hasChildren(item))
                levels.push_back(levelBelow(item));
        }
    }

private:
    Level levelBelow(const QModelIndex& parent)
    {
        std::vector<Range> ranges = m_ranges.take(parent);
        std::ranges::sort(ranges, {}, &Range::top);
        return {parent, std::move(ranges), std::vector<int>(size_t(m_columns), -1)};
    }

    bool isWritten(int column) const
    {
        return column < m_format.columns.size() && m_format.columns.testBit(column);
    }

    void writeText(int column, const QString& text)
    {
        m_out << m_format.quote << text << m_format.quote;
        if (column < m_format.columnCount - 1)
            m_out << m_format.delimiter;
    }

    void writeRow(Level& level)
    {
        beginRanges(level);
        bool anything = false;
        for (int column = 0; column < m_columns; ++column) {
            if (!isWritten(column) || level.selectedTo[size_t(column)] < level.row)
                continue;
            const QModelIndex cell = m_list.index(level.row, column, level.parent);
            // The selection may span cells that cannot be selected; they are not.
            constexpr Qt::ItemFlags selectable = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
            if ((cell.flags() & selectable) != selectable)
                continue;
            writeText(column, cell.data().toString());
            anything = true;
        }
        if (anything)
            m_out << '\n';
    }

    static void beginRanges(Level& level)
    {
        for (; level.nextRange < level.ranges.size(); ++level.nextRange) {
            const Range& range = level.ranges[level.nextRange];
            if (range.top > level.row)
                break;
            for (int column = range.left; column <= range.right; ++column) {
                int& last = level.selectedTo[size_t(column)];
                last = std::max(last, range.bottom);
            }
        }
    }

    QTextStream& m_out;
    const QAbstractItemModel& m_list;
    const CsvFormat& m_format;
    const int m_columns;
    QHash<QModelIndex, std::vector<Range>> m_ranges; ///< by their parent
};

} // namespace

void writeCsv(QTextStream& out, const QAbstractItemModel& list, const QItemSelection& selection,
              const CsvFormat& format)
{
    CsvBody body(out, list, selection, format);
    if (format.columnNames)
        body.writeColumnNames();
    body.writeRows();
    out.flush();
}

} // namespace CorvelGui
