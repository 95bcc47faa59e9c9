// SPDX-License-Identifier: MIT
// What users do with trees and tables of more and more rows: filter, select, copy, sort, export,
// expand, and remove. The time per row should not depend on the number of rows; sorting takes
// n log n.

#include "dialogs/csvbody.h"

#include <CorvelGui/PTableWidget>
#include <CorvelGui/PTreeWidget>
#include <CorvelGui/PTreeWidgetItem>

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QTextStream>

#include <benchmark/benchmark.h>

#include <memory>

using namespace CorvelGui;

namespace {

constexpr int columns = 4;

QString text(int row, int column)
{
    // Neither sorted nor random: rows are scattered the same way in every run.
    return QStringLiteral("device %1/%2").arg((row * 7919LL) % 100'003).arg(column);
}

class Tree : public PTreeWidget
{
public:
    explicit Tree(int rows, int childrenPerRow = 0)
    {
        setColumnCount(columns);
        setSelectionMode(QAbstractItemView::ExtendedSelection);
        resize(800, 600);
        show();
        QList<QTreeWidgetItem*> items;
        for (int row = 0; row < rows; ++row) {
            items.append(createItem(row));
            for (int child = 0; child < childrenPerRow; ++child)
                items.back()->addChild(createItem(child));
        }
        addTopLevelItems(items);
        QCoreApplication::processEvents();
    }

    void copyRows() { slotCopy(); }
    void removeAll() { deleteAllTopLevelItems(); }

private:
    static PTreeWidgetItem* createItem(int row)
    {
        auto* item = new PTreeWidgetItem;
        for (int column = 0; column < columns; ++column)
            item->setText(column, text(row, column));
        return item;
    }
};

class Table : public PTableWidget
{
public:
    explicit Table(int rows) : PTableWidget(rows, columns)
    {
        resize(800, 600);
        show();
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column)
                setItem(row, column, new QTableWidgetItem(text(row, column)));
        }
        QCoreApplication::processEvents();
    }

    void copyRows() { slotCopy(); }
};

/// Selects every other row, so that nothing can be joined.
void selectScattered(QAbstractItemView& view)
{
    const QAbstractItemModel& model = *view.model();
    QItemSelection selection;
    for (int row = 0; row < model.rowCount(); row += 2)
        selection.append(QItemSelectionRange(model.index(row, 0), model.index(row, columns - 1)));
    view.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

/// What the CSV dialog writes, without the file.
QString csv(const QAbstractItemView& view)
{
    QString text;
    QTextStream out(&text);
    writeCsv(out, *view.model(), view.selectionModel()->selection(),
             {u';', u'"', true, QBitArray(columns, true), columns});
    return text;
}

/// Measures @p act, and what it left to the event loop.
template <typename View, typename Act>
void measure(benchmark::State& state, View& view, const Act& act)
{
    // What is pending from the preparation, and what is found out once only.
    act(view);
    QCoreApplication::processEvents();
    for (auto _ : state) {
        act(view);
        QCoreApplication::processEvents();
    }
    state.counters["per_row"] =
        benchmark::Counter(double(state.range(0)), benchmark::Counter::kIsIterationInvariantRate |
                                                       benchmark::Counter::kInvert);
}

/// As measure(), each time with a new view that prepare() made.
template <typename Prepare, typename Act>
void measureOnce(benchmark::State& state, const Prepare& prepare, const Act& act)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto view = prepare(int(state.range(0)));
        state.ResumeTiming();
        act(*view);
        QCoreApplication::processEvents();
        state.PauseTiming();
        view.reset();
        state.ResumeTiming();
    }
    state.counters["per_row"] =
        benchmark::Counter(double(state.range(0)), benchmark::Counter::kIsIterationInvariantRate |
                                                       benchmark::Counter::kInvert);
}

void treeFilter(benchmark::State& state)
{
    Tree tree(int(state.range(0)));
    // As after a device went: no item stands where the tree last saw it.
    delete tree.takeTopLevelItem(0);
    bool all = false;
    measure(state, tree, [&all](Tree& view) {
        view.FilterTree(all ? QString() : QStringLiteral("7"));
        all = !all;
    });
}

void treeSelectAll(benchmark::State& state)
{
    Tree tree(int(state.range(0)));
    tree.FilterTree(QStringLiteral("7"));
    measure(state, tree, [](Tree& view) {
        view.selectAll();
        view.clearSelection();
    });
}

void treeCopy(benchmark::State& state)
{
    Tree tree(int(state.range(0)));
    selectScattered(tree);
    measure(state, tree, [](Tree& view) {
        view.copyRows();
        view.CopyCellToClipBoard();
    });
}

void treeExport(benchmark::State& state)
{
    Tree tree(int(state.range(0)));
    selectScattered(tree);
    measure(state, tree, [](Tree& view) { benchmark::DoNotOptimize(csv(view)); });
}

void treeSort(benchmark::State& state)
{
    Tree tree(int(state.range(0)));
    selectScattered(tree);
    auto order = Qt::AscendingOrder;
    measure(state, tree, [&order](Tree& view) {
        view.sortItems(1, order);
        order = order == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    });
}

