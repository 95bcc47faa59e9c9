// SPDX-License-Identifier: MIT
#include "taskbarprogress.h"

#include "base/logging.h"
#include "taskbarbackend.h"

#include <QPlatformSurfaceEvent>
#include <QPointer>
#include <QWindow>

#include <utility>

namespace CorvelGui {

namespace {

constexpr qint64 completeValue = 1000;

void warnOfFailure(const char* operation, long result)
{
    if (result < 0)
        qCWarning(progressLog, "TaskbarProgressImpl: %s failed with error 0x%08lx", operation,
                  static_cast<unsigned long>(result) & 0xFFFFFFFFUL);
}

} // namespace

struct TaskbarProgress::Private
{
    TaskbarBackend::State state() const
    {
        using State = TaskbarBackend::State;
        if (!visible)
            return State::NoProgress;
        if (stopped)
            return State::Error;
        if (paused)
            return State::Paused;
        return minimum == 0 && maximum == 0 ? State::Indeterminate : State::Normal;
    }

    std::unique_ptr<TaskbarBackend> taskbar;
    QPointer<QWindow> window;
    WId handle = 0;
    // The button of this window got the state before.
    bool pushed = false;

    int minimum = 0;
    int maximum = 0;
    int value = 0;
    bool visible = false;
    bool paused = false;
    bool stopped = false;
};

TaskbarProgress::TaskbarProgress(QObject* parent)
    : TaskbarProgress(TaskbarBackend::create(), parent)
{}

TaskbarProgress::TaskbarProgress(std::unique_ptr<TaskbarBackend> backend, QObject* parent)
    : QObject(parent), d(std::make_unique<Private>())
{
    d->taskbar = std::move(backend);
    if (d->taskbar) {
        d->taskbar->buttonCreated = [this](WId window) {
            if (window == d->handle && d->pushed)
                push();
        };
    }
}

TaskbarProgress::~TaskbarProgress()
{
    forgetWindow(); // which may go before this is gone altogether
}

void TaskbarProgress::setWindow(QWindow* window)
{
    forgetWindow();
    if (!window)
        return;
    d->window = window;
    d->handle = window->winId();
    window->installEventFilter(this);
    connect(window, &QObject::destroyed, this, &TaskbarProgress::forgetWindow);
}

QWindow* TaskbarProgress::window() const
{
    return d->window;
}

void TaskbarProgress::forgetWindow()
{
    if (d->window) {
        d->window->removeEventFilter(this);
        disconnect(d->window, nullptr, this, nullptr);
    }
    d->window = nullptr;
    d->handle = 0;
    d->pushed = false;
}

bool TaskbarProgress::eventFilter(QObject* watched, QEvent* event)
{
    // Windows gives a handle that is free again to another window.
    if (watched == d->window && event->type() == QEvent::PlatformSurface) {
        const auto type = static_cast<QPlatformSurfaceEvent*>(event)->surfaceEventType();
        d->handle = type == QPlatformSurfaceEvent::SurfaceCreated ? d->window->winId() : WId(0);
    }
    return QObject::eventFilter(watched, event);
}

bool TaskbarProgress::isVisible() const
{
    return d->visible;
}

int TaskbarProgress::minimum() const
{
    return d->minimum;
}

int TaskbarProgress::maximum() const
{
    return d->maximum;
}

int TaskbarProgress::value() const
{
    return d->value;
}

bool TaskbarProgress::isPaused() const
{
    return d->paused;
}

bool TaskbarProgress::isStopped() const
{
    return d->stopped;
}

void TaskbarProgress::show()
{
    setVisible(true);
}

void TaskbarProgress::hide()
{
    setVisible(false);
}

// The setters push also what has not changed: the first one after setWindow() must show the state.
void TaskbarProgress::setVisible(bool visible)
{
    d->visible = visible;
    push();
}

void TaskbarProgress::setRange(int minimum, int maximum)
{
    d->minimum = minimum;
    d->maximum = maximum;
    push();
}

void TaskbarProgress::setMinimum(int minimum)
{
    d->minimum = minimum;
    push();
}

void TaskbarProgress::setMaximum(int maximum)
{
    d->maximum = maximum;
    push();
}

void TaskbarProgress::setValue(int value)
{
    d->value = value;
    push();
}

void TaskbarProgress::pause()
{
    setPaused(true);
}

void TaskbarProgress::resume()
{
    setPaused(false);
}

void TaskbarProgress::setPaused(bool paused)
{
    d->paused = paused;
    push();
}

void TaskbarProgress::stop()
{
    d->stopped = true;
    push();
}

void TaskbarProgress::push()
{
    if (!d->taskbar || !d->handle)
        return;
    d->pushed = true;
    const qint64 range = qint64(d->maximum) - d->minimum;
    if (range > 0) {
        const float completed = float(qint64(d->value) - d->minimum) / float(range);
        warnOfFailure("SetProgressValue",
                      d->taskbar->setProgressValue(
                          d->handle, qint64(completed * float(completeValue)), completeValue));
    }
    warnOfFailure("SetProgressState", d->taskbar->setProgressState(d->handle, d->state()));
}

} // namespace CorvelGui
