#pragma once

#include <QThread>

namespace Review {

/// Deletes a thread that has been told to end. One that hangs, in a file of a share that does not
/// answer, is not waited for: it is deleted when it ends, and must hold all that it uses.
inline void leaveThread(QThread* thread)
{
    constexpr unsigned long patience = 20; // milliseconds
    if (thread->wait(patience)) {
        delete thread;
        return;
    }
    QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    if (thread->isFinished())
        thread->deleteLater();
}

} // namespace Review
