// SPDX-License-Identifier: MIT
// How long the client's window keeps an event waiting while it shows cameras.

#include "movingclip.h"
#include "playback/cameraview.h"
#include "playback/playbackpane.h"
#include "window/reviewwindow.h"

#include <CorvelGui/Ruler>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QImage>
#include <QMouseEvent>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <memory>
#include <thread>

using namespace Review;
using namespace std::chrono_literals;

namespace {

constexpr qint64 begin = 1'795'000'000'000;
constexpr qint64 clipLength = qint64(400) * MovingClip::frameLength;
constexpr int cameraCount = 16;

/// Cameras that recorded the same clip so many times, with breaks between them.
ReviewData recordings(const QString& clip, int cameras, int parts, qint64 pause)
{
    ReviewData data;
    for (int i = 0; i < cameras; ++i) {
        const QString name = QStringLiteral("Camera %1").arg(i + 1);
        CorvelGui::TrackDescription track{name, name, begin, begin + parts * (clipLength + pause)};
        for (int part = 0; part < parts; ++part) {
            const qint64 from = begin + part * (clipLength + pause);
            track.recorded.append({from, from + clipLength});
            data.files[name].append({clip, from, from + clipLength});
        }
        data.tracks.append(track);
    }
    data.sort();
    return data;
}

/// Asks the event loop of the window every few milliseconds, from a thread of its own, and keeps
/// how long it took to answer.
class Waits
{
public:
    Waits() : m_thread([this] { ask(); }) {}
    ~Waits() { stop(); }

    /// Milliseconds, the shortest first.
    const std::vector<double>& stop()
    {
        m_goesOn = false;
        if (m_thread.joinable())
            m_thread.join();
        QCoreApplication::processEvents(); // answers that are under way
        std::ranges::sort(m_waits);
        return m_waits;
    }

private:
    void ask()
    {
        while (m_goesOn) {
            QElapsedTimer timer;
            timer.start();
            QMetaObject::invokeMethod(
                qApp, [this, timer] { m_waits.push_back(double(timer.nsecsElapsed()) / 1e6); });
            std::this_thread::sleep_for(3ms);
        }
    }

