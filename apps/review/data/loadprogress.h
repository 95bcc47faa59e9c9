#pragma once

#include <QtGlobal>

#include <atomic>

namespace Review {

/// How far a load has come. The thread that loads writes it; any other reads it and may end the
/// load.
class LoadProgress
{
public:
    void cancel() { m_cancelled = true; }
    bool isCancelled() const { return m_cancelled; }
    const std::atomic<bool>& cancelled() const { return m_cancelled; }

    /// Begins anew, with as many steps before it: bytes, or files.
    void setTotal(qint64 steps)
    {
        m_done = 0;
        m_total = steps;
    }
    void add(qint64 steps) { m_done += steps; }
    /// From 0 to 100.
    int percent() const { return m_total > 0 ? int(m_done * 100 / m_total) : 0; }

private:
    std::atomic<bool> m_cancelled = false;
    std::atomic<qint64> m_total = 0;
    std::atomic<qint64> m_done = 0;
};

} // namespace Review
