// SPDX-License-Identifier: MIT
#include "activityhistogram.h"

#include <algorithm>

namespace CorvelGui {

ActivityHistogram::ActivityHistogram(const TimeSpan& period, int columns)
    : m_period(period), m_columns(period.isEmpty() ? 0 : std::max(columns, 0))
{
    m_activity.columns.resize(std::size_t(m_columns));
}

void ActivityHistogram::add(qint64 msecs, RulerMarker::Severity severity)
{
    if (m_columns == 0 || msecs < m_period.begin || msecs > m_period.end)
        return;
    if (!m_column || msecs < m_ofColumn.begin || msecs >= m_ofColumn.end) {
        const qint64 column = columnOf(msecs);
        m_column = &m_activity.columns[std::size_t(column)];
        m_ofColumn = {beginOf(column), beginOf(column + 1)};
    }
    ++m_column->events[std::size_t(severity)];
}

void ActivityHistogram::cover(const TimeSpans& spans, TimelineActivity::Recording recording)
{
    if (m_columns == 0)
        return;
    for (const TimeSpan& span : spans) {
        if (span.isEmpty() || span.end <= m_period.begin || span.begin >= m_period.end)
            continue;
        const qint64 first = columnOf(std::max(span.begin, m_period.begin));
        const qint64 end = std::min(span.end, m_period.end);
        qint64 last = columnOf(end);
        if (beginOf(last) == end && isExact(last))
            --last; // begins where the span ends
        for (qint64 column = first; column <= last; ++column) {
            auto& known = m_activity.columns[std::size_t(column)].recording;
            known = std::max(known, recording);
        }
    }
}

// The least instant of a column, in two parts, because the product may not fit into 64 bits.
qint64 ActivityHistogram::beginOf(qint64 column) const
{
    const qint64 duration = m_period.end - m_period.begin;
    const qint64 rest = duration % m_columns * column;
    return m_period.begin + duration / m_columns * column + (rest + m_columns - 1) / m_columns;
}

// Whether it begins with a whole millisecond.
bool ActivityHistogram::isExact(qint64 column) const
{
    return (m_period.end - m_period.begin) % m_columns * column % m_columns == 0;
}

qint64 ActivityHistogram::columnOf(qint64 msecs) const
{
    const double fraction = double(msecs - m_period.begin) / double(m_period.end - m_period.begin);
    auto column = std::clamp<qint64>(qint64(fraction * double(m_columns)), 0, m_columns - 1);
    // What is left are rounding errors.
    while (column > 0 && msecs < beginOf(column))
        --column;
    while (column < m_columns - 1 && msecs >= beginOf(column + 1))
        ++column;
    return column;
}

} // namespace CorvelGui
