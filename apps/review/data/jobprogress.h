// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <atomic>

namespace Review {

/// How far a load or an export has come. The thread that works writes it; any other reads it and
/// may end the work.
class JobProgress
{
public:
    void cancel() { m_cancelled = true; }
    bool isCancelled() const { return m_cancelled; }
    const std::atomic<bool>& cancelled() const { return m_cancelled; }

    /// Begins anew, with as many steps before it: bytes, files or milliseconds.
    void setTotal(qint64 steps)
    {
        m_done = 0;
        m_total = steps;
    }
    void add(qint64 steps) { m_done += steps; }
    /// From 0 to 100.
    int percent() const { return int(partOf(100)); }
    /// As much of @p whole as is done.
    qint64 partOf(qint64 whole) const { return m_total > 0 ? m_done * whole / m_total : 0; }

private:
    std::atomic<bool> m_cancelled = false;
    std::atomic<qint64> m_total = 0;
    std::atomic<qint64> m_done = 0;
};

} // namespace Review
