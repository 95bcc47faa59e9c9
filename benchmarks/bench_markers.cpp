// Panning a ruler of 1920 pixels with more and more markers, from the mouse event to the painted
// frame; adding and clearing markers.

#include <CorvelGui/Ruler>

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QTimeZone>

#include <benchmark/benchmark.h>

#include <memory>

using namespace CorvelGui;

namespace {

constexpr qint64 day = 86'400'000;
constexpr qint64 begin = 1'772'409'600'000;
constexpr int wholeDay = 4;

/// Evenly spread over a period.
QList<RulerMarker> markers(qint64 count, qint64 period)
{
    QList<RulerMarker> result;
    result.reserve(count);
    for (qint64 i = 0; i < count; ++i) {
        const qint64 time = begin + (2 * i + 1) * period / (2 * count);
        result.append({.identifier = QUuid::createUuid(),
                       .time = QDateTime::fromMSecsSinceEpoch(time, QTimeZone::utc()),
                       .text = QStringLiteral("Event %1").arg(i)});
    }
    return result;
}

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

void sendMouse(Ruler& ruler, QEvent::Type type, int x)
{
    const QPointF position(x, 30);
    QMouseEvent event(type, position, ruler.mapToGlobal(position), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&ruler, &event);
}

/// One step: the mouse moves by some pixels with the button held, and the window is painted.
void pan(benchmark::State& state, qint64 period)
{
    const auto ruler = createRuler(period);
    ruler->onAddMarkers(markers(state.range(0), period));
    QCoreApplication::processEvents();
    sendMouse(*ruler, QEvent::MouseButtonPress, 900);
    int step = 0;
    for (auto _ : state) {
        // To and fro, so that the view stays where the markers are.
        const int phase = ++step % 80;
        sendMouse(*ruler, QEvent::MouseMove, 1000 + 3 * (phase < 40 ? phase : 80 - phase));
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
    }
    state.SetItemsProcessed(state.iterations());
}

void panAllInView(benchmark::State& state)
{
    pan(state, day * 8 / 10);
}

void panOnePercentInView(benchmark::State& state)
{
    pan(state, 100 * day);
}

void addAndClear(benchmark::State& state)
{
    const auto ruler = createRuler(day);
    const QList<RulerMarker> all = markers(state.range(0), day);
    ruler->onAddMarkers({all.front()});
    for (auto _ : state) {
        ruler->onAddMarkers(all);
        ruler->onClearMarkers();
    }
    state.SetComplexityN(state.range(0));
}

} // namespace

BENCHMARK(panAllInView)
    ->Arg(100)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(panOnePercentInView)
    ->Arg(100)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(addAndClear)
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
