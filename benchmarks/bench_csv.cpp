// SPDX-License-Identifier: MIT
// Writing lists of five columns as comma-separated values, every other row selected: each row is a
// range of the selection of its own.

#include "dialogs/csvbody.h"

#include <QApplication>
#include <QTableWidget>
#include <QTextStream>
#include <QTreeWidget>

#include <benchmark/benchmark.h>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

namespace {

constexpr int columns = 5;

QString text(int row, int column)
{
    return u"Camera %1.%2"_s.arg(row).arg(column);
}

void selectAlternateRows(QAbstractItemView& list, int rows, const QModelIndex& parent)
{
    QItemSelection selection;
    for (int row = 0; row < rows; row += 2)
        selection.append(QItemSelectionRange(list.model()->index(row, 0, parent),
                                             list.model()->index(row, columns - 1, parent)));
    list.selectionModel()->select(selection, QItemSelectionModel::Select);
}

void write(benchmark::State& state, const QAbstractItemView& list)
{
    const CsvFormat format{u';', u'"', true, QBitArray(columns, true), columns};
    for (auto _ : state) {
        QByteArray body;
        QTextStream stream(&body);
        writeCsv(stream, *list.model(), list.selectionModel()->selection(), format);
        benchmark::DoNotOptimize(body.size());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

void writeTable(benchmark::State& state)
{
    const int rows = int(state.range(0));
    QTableWidget table(rows, columns);
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
            table.setItem(row, column, new QTableWidgetItem(text(row, column)));
    selectAlternateRows(table, rows, QModelIndex());
    write(state, table);
}

/// The rows stand below one item.
void writeTree(benchmark::State& state)
{
    const int rows = int(state.range(0));
    QTreeWidget tree;
    tree.setColumnCount(columns);
    auto* site = new QTreeWidgetItem(&tree);
    QList<QTreeWidgetItem*> items;
    for (int row = 0; row < rows; ++row) {
        auto* item = new QTreeWidgetItem;
        for (int column = 0; column < columns; ++column)
            item->setText(column, text(row, column));
        items.append(item);
    }
    site->addChildren(items);
    selectAlternateRows(tree, rows, tree.model()->index(0, 0));
    write(state, tree);
}

} // namespace

BENCHMARK(writeTable)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();
BENCHMARK(writeTree)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