    std::atomic<bool> m_goesOn = true;
    std::vector<double> m_waits; ///< of the thread of the window
    std::thread m_thread;
};

enum Doing { Rests, Plays, Switches, PlaysWhileHovered, Scrubs };

void runFor(std::chrono::milliseconds time)
{
    QEventLoop loop;
    QTimer::singleShot(time, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

std::unique_ptr<ReviewWindow> shownWindow()
{
    auto window = std::make_unique<ReviewWindow>(QStringLiteral("UTC"), true);
    window->resize(1600, 1000);
    window->show();
    runFor(1s);
    return window;
}

void sendMouse(QEvent::Type type, QWidget* target, const QPoint& place, Qt::MouseButton held)
{
    const Qt::MouseButton button = type == QEvent::MouseButtonPress ? held : Qt::NoButton;
    QMouseEvent event(type, place, target->mapToGlobal(place), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &event);
}

/// The next place of a mouse that goes to and fro over the middle of the timeline. It moves over
/// the ruler, or holds the child that it drags.
void moveMouse(CorvelGui::Ruler* ruler, QWidget* dragged, int step)
{
    const int way = ruler->width() / 2;
    const QPoint place(ruler->width() / 4 + std::abs(step * 7 % (2 * way) - way), 8);
    if (dragged)
        sendMouse(QEvent::MouseMove, dragged, dragged->mapFrom(ruler, place), Qt::LeftButton);
    else
        sendMouse(QEvent::MouseMove, ruler, place, Qt::NoButton);
}

/// @p state's arguments are a Doing and the height of the pictures.
void eventLatency(benchmark::State& state)
{
    const bool large = state.range(1) == 1080;
    const MovingClip clip(large ? QSize(1920, 1080) : QSize(640, 360), 400);
    const std::unique_ptr<ReviewWindow> window = shownWindow();
    window->setReview(recordings(clip.path(), cameraCount, 100, 0));
    auto* pane = window->findChild<PlaybackPane*>();
    pane->setShownCameras(cameraCount);
    auto* ruler = window->findChild<CorvelGui::Ruler*>();
    ruler->setView(begin, begin + 20 * clipLength);
    runFor(2s);
    if (state.range(0) != Rests && state.range(0) != Scrubs)
        window->play();
    QWidget* dragged = nullptr;
    if (state.range(0) == Scrubs) {
        dragged = ruler->childAt(int(ruler->xAt(qint64(ruler->getIndicatorMSecs()))), 8);
        sendMouse(QEvent::MouseButtonPress, dragged, dragged->rect().center(), Qt::LeftButton);
    }
    for (auto _ : state) {
        Waits waits;
        for (int step = 0; step < 500; ++step) {
            if (state.range(0) >= PlaysWhileHovered)
                moveMouse(ruler, dragged, step);
            if (state.range(0) == Switches && step % 25 == 0)
                pane->setShownCameras(step % 2 ? 1 : cameraCount);
            runFor(16ms);
        }
        const std::vector<double>& times = waits.stop();
        state.counters["median_ms"] = times[times.size() / 2];
        state.counters["p99_ms"] = times[times.size() * 99 / 100];
        state.counters["longest_ms"] = times.back();
    }
}

/// How long the window answers nobody while it takes 200 000 recordings of so many cameras.
void manyRecordings(benchmark::State& state)
{
    const MovingClip clip(QSize(640, 360), 400);
    const int cameras = int(state.range(0));
    const ReviewData review = recordings(clip.path(), cameras, 200'000 / cameras, 1'000);
    const std::unique_ptr<ReviewWindow> window = shownWindow();
    for (auto _ : state) {
        Waits waits;
        window->setReview(review);
        runFor(2s);
        state.counters["longest_ms"] = waits.stop().back();
    }
}

/// The same while it loads a folder of 200 000 pictures, and loads it again.
void manyFiles(benchmark::State& state)
{
    QTemporaryDir folder;
    const QDir camera(folder.filePath(QStringLiteral("Gate")));
    QDir().mkpath(camera.path());
    const QString first = folder.filePath(QStringLiteral("Gate/20260302_000000.jpg"));
    QImage picture(64, 36, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    picture.save(first);
    std::filesystem::path linked = first.toStdString();
    for (int second = 1; second < 200'000; ++second) {
        const QDateTime time = QDateTime({2026, 3, 2}, {0, 0}).addSecs(second);
        const QString name = time.toString(QStringLiteral("yyyyMMdd_HHmmss'.jpg'"));
        const std::filesystem::path file = camera.filePath(name).toStdString();
        if (second % 50'000 != 0) {
            std::filesystem::create_hard_link(linked, file);
        } else { // a file has no more names than that
            std::filesystem::copy_file(linked, file);
            linked = file;
        }
    }
    ReviewFiles files;
    files.footage = {folder.path()};
    files.footageFolder = folder.path();
    const std::unique_ptr<ReviewWindow> window = shownWindow();
    for (auto _ : state) {
        Waits waits;
        for (int time = 0; time < 2; ++time) {
            QEventLoop loop;
            QObject::connect(window.get(), &ReviewWindow::loaded, &loop, &QEventLoop::quit);
            window->load(files);
            loop.exec();
            do
                runFor(1s);
            while (window->isBusy());
        }
        state.counters["longest_ms"] = waits.stop().back();
    }
}

BENCHMARK(eventLatency)
    ->ArgsProduct({{Rests, Plays, Switches, PlaysWhileHovered, Scrubs}, {360, 1080}})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);
BENCHMARK(manyRecordings)->Arg(1)->Arg(16)->Arg(200)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(manyFiles)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace

int main(int argc, char** argv)
{
    QStandardPaths::setTestModeEnabled(true); // what is known of files is kept there
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
