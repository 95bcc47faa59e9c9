// SPDX-License-Identifier: MIT
#include "csvbody.h"

#include <QAbstractItemModel>
#include <QHash>
#include <QItemSelection>
#include <QTextStream>

#include <algorithm>
#include <utility>
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

/// The number of a column, and a text in it.
using NumberedText = std::pair<int, QString>;

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
        std::vector<NumberedText> names;
        for (int column = 0; column < m_columns; ++column) {
            if (isWritten(column))
                names.emplace_back(column, m_list.headerData(column, Qt::Horizontal).toString());
        }
        writeLine(names);
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

    void writeLine(const std::vector<NumberedText>& values)
    {
        for (size_t i = 0; i < values.size(); ++i) {
            const auto& [column, text] = values[i];
            const bool isDelimited =
                m_format.wellFormed ? i + 1 < values.size() : column < m_format.columnCount - 1;
            m_out << m_format.quote << inQuotes(text) << m_format.quote;
            if (isDelimited)
                m_out << m_format.delimiter;
        }
        m_out << '\n';
    }

    QString inQuotes(QString text) const
    {
        if (m_format.wellFormed)
            text.replace(m_format.quote, QString(2, m_format.quote));
        return text;
    }

    bool isSelected(const Level& level, int column) const
    {
        if (level.selectedTo[size_t(column)] < level.row)
            return false;
        // The selection may span cells that cannot be selected; they are not.
        constexpr Qt::ItemFlags selectable = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
        const QModelIndex cell = m_list.index(level.row, column, level.parent);
        return (cell.flags() & selectable) == selectable;
    }

    void writeRow(Level& level)
    {
        beginRanges(level);
        std::vector<NumberedText> texts;
        bool anything = false;
        for (int column = 0; column < m_columns; ++column) {
            if (!isWritten(column))
                continue;
            const bool isIncluded = isSelected(level, column);
            if (isIncluded)
                texts.emplace_back(column,
                                   m_list.index(level.row, column, level.parent).data().toString());
            else if (m_format.wellFormed)
                texts.emplace_back(column, QString());
            anything |= isIncluded;
        }
        if (anything)
            writeLine(texts);
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
