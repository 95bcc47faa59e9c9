// SPDX-License-Identifier: MIT
// Building the segments that are seen in a view of 1920 pixels out of more and more recorded spans.

#include "timescale.h"
#include "tracksegments.h"

#include <benchmark/benchmark.h>

using namespace CorvelGui;

namespace {

constexpr qint64 begin = 1'772'409'600'000;

TimeSpans spans(qint64 count)
{
    // Fills nine tenths of every second.
    TimeSpans result;
    result.reserve(size_t(count));
    for (qint64 i = 0; i < count; ++i)
        result.push_back({begin + i * 1000, begin + i * 1000 + 900});
    return result;
}

TimeScale scaleOver(qint64 msecs)
{
    TimeScale scale;
    scale.setWidth(1920);
    scale.setTimeZone(QTimeZone::utc());
    scale.setTimeLimits(quint64(begin), quint64(begin + msecs));
    scale.changeLevel(TimeScale::wholeRangeLevel, 0.0);
    return scale;
}

/// All spans in view, so that most columns show many of them.
void wholePeriod(benchmark::State& state)
{
    const TimeSpans recorded = spans(state.range(0));
    const TimeScale scale = scaleOver(state.range(0) * 1000);
    for (auto _ : state)
        benchmark::DoNotOptimize(visibleSegments(recorded, scale));
}

/// A view of 20 minutes in the middle.
void closestLevel(benchmark::State& state)
{
    const TimeSpans recorded = spans(state.range(0));
    TimeScale scale = scaleOver(std::max<qint64>(state.range(0) * 1000, 1'200'000));
    scale.changeLevel(0, 0.5);
    scale.centerOnPosition(0.5);
    for (auto _ : state)
        benchmark::DoNotOptimize(visibleSegments(recorded, scale));
}

} // namespace

BENCHMARK(wholePeriod)->Arg(100)->Arg(10'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);
BENCHMARK(closestLevel)->Arg(100)->Arg(10'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
