// SPDX-License-Identifier: MIT
#include "taskbarbackend.h"

#include "base/logging.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>

#include <qt_windows.h>
#include <shobjidl.h>

#include <algorithm>

namespace CorvelGui {

namespace {

constexpr CLSID taskbarListClass = {
    0x56FDF344, 0xFD6D, 0x11D0, {0x95, 0x8A, 0x00, 0x60, 0x97, 0xC9, 0xA0, 0x90}};
constexpr IID taskbarList3Interface = {
    0xEA1AFB91, 0x9E28, 0x4B86, {0x90, 0xE9, 0x9E, 0x9F, 0x8A, 0x5E, 0xEF, 0xAF}};

TBPFLAG shellState(TaskbarBackend::State state)
{
    switch (state) {
    case TaskbarBackend::State::Indeterminate:
        return TBPF_INDETERMINATE;
    case TaskbarBackend::State::Normal:
        return TBPF_NORMAL;
    case TaskbarBackend::State::Error:
        return TBPF_ERROR;
    case TaskbarBackend::State::Paused:
        return TBPF_PAUSED;
    case TaskbarBackend::State::NoProgress:
        break;
    }
    return TBPF_NOPROGRESS;
}

HWND handle(WId window)
{
    return reinterpret_cast<HWND>(window);
}

class ShellTaskbar : public TaskbarBackend, public QAbstractNativeEventFilter
{
public:
    explicit ShellTaskbar(ITaskbarList3* taskbar)
        : m_taskbar(taskbar), m_buttonCreated(RegisterWindowMessageW(L"TaskbarButtonCreated"))
    {
        if (QCoreApplication* application = QCoreApplication::instance())
            application->installNativeEventFilter(this);
    }

    // The button keeps what it shows.
    ~ShellTaskbar() override { m_taskbar->Release(); }

    long setProgressValue(WId window, qint64 completed, qint64 total) override
    {
        return m_taskbar->SetProgressValue(
            handle(window), ULONGLONG(std::max<qint64>(completed, 0)), ULONGLONG(total));
    }

    long setProgressState(WId window, State state) override
    {
        return m_taskbar->SetProgressState(handle(window), shellState(state));
    }

    bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override
    {
        const auto* msg = static_cast<const MSG*>(message);
        if (msg->message == m_buttonCreated && buttonCreated)
            buttonCreated(WId(msg->hwnd));
        return false;
    }

private:
    Q_DISABLE_COPY_MOVE(ShellTaskbar)

    ITaskbarList3* const m_taskbar;
    const UINT m_buttonCreated;
};

} // namespace

std::unique_ptr<TaskbarBackend> TaskbarBackend::create()
{
    ITaskbarList3* taskbar = nullptr;
    HRESULT result = CoCreateInstance(taskbarListClass, nullptr, CLSCTX_INPROC_SERVER,
                                      taskbarList3Interface, reinterpret_cast<void**>(&taskbar));
    if (FAILED(result)) {
        qCWarning(progressLog,
                  "TaskbarProgressImpl: Creating ITaskbarList3 failed with error 0x%08lx",
                  static_cast<unsigned long>(result));
        return nullptr;
    }
    result = taskbar->HrInit();
    if (FAILED(result)) {
        taskbar->Release();
        qCWarning(progressLog,
                  "TaskbarProgressImpl: Initializing ITaskbarList3 failed with error 0x%08lx",
                  static_cast<unsigned long>(result));
        return nullptr;
    }
    return std::make_unique<ShellTaskbar>(taskbar);
}

} // namespace CorvelGui
