// SPDX-License-Identifier: MIT
#include "picturetimes.h"

#include <algorithm>

using CorvelGui::TimeSpan;

namespace Review {

PictureTimes::PictureTimes(const TimeSpan& range, qint64 interval)
    : PictureTimes(range, interval, {range})
{}

PictureTimes::PictureTimes(const TimeSpan& range, qint64 interval, const QList<TimeSpan>& recorded)
    : m_interval(interval)
{
    qint64 earliest = range.begin;
    for (const TimeSpan& span : recorded) {
        const qint64 begin = std::max(span.begin, earliest);
        const qint64 end = std::min(span.end, range.end);
        if (begin >= end)
            continue;
        const qint64 count = (end - begin - 1) / interval + 1;
        m_runs.append({begin, count});
        m_count += count;
        earliest = begin + count * interval;
    }
}

QList<qint64> PictureTimes::all() const
{
    QList<qint64> times;
    times.reserve(m_count);
    for (const Run& run : m_runs) {
        for (qint64 i = 0; i < run.count; ++i)
            times.append(run.begin + i * m_interval);
    }
    return times;
}

} // namespace Review
