// SPDX-License-Identifier: MIT
// What a picture of a clip costs: one after the other, back, at random, and for several cameras at
// once.

#include "measure.h"
#include "movingclip.h"
#include "video/clip.h"

#include <QElapsedTimer>
#include <QRandomGenerator>

#include <algorithm>
#include <thread>

using namespace Review;

namespace {

constexpr int frameLength = MovingClip::frameLength;
/// Of decoded pictures, for all cameras together, as in the client.
constexpr qint64 shownBytes = qint64(256) << 20;
const std::atomic<bool> goesOn = false;

const MovingClip& clipOf(std::int64_t height)
{
    static const MovingClip small(QSize(640, 360), 1'000);
    static const MovingClip large(QSize(1920, 1080), 300);
    return height == large.size().height() ? large : small;
}

std::unique_ptr<Clip> openClip(const MovingClip& clip, qint64 cacheBytes)
{
    QString fault;
    return Clip::open(clip.path(), cacheBytes, goesOn, fault);
}

qint64 instantOf(int number)
{
    return qint64(number) * frameLength + frameLength / 2;
}

enum Way { Sequential, Back, Random };

/// @p state's arguments are a Way and the height of the pictures. The ratio is that to sequential
/// decoding of the same clip. One step back after the other is what plays in reverse.
void picture(benchmark::State& state)
{
    const MovingClip& written = clipOf(state.range(1));
    const int count = written.count();
    // Of 64 pictures, as the decoder makes them.
    const qint64 cacheBytes = qint64(64) * written.size().width() * written.size().height() * 3 / 2;
    const std::unique_ptr<Clip> clip = openClip(written, cacheBytes);
    if (!clip)
        return state.SkipWithError("The clip cannot be opened.");
    QRandomGenerator random(7);
    std::vector<double> times;
    int number = 0;
    RatioTimer ratio(state, Sequential);
    for (auto _ : state) {
        if (state.range(0) == Random)
            number = random.bounded(count);
        else
            number = (number + (state.range(0) == Back ? count - 1 : 1)) % count;
        QElapsedTimer timer;
        timer.start();
        benchmark::DoNotOptimize(clip->pictureAt(instantOf(number)));
        times.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    ratio.stop();
    std::ranges::sort(times);
    state.counters["median_ms"] = times[times.size() / 2];
    state.counters["p95_ms"] = times[times.size() * 95 / 100];
}

/// So many cameras at once, a thread each, 250 pictures forwards of each; they share a cache of the
/// client's size. The ratio is that of the processor time.
void cameras(benchmark::State& state)
{
    constexpr int pictures = 250;
    const MovingClip& written = clipOf(state.range(1));
    const qint64 cacheBytes = shownBytes / state.range(0);
    const auto play = [&written, cacheBytes] {
        const std::unique_ptr<Clip> clip = openClip(written, cacheBytes);
        for (int i = 0; i < pictures; ++i)
            benchmark::DoNotOptimize(clip->pictureAt(instantOf(i)));
    };
    const MemoryGrowth memory;
    RatioTimer ratio(state, 1);
    for (auto _ : state) {
        std::vector<std::thread> threads;
        for (int i = 0; i < state.range(0); ++i)
            threads.emplace_back(play);
        for (std::thread& thread : threads)
            thread.join();
    }
    ratio.stop();
    state.counters["pictures/s"] =
        benchmark::Counter(double(state.range(0)) * pictures * double(state.iterations()),
                           benchmark::Counter::kIsRate);
    state.counters["MB"] = memory.peak() / 1e6;
}

BENCHMARK(picture)
    ->ArgsProduct({{Sequential, Back, Random}, {360}})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1'000);
BENCHMARK(picture)
    ->ArgsProduct({{Sequential, Back, Random}, {1080}})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(300);
BENCHMARK(cameras)
    ->ArgsProduct({{1, 4, 16}, {360, 1080}})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3)
    ->UseRealTime();

} // namespace

BENCHMARK_MAIN();
