// SPDX-License-Identifier: MIT
// What a filter and an order of a long list cost the window: the whole time, and the longest time
// for which the event loop handles nothing else.

#include <CorvelGui/PRowFilterModel>

#include <QAbstractTableModel>
#include <QApplication>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QTableView>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <algorithm>

using CorvelGui::PRowFilterModel;

namespace {

quint32 mixed(int row)
{
    return quint32(row) * 2'654'435'769U;
}

class Rows : public QAbstractTableModel
{
public:
    explicit Rows(int count) : m_count(count) {}

    int rowCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : m_count;
    }
    int columnCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : 4; }
    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role != Qt::DisplayRole)
            return {};
        return QStringLiteral("column %1 of row %2").arg(index.column()).arg(mixed(index.row()));
    }

private:
    const int m_count;
};

/// The longest time between two looks of the event loop at its timers, in milliseconds.
class BlockProbe
{
public:
    BlockProbe()
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
        m_timer.start(0);
        m_sinceLook.start();
    }

    void look()
    {
        m_longest = std::max(m_longest, double(m_sinceLook.nsecsElapsed()) / 1e6),
        m_sinceLook.start();
    }
    double longest() const { return m_longest; }

private:
    QTimer m_timer;
    QElapsedTimer m_sinceLook;
    double m_longest = 0;
};

struct List
{
    explicit List(int count) : rows(count)
    {
        filtered.setSourceModel(&rows);
        filtered.setComparison(
            [](int row, int other, int) { return mixed(row) < mixed(other) ? -1 : 1; });
        view.setModel(&filtered);
        view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        view.resize(800, 600);
        view.show();
        QCoreApplication::processEvents();
    }

    template <typename Action>
    void run(benchmark::State& state, const Action& action)
    {
        double longest = 0;
        for (auto _ : state) {
            BlockProbe probe;
            action();
            probe.look();
            while (filtered.isBusy())
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            QCoreApplication::processEvents();
            probe.look();
            longest = std::max(longest, probe.longest());
        }
        state.counters["longest_block_ms"] = longest;
        state.counters["rows"] = double(filtered.rowCount());
    }

    Rows rows;
    PRowFilterModel filtered;
    QTableView view;
};

void filterText(benchmark::State& state)
{
    List list(int(state.range(0)));
    int key = 0;
    list.run(state, [&] { list.filtered.setFilterText(QString::number(key++ % 10)); });
}

void filterByPredicate(benchmark::State& state)
{
    List list(int(state.range(0)));
    quint32 bit = 0;
    list.run(state, [&] {
        bit = (bit + 1) % 32;
        list.filtered.setFilter([bit](int row) { return (mixed(row) >> bit & 1U) != 0; });
    });
}

void clearFilter(benchmark::State& state)
{
    List list(int(state.range(0)));
    list.run(state, [&] {
        list.filtered.setFilter([](int) { return false; });
        list.filtered.finish();
        list.filtered.setFilter({});
    });
}

void sort(benchmark::State& state)
{
    List list(int(state.range(0)));
    auto order = Qt::AscendingOrder;
    list.run(state, [&] {
        order = order == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
        list.filtered.sort(1, order);
    });
}

const auto sizes = [](benchmark::internal::Benchmark* benchmark) {
    benchmark->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
};
BENCHMARK(filterText)->Apply(sizes);
BENCHMARK(filterByPredicate)->Apply(sizes);
BENCHMARK(clearFilter)->Apply(sizes);
BENCHMARK(sort)->Apply(sizes);

} // namespace

int main(int argc, char** argv)
{
    const QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
