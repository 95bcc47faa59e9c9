// SPDX-License-Identifier: MIT
// A search that takes a while: its progress in tenths of a per cent and on the taskbar button, and
// a ring over the list that has nothing to show yet.
#include <CorvelGui/BusyIndicator>
#include <CorvelGui/PFractionalProgressBar>
#include <CorvelGui/TaskbarProgress>

#include <QApplication>
#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

using namespace CorvelGui;
using namespace std::chrono_literals;

int main(int argc, char** argv)
{
    QApplication app(argc, argv);

    constexpr int steps = 1000;
    QWidget window;
    window.setWindowTitle("Search");
    window.resize(420, 320);
    auto* found = new QListWidget;
    auto* busy = new BusyIndicator(found);
    auto* bar = new PFractionalProgressBar;
    bar->setRange(0, steps);
    bar->setValue(0);
    auto* buttons = new QDialogButtonBox;
    auto* search = buttons->addButton("Search", QDialogButtonBox::ActionRole);
    auto* pause = buttons->addButton("Pause", QDialogButtonBox::ActionRole);
    pause->setCheckable(true);
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(found);
    layout->addWidget(bar);
    layout->addWidget(buttons);

    TaskbarProgress taskbar;
    taskbar.setRange(0, steps);
    QTimer work;
    const auto start = [&] {
        found->clear();
        bar->setValue(0);
        busy->setDelay(100ms); // what ends sooner does not flicker
        busy->show();
        taskbar.setWindow(window.windowHandle());
        taskbar.show();
        work.start(20);
    };
    QObject::connect(search, &QPushButton::clicked, &window, start);
    QObject::connect(pause, &QPushButton::toggled, &window, [&](bool paused) {
        taskbar.setPaused(paused);
        if (paused)
            work.stop();
        else if (bar->value() < steps)
            work.start();
    });
    QObject::connect(&work, &QTimer::timeout, &window, [&] {
        bar->setValue(bar->value() + 7);
        taskbar.setValue(bar->value());
        if (bar->value() + 7 <= steps)
            return;
        work.stop();
        bar->setValue(steps);
        taskbar.hide();
        busy->setFinished();
        found->addItems({"Motion, 8:31", "Motion, 9:12", "Gate opened, 17:00"});
    });

    window.show();
    start();
    return app.exec();
}
