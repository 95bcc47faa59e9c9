// SPDX-License-Identifier: MIT
// Repainting a ruler of 1920 pixels at every zoom level, with recordings in view.

#include <CorvelGui/Ruler>

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

namespace {

constexpr qint64 hour = 3'600'000;
constexpr qint64 period = 60 * 24 * hour;
constexpr qint64 begin = 1'772'409'600'000;

CorvelGui::TrackDescription hourlyRecordings()
{
    CorvelGui::TrackDescription track{{}, {}, begin, begin + period, {}};
    for (qint64 time = begin; time < begin + period; time += hour)
        track.recorded.append({time, time + hour / 3});
    return track;
}

void repaint(benchmark::State& state)
{
    CorvelGui::Ruler ruler;
    ruler.resize(1920, 60);
    ruler.show();
    ruler.setTimeZone(QStringLiteral("Europe/Berlin"));
    ruler.setActive(true, false);
    ruler.setTrackDescriptions({hourlyRecordings()});
    ruler.setTimeLimits(quint64(begin), quint64(begin + period));
    // The period contains the change to summer time; the view is in its middle.
    ruler.onTimelineOffsetChanged(0.5);
    ruler.changeLevel(int(state.range(0)), 0.5);

    QImage image(ruler.size(), QImage::Format_RGB32);
    for (auto _ : state) {
        ruler.render(&image);
        benchmark::DoNotOptimize(image.constBits());
    }
}

} // namespace

BENCHMARK(repaint)->DenseRange(0, 8)->ArgName("level")->Unit(benchmark::kMicrosecond);

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
