// SPDX-License-Identifier: MIT
#pragma once

#include <QDeadlineTimer>
#include <QThread>

namespace Review {

/// Deletes a thread that has been told to end. One that hangs, in a file of a share that does not
/// answer, is not waited for: it is deleted when it ends, and must hold all that it uses. Called on
/// the thread of the window.
inline void leaveThread(QThread* thread)
{
    constexpr qint64 patience = 20; // milliseconds, for all that are left in a row
    static QDeadlineTimer row(0);
    static QDeadlineTimer deadline(0);
    if (row.hasExpired())
        deadline.setRemainingTime(patience);
    row.setRemainingTime(5 * patience);
    if (thread->wait(deadline)) {
        delete thread;
        return;
    }
    QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    if (thread->isFinished())
        thread->deleteLater();
}

} // namespace Review
