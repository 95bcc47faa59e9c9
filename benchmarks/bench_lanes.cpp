// SPDX-License-Identifier: MIT
// A step of a drag of a timeline with 300 lanes of 10 000 recordings each and a million events,
// compared with that of a bare ruler.

#include "measure.h"

#include <CorvelGui/Ruler>
#include <CorvelGui/TimelineLanes>
#include <CorvelGui/ZoomTimeline>

#include <QApplication>
#include <QMouseEvent>
#include <QRandomGenerator>
#include <QTimeZone>

#include <benchmark/benchmark.h>

#include <memory>

using namespace CorvelGui;

namespace {

constexpr qint64 begin = 1'772'409'600'000;
constexpr qint64 minute = 60'000;
constexpr qint64 period = 60 * 24 * 60 * minute;
constexpr int tracks = 300;
constexpr int spansPerTrack = 10'000;
constexpr int events = 1'000'000;

/// What there is beside the ruler; each has what those before it have.
enum Parts { Bare, Timeline, Tracks, Lanes, Markers, Details, Activity };
constexpr const char* partNames[] = {"bare ruler",       "bare timeline",    "+ 300 tracks",
                                     "+ 8 of 300 lanes", "+ million events", "+ their details",
                                     "+ activity"};

QList<TrackDescription> descriptions()
{
    QRandomGenerator random(1);
    constexpr qint64 step = period / spansPerTrack;
    QList<TrackDescription> all;
    for (int i = 0; i < tracks; ++i) {
        TrackDescription track{
            QString::number(i), QStringLiteral("Camera %1").arg(i), begin, begin + period, {}};
        track.recorded.reserve(spansPerTrack);
        for (qint64 time = begin; time < begin + period; time += step)
            track.recorded.append({time, time + step / 10 + random.bounded(int(step / 2))});
        all.append(track);
    }
    return all;
}

QList<RulerMarker> markers()
{
    QRandomGenerator random(2);
    QList<RulerMarker> all;
    all.reserve(events);
    for (int i = 0; i < events; ++i)
        all.append({.time = QDateTime::fromMSecsSinceEpoch(
                        begin + qint64(random.bounded(double(period))), QTimeZone::utc()),
                    .duration = i % 3 == 0 ? random.bounded(int(10 * minute)) : 0,
                    .severity = RulerMarker::Severity(random.bounded(4))});
    return all;
}

std::unique_ptr<QWidget> createRuler()
{
    auto ruler = std::make_unique<Ruler>();
    ruler->setTimeZone(QStringLiteral("UTC"));
    ruler->setActive(true, false);
    ruler->setTimeLimits(quint64(begin - period), quint64(begin + 2 * period));
    ruler->resize(1920, ruler->maximumHeight());
    return ruler;
}

std::unique_ptr<QWidget> createTimeline(Parts parts)
{
    auto timeline = std::make_unique<ZoomTimeline>();
    Ruler* ruler = timeline->ruler();
    timeline->setTimeZone(QStringLiteral("UTC"));
    timeline->setActive(true, false);
    timeline->setTimeLimits(quint64(begin - period), quint64(begin + 2 * period));
    if (parts >= Tracks)
        ruler->setTrackDescriptions(descriptions());
    timeline->setLanesVisible(parts >= Lanes);
    if (parts >= Markers)
        ruler->onAddMarkers(markers());
    ruler->setMarkerDetails(parts >= Details);
    timeline->setActivityVisible(parts >= Activity);
    timeline->resize(1920, 400);
    timeline->show();
    QCoreApplication::processEvents();
    timeline->resize(2 * 1920 - ruler->width(), 400); // the ruler is as wide in each
    return timeline;
}

void sendMouse(Ruler* ruler, QEvent::Type type, int x)
{
    const QPointF position(x, 30);
    QMouseEvent event(type, position, ruler->mapToGlobal(position), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(ruler, &event);
}

void drag(benchmark::State& state)
{
    const auto parts = Parts(state.range(0));
    const std::unique_ptr<QWidget> widget = parts == Bare ? createRuler() : createTimeline(parts);
    widget->show();
    auto* ruler = parts == Bare ? static_cast<Ruler*>(widget.get())
                                : static_cast<ZoomTimeline*>(widget.get())->ruler();
    const qint64 length = qint64(state.range(1)) * 60 * minute;
    const qint64 middle = begin + period / 2;
    ruler->setContinuousZoom(true);
    ruler->setView(middle - length / 2, middle + length / 2);
    QCoreApplication::processEvents();
    sendMouse(ruler, QEvent::MouseButtonPress, 900);
    int step = 0;
    RatioTimer timer(state, Bare);
    for (auto _ : state) {
        const int phase = ++step % 80;
        sendMouse(ruler, QEvent::MouseMove, 1000 + 3 * (phase < 40 ? phase : 80 - phase));
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
    }
    timer.stop();
    state.SetLabel(partNames[parts]);
}

} // namespace

BENCHMARK(drag)
    ->ArgsProduct({{Bare, Timeline, Tracks, Lanes, Markers, Details, Activity}, {24}})
    ->ArgsProduct({{Bare, Lanes, Activity}, {60 * 24}})
    ->ArgNames({"parts", "hours"})
    ->Unit(benchmark::kMicrosecond);

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
