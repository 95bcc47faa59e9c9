// SPDX-License-Identifier: MIT
// A player without pictures: the playbar moves a moment through a day, the read-out shows it, and a
// click on the read-out jumps.
#include <CorvelGui/PMainWindow>
#include <CorvelGui/PPlaybar>
#include <CorvelGui/TarvoDateTimeView>

#include <QApplication>
#include <QElapsedTimer>
#include <QTimeZone>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

using namespace CorvelGui;

constexpr qint64 dayBegin = 1'774'306'800'000; // a Tuesday, 0:00 in Brussels
constexpr qint64 dayEnd = dayBegin + 24 * 3'600'000;
constexpr qint64 frame = 40; // milliseconds

int main(int argc, char** argv)
{
    QApplication app(argc, argv);

    PMainWindow window;
    window.setWindowTitle("Player");
    window.createDarkFusionStyle(true);
    auto* view = new TarvoDateTimeView;
    auto* bar = new PPlaybar;
    bar->setIconSize({24, 24});
    bar->setShortcut(PPlaybar::PlayButton, Qt::Key_L);
    bar->setShortcut(PPlaybar::PauseButton, Qt::Key_K);
    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    layout->addWidget(view);
    layout->addWidget(bar);
    window.setCentralWidget(content);

    const QTimeZone zone("Europe/Brussels");
    const auto time = [=](qint64 msecs) {
        return QDateTime::fromMSecsSinceEpoch(msecs, zone);
    };
    double moment = dayBegin + 8.5 * 3'600'000;
    double rate = 0;
    // The direction is in the state, the factor in the speed. A new state brings its own speed.
    const auto takeRate = [&] {
        const double factor = PPlaybar::playbackSpeedToFloat(bar->playbackSpeed());
        rate = bar->playbackState() < PPlaybar::Pause ? -factor : factor;
    };
    const auto show = [&](double msecs) {
        moment = std::clamp(msecs, double(dayBegin), double(dayEnd));
        view->updateDateTime(time(qint64(moment)));
        if (moment != msecs) {
            bar->setPlaybackState(PPlaybar::Pause); // silent, as all setters
            takeRate();
        }
    };
    show(moment);

    QObject::connect(bar, &PPlaybar::playbackStateChanged, view, takeRate);
    QObject::connect(bar, &PPlaybar::playbackSpeedChanged, view, takeRate);
    QObject::connect(bar, &PPlaybar::frameForwardClicked, view, [&] { show(moment + frame); });
    QObject::connect(bar, &PPlaybar::frameBackwardClicked, view, [&] { show(moment - frame); });
    QObject::connect(bar, &PPlaybar::trackStartClicked, view, [&] { show(dayBegin); });
    QObject::connect(bar, &PPlaybar::trackEndClicked, view, [&] { show(dayEnd); });

    view->setJumpLimits(time(dayBegin), time(dayEnd));
    QObject::connect(view, &TarvoDateTimeView::jumoToTime, bar,
                     [&](const QDateTime& chosen) { show(double(chosen.toMSecsSinceEpoch())); });

    QElapsedTimer clock;
    clock.start();
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, view,
                     [&] { show(moment + rate * double(clock.restart())); });
    timer.start(int(frame));

    window.show();
    return app.exec();
}
