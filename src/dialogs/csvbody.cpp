#include "csvbody.h"

#include <QAbstractItemModel>
#include <QItemSelection>
#include <QMultiHash>
#include <QTextStream>

#include <algorithm>
#include <vector>

namespace CorvelGui {

namespace {

/// The rows below one parent, on the way down.
struct Level
{
    explicit Level(const QModelIndex& parentIndex, int columns)
        : parent(parentIndex), selectedTo(size_t(columns), -1)
    {}

    QModelIndex parent;
    int row = 0;
    /// For each column the last row of the ranges that began above or in the present row.
    std::vector<int> selectedTo;
};

class CsvBody
{
public:
    CsvBody(QTextStream& out, const QAbstractItemModel& list, const QItemSelection& selection,
            const CsvFormat& format)
        : m_out(out), m_list(list), m_format(format), m_columns(list.columnCount())
    {
        for (const QItemSelectionRange& range : selection)
            m_ranges.insert(range.topLeft(), &range);
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
        std::vector<Level> levels{Level(QModelIndex(), m_columns)};
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
                levels.emplace_back(item, m_columns);
        }
    }

private:
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
        bool anything = false;
        for (int column = 0; column < m_columns; ++column) {
            const QModelIndex cell = m_list.index(level.row, column, level.parent);
            beginRanges(level, cell);
            if (!isWritten(column) || level.selectedTo[size_t(column)] < level.row)
                continue;
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

    void beginRanges(Level& level, const QModelIndex& topLeft) const
    {
        const auto [begin, end] = m_ranges.equal_range(topLeft);
        for (auto range = begin; range != end; ++range) {
            const int right = std::min((*range)->right(), m_columns - 1);
            for (int column = topLeft.column(); column <= right; ++column) {
                int& last = level.selectedTo[size_t(column)];
                last = std::max(last, (*range)->bottom());
            }
        }
    }

    QTextStream& m_out;
    const QAbstractItemModel& m_list;
    const CsvFormat& m_format;
    const int m_columns;
    QMultiHash<QModelIndex, const QItemSelectionRange*> m_ranges; ///< by their first cell
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
