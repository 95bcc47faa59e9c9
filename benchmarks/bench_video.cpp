// What a picture of a clip costs: one after the other, back, at random, and for several cameras at
// once.

#include "clipwriter.h"
#include "measure.h"
#include "video/clip.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <algorithm>
#include <thread>

using namespace Review;

namespace {

constexpr QSize size(640, 360);
constexpr int count = 1'000;
constexpr int frameLength = 40; // milliseconds
/// Of 64 pictures, as the decoder makes them.
constexpr qint64 cacheBytes = qint64(64) * size.width() * size.height() * 3 / 2;

const std::atomic<bool> goesOn = false;

/// H.264 where there is an encoder, with a key frame every 50 pictures.
QString clipPath()
{
    static const QTemporaryDir folder;
    static const QString path = [] {
        QString name = folder.filePath(QStringLiteral("clip.mp4"));
        for (const QByteArray& encoder : {QByteArray("libx264"), QByteArray("mpeg4")}) {
            ClipWriter writer(name, size,
                              {.encoder = encoder,
                               .framesPerSecond = 1'000 / frameLength,
                               .quantizer = encoder == "mpeg4" ? 4 : 0});
            QImage image(size, QImage::Format_RGB32);
            for (int i = 0; i < count && writer.fault().isEmpty(); ++i) {
                image.fill(QColor::fromHsv(i % 360, 90, 150));
                QPainter painter(&image);
                for (int x = 0; x < 40; ++x)
                    painter.fillRect(x * 16, (x * 53 + i * 3) % size.height(), 14, 60,
                                     QColor::fromHsv(x * 9, 200, 200));
                painter.end();
                writer.add(image);
            }
            writer.finish();
            if (writer.fault().isEmpty())
                break;
        }
        return name;
    }();
    return path;
}

std::unique_ptr<Clip> openClip()
{
    QString fault;
    return Clip::open(clipPath(), cacheBytes, goesOn, fault);
}

qint64 instantOf(int number)
{
    return qint64(number) * frameLength + frameLength / 2;
}

enum Way { Sequential, Back, Random };

/// @p state's argument is a Way. The ratio is that to sequential decoding.
void picture(benchmark::State& state)
{
    const std::unique_ptr<Clip> clip = openClip();
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

/// So many cameras at once, a thread each, 250 pictures forwards of each; the ratio is that of the
/// processor time.
void cameras(benchmark::State& state)
{
    constexpr int pictures = 250;
    const auto play = [] {
        const std::unique_ptr<Clip> clip = openClip();
        for (int i = 0; i < pictures; ++i)
            benchmark::DoNotOptimize(clip->pictureAt(instantOf(i)));
    };
    clipPath();
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
    ->Arg(Sequential)
    ->Arg(Back)
    ->Arg(Random)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(count);
BENCHMARK(cameras)
    ->Arg(1)
    ->Arg(4)
    ->Arg(16)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3)
    ->UseRealTime();

} // namespace

BENCHMARK_MAIN();
