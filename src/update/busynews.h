// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaObject>

namespace CorvelGui {

/// Emits busyChanged() of @p worker from the event loop, if it is no longer as busy as @p told says
/// by then: what begins again at once is no news. @p told lives as long as the worker.
template <typename Worker>
void tellBusyLater(Worker* worker, bool* told)
{
    const auto tell = [worker, told] {
        const bool busy = worker->isBusy();
        if (busy == *told)
            return;
        *told = busy;
        Q_EMIT worker->busyChanged(busy);
    };
    QMetaObject::invokeMethod(worker, tell, Qt::QueuedConnection);
}

} // namespace CorvelGui
