// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QtGlobal>
#include <qwindowdefs.h>

#include <functional>
#include <memory>

namespace CorvelGui {

/// What TaskbarProgress needs of the shell. Results are codes of the shell; negative ones are
/// failures.
class TaskbarBackend
{
public:
    enum class State { NoProgress, Indeterminate, Normal, Error, Paused };

    virtual ~TaskbarBackend() = default;

    virtual long setProgressValue(WId window, qint64 completed, qint64 total) = 0;
    virtual long setProgressState(WId window, State state) = 0;

    /// Called when the shell made the taskbar button of that window, for the first time or anew
    /// because the shell restarted; sometimes twice for one. A new button shows no progress.
    std::function<void(WId window)> buttonCreated;

    /// The shell of this machine; null, after a warning where one was to be expected, if there is
    /// none.
    CORVELGUI_INTERNAL_EXPORT static std::unique_ptr<TaskbarBackend> create();
};

} // namespace CorvelGui