void treeExpandAndCollapse(benchmark::State& state)
{
    Tree tree(int(state.range(0)) / 10, 9);
    measure(state, tree, [](Tree& view) {
        view.ExpandCollapseAll(nullptr, true);
        view.ExpandCollapseAll(nullptr, false);
    });
}

void treeNeededHeight(benchmark::State& state)
{
    Tree tree(int(state.range(0)) / 10, 9);
    tree.setUniformRowHeights(false);
    tree.ExpandCollapseAll(tree.topLevelItem(0), true);
    tree.ExpandCollapseAll(nullptr, true);
    measure(state, tree, [](Tree& view) { benchmark::DoNotOptimize(view.CalcNeededHeight()); });
}

void treeDeleteWidgets(benchmark::State& state)
{
    const auto withWidgets = [](int rows) {
        auto tree = std::make_unique<Tree>(rows);
        tree->hide();
        for (int row = 0; row < rows; ++row)
            tree->setItemWidget(tree->topLevelItem(row), 1, new QLabel);
        QCoreApplication::processEvents();
        return tree;
    };
    measureOnce(state, withWidgets, [](Tree& tree) {
        tree.DeleteWidgets(1);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    });
}

void treeRemoveAll(benchmark::State& state)
{
    const auto selected = [](int rows) {
        auto tree = std::make_unique<Tree>(rows);
        tree->FilterTree(QStringLiteral("7"));
        selectScattered(*tree);
        return tree;
    };
    measureOnce(state, selected, [](Tree& tree) { tree.removeAll(); });
}

void treeDeleteChildren(benchmark::State& state)
{
    const auto expanded = [](int rows) {
        auto tree = std::make_unique<Tree>(1, rows);
        QTreeWidgetItem* parent = tree->topLevelItem(0);
        for (int i = 0; i < rows; i += 2)
            parent->child(i)->addChild(new PTreeWidgetItem);
        tree->ExpandCollapseAll(nullptr, true);
        return tree;
    };
    measureOnce(state, expanded, [](Tree& tree) {
        static_cast<PTreeWidgetItem*>(tree.topLevelItem(0))->DeleteAllChildren();
    });
}

void tableFilter(benchmark::State& state)
{
    Table table(int(state.range(0)));
    bool all = false;
    measure(state, table, [&all](Table& view) {
        view.FilterTable(all ? QString() : QStringLiteral("7"));
        all = !all;
    });
}

void tableSelectAll(benchmark::State& state)
{
    Table table(int(state.range(0)));
    table.FilterTable(QStringLiteral("7"));
    measure(state, table, [](Table& view) {
        view.selectAll();
        view.clearSelection();
    });
}

void tableCopy(benchmark::State& state)
{
    Table table(int(state.range(0)));
    selectScattered(table);
    measure(state, table, [](Table& view) {
        view.copyRows();
        view.CopyCellToClipBoard();
    });
}

void tableExport(benchmark::State& state)
{
    Table table(int(state.range(0)));
    selectScattered(table);
    measure(state, table, [](Table& view) { benchmark::DoNotOptimize(csv(view)); });
}

void tableSort(benchmark::State& state)
{
    Table table(int(state.range(0)));
    auto order = Qt::AscendingOrder;
    measure(state, table, [&order](Table& view) {
        view.sortItems(1, order);
        order = order == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    });
}

void tableDeleteWidgets(benchmark::State& state)
{
    const auto withWidgets = [](int rows) {
        auto table = std::make_unique<Table>(rows);
        table->hide();
        for (int row = 0; row < rows; ++row)
            table->setCellWidget(row, 1, new QLabel);
        QCoreApplication::processEvents();
        return table;
    };
    measureOnce(state, withWidgets, [](Table& table) {
        table.DeleteWidgets(1);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    });
}

void tableRemoveAll(benchmark::State& state)
{
    const auto selected = [](int rows) {
        auto table = std::make_unique<Table>(rows);
        selectScattered(*table);
        return table;
    };
    measureOnce(state, selected, [](Table& table) { table.setRowCount(0); });
}

void withRows(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
}

} // namespace

BENCHMARK(treeFilter)->Apply(withRows);
BENCHMARK(treeSelectAll)->Apply(withRows);
BENCHMARK(treeCopy)->Apply(withRows);
BENCHMARK(treeExport)->Apply(withRows);
BENCHMARK(treeSort)->Apply(withRows);
BENCHMARK(treeExpandAndCollapse)->Apply(withRows);
BENCHMARK(treeNeededHeight)->Apply(withRows);
BENCHMARK(treeDeleteWidgets)->Apply(withRows)->Iterations(1);
BENCHMARK(treeRemoveAll)->Apply(withRows)->Iterations(1);
BENCHMARK(treeDeleteChildren)->Apply(withRows)->Iterations(1);
BENCHMARK(tableFilter)->Apply(withRows);
BENCHMARK(tableSelectAll)->Apply(withRows);
BENCHMARK(tableCopy)->Apply(withRows);
BENCHMARK(tableExport)->Apply(withRows);
BENCHMARK(tableSort)->Apply(withRows);
BENCHMARK(tableDeleteWidgets)->Apply(withRows)->Iterations(1);
BENCHMARK(tableRemoveAll)->Apply(withRows)->Iterations(1);

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    // The tree names every top-level item that it expands.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
