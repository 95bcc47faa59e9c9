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

    /// Of all files, in bytes.
    void setTotal(qint64 bytes) { m_total = bytes; }
    void add(qint64 bytes) { m_done += bytes; }
    /// From 0 to 100.
    int percent() const { return m_total > 0 ? int(m_done * 100 / m_total) : 0; }

private:
    std::atomic<bool> m_cancelled = false;
    std::atomic<qint64> m_total = 0;
    std::atomic<qint64> m_done = 0;
};

} // namespace Review
