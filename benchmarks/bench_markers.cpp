// SPDX-License-Identifier: MIT
// What more and more markers cost on a ruler of 1920 pixels: steps of a drag from the mouse event
// to the painted frame, hovering, markers that come and go one by one, and memory. A ratio compares
// the processor time with that of the benchmark's first row.

#include "measure.h"

#include <CorvelGui/Ruler>
#include <CorvelGui/RulerMarkerButton>
#include <Hueloft/PIconHelper>

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QRandomGenerator>
#include <QTimeZone>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <memory>

using namespace CorvelGui;

namespace {

constexpr qint64 day = 86'400'000;
constexpr qint64 begin = 1'772'409'600'000;
constexpr int wholeDay = 4;
constexpr int million = 1'000'000;

enum Spread { Even, Random, Clustered, OneInstant };
constexpr const char* spreadNames[] = {"even", "random", "clustered", "one instant"};

/// Milliseconds within @p period.
std::vector<qint64> offsets(qint64 count, qint64 period, Spread spread)
{
    QRandomGenerator random(1);
    std::vector<qint64> result;
    result.reserve(std::size_t(count));
    for (qint64 i = 0; i < count; ++i) {
        switch (spread) {
        case Even:
            result.push_back((2 * i + 1) * period / (2 * count));
            break;
        case Random:
            result.push_back(qint64(random.bounded(double(period))));
            break;
        case Clustered: // forty bursts of a few minutes
            result.push_back(period / 40 * random.bounded(40) + qint64(random.bounded(200'000.0)));
            break;
        case OneInstant:
            result.push_back(period / 2);
            break;
        }
    }
    return result;
}

RulerMarker markerAt(qint64 msecs)
{
    // One text for all, so that memory is that of the markers.
    static const QString text = QStringLiteral("An event at the northern gate");
    return {.identifier = QUuid(uint(msecs), 0, 0, 0, 0, 0, 0, 0, 0, 0, 0),
            .time = QDateTime::fromMSecsSinceEpoch(msecs, QTimeZone::utc()),
            .text = text};
}

QList<RulerMarker> markers(qint64 count, qint64 period, Spread spread)
{
    QList<RulerMarker> result;
    result.reserve(count);
    for (const qint64 offset : offsets(count, period, spread))
        result.append(markerAt(begin + offset));
    return result;
}

/// With a view of a day, in the middle of the period.
std::unique_ptr<Ruler> createRuler(qint64 period)
{
    auto ruler = std::make_unique<Ruler>();
    ruler->resize(1920, ruler->maximumHeight());
    ruler->show();
    ruler->setTimeZone(QStringLiteral("UTC"));
    ruler->setActive(true, false);
    ruler->setTimeLimits(quint64(begin - 10 * day), quint64(begin + period + 10 * day));
    ruler->changeLevel(wholeDay, 0.5);
    ruler->onTimelineOffsetChanged(
        ruler->getPosition(QDateTime::fromMSecsSinceEpoch(begin + period / 2, QTimeZone::utc())));
    QCoreApplication::processEvents();
    return ruler;
}

void sendMouse(Ruler& ruler, QEvent::Type type, QPoint position, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, position, ruler.mapToGlobal(QPointF(position)), Qt::LeftButton, buttons,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&ruler, &event);
}

/// One step: the mouse moves by some pixels with the button held, and the window is painted.
void drag(benchmark::State& state, qint64 period, Spread spread)
{
    const auto ruler = createRuler(period);
    if (state.range(0) > 0)
        ruler->onAddMarkers(markers(state.range(0), period, spread));
    QCoreApplication::processEvents();
    sendMouse(*ruler, QEvent::MouseButtonPress, QPoint(900, 30), Qt::LeftButton);
    int step = 0;
    RatioTimer timer(state, spread == Even ? 100 : 10'000);
    for (auto _ : state) {
        // To and fro, so that the view stays where the markers are.
        const int phase = ++step % 80;
        sendMouse(*ruler, QEvent::MouseMove,
                  QPoint(1000 + 3 * (phase < 40 ? phase : 80 - phase), 30), Qt::LeftButton);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
    }
    timer.stop();
    state.SetLabel(spreadNames[spread]);
}

void dragAllInView(benchmark::State& state)
{
    drag(state, day * 8 / 10, Spread(state.range(1)));
}

void dragOnePercentInView(benchmark::State& state)
{
    drag(state, 100 * day, Even);
}

/// The mouse goes to and fro between markers that merging hides.
void hover(benchmark::State& state)
{
    const auto ruler = createRuler(day);
    const auto spread = Spread(state.range(1));
    ruler->onAddMarkers(markers(state.range(0), day, spread));
    QCoreApplication::processEvents();
    const QPoint center = ruler->findChild<RulerMarkerButton*>()->geometry().center();
    int step = 0;
    RatioTimer timer(state, 1000);
    for (auto _ : state)
        sendMouse(*ruler, QEvent::MouseMove, center + QPoint(++step % 3 - 1, 0), Qt::NoButton);
    timer.stop();
    state.SetLabel(spreadNames[spread]);
}

/// One marker comes and goes, with the grouping that follows. The last argument is where: 0 outside
/// of the view, as live events do, 1 in the middle of it.
void addAndRemoveOne(benchmark::State& state)
{
    const auto ruler = createRuler(day);
    ruler->onAddMarkers(markers(state.range(0), day, Random));
    const bool inView = state.range(1) == 1;
    const RulerMarker live = markerAt(begin + (inView ? day / 2 : 5 * day));
    RatioTimer timer(state, 1000);
    for (auto _ : state) {
        ruler->onAddMarkers({live});
        ruler->onRemoveMarkers({live});
    }
    timer.stop();
    state.SetLabel(inView ? "in view" : "outside");
}

void addAllAndClear(benchmark::State& state)
{
    const auto ruler = createRuler(day);
    const QList<RulerMarker> all = markers(state.range(0), day, Random);
    for (auto _ : state) {
        ruler->onAddMarkers(all);
        ruler->onClearMarkers();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void memoryPerMarker(benchmark::State& state)
{
    for (auto _ : state) {
        const auto ruler = createRuler(day);
        ruler->onAddMarkers({markerAt(begin + day / 2)});
        QList<RulerMarker> all = markers(state.range(0), 400 * day, Even);
        const MemoryGrowth growth;
        ruler->onAddMarkers(all);
        const double count = double(state.range(0));
        state.counters["bytes"] = growth.allocated() / count;
        state.counters["peak_bytes"] = growth.peak() / count;
    }
}

/// An icon drawn anew from an outline for every index.
class Kinds : public IRulerMarkerIconProvider
{
public:
    int iconKey(int iconIndex) override { return iconIndex; }
    QIcon icon(int) override { return Hueloft::PIconHelper::GetMarkerOutlined_48x48(true); }
};

void iconKinds(benchmark::State& state)
{
    Kinds kinds;
    QList<RulerMarker> all;
    for (int kind = 0; kind < state.range(0); ++kind) {
        RulerMarker marker = markerAt(begin + kind * day / state.range(0));
        marker.kind = RulerMarker::providedIconKind;
        marker.iconIndex = kind;
        marker.iconProvider = &kinds;
        all.append(marker);
    }
    for (auto _ : state) {
        const auto ruler = createRuler(day);
        const MemoryGrowth growth;
        ruler->onAddMarkers(all);
        QCoreApplication::processEvents();
        state.counters["bytes"] = growth.allocated() / double(state.range(0));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

} // namespace

BENCHMARK(dragAllInView)
    ->Args({100, Even})
    ->Args({0, Even})
    ->ArgsProduct({{1'000, 10'000, 100'000, million, 10 * million}, {Even}})
    ->ArgsProduct({{10'000, million, 10 * million}, {Random, Clustered}})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(dragOnePercentInView)->Arg(100)->Arg(10'000)->Arg(million)->Unit(benchmark::kMicrosecond);
BENCHMARK(hover)
    ->Args({1'000, OneInstant})
    ->Args({million, OneInstant})
    ->Args({million, Random})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(addAndRemoveOne)
    ->ArgsProduct({{1'000, million, 10 * million}, {0, 1}})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(addAllAndClear)->Arg(1'000)->Arg(100'000)->Arg(million)->Unit(benchmark::kMillisecond);
BENCHMARK(memoryPerMarker)->Arg(million)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(iconKinds)->Arg(50)->Iterations(1)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
