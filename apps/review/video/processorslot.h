// SPDX-License-Identifier: MIT
#pragma once

#include <QSemaphore>
#include <QThread>

#include <algorithm>

namespace Review {

/// Held by a thread while it decodes. However many cameras are shown, one processor is left to the
/// window. Lower priorities would not do: the window shares locks, those of the allocator above
/// all, with threads that would then not get on. Never held while a file is read, which may take
/// for ever.
class ProcessorSlot
{
public:
    ProcessorSlot() { free().acquire(); }
    ~ProcessorSlot() { free().release(); }
    Q_DISABLE_COPY_MOVE(ProcessorSlot)

private:
    static QSemaphore& free()
    {
        // It stays: a thread that was given up may outlive the program's statics.
        static auto* const free = new QSemaphore(std::max(1, QThread::idealThreadCount() - 1));
        return *free;
    }
};

} // namespace Review
