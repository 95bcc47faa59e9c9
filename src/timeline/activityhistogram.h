// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"
#include "timelineactivity.h"
#include "timespans.h"

namespace CorvelGui {

/// Sorts instants and spans into the columns of a period.
class CORVELGUI_INTERNAL_EXPORT ActivityHistogram
{
public:
    /// Without a period or columns, nothing is counted.
    ActivityHistogram(const TimeSpan& period, int columns);

    /// Counts an event, unless it is outside the period. Both ends of the period belong to it. The
    /// cost is least when one event follows the other.
    void add(qint64 msecs, RulerMarker::Severity severity);
    /// Notes what is known of the columns that @p spans touch, in the order of what it is.
    void cover(const TimeSpans& spans, TimelineActivity::Recording recording);

    TimelineActivity take() { return std::move(m_activity); }

private:
    qint64 beginOf(qint64 column) const;
    bool isExact(qint64 column) const;
    qint64 columnOf(qint64 msecs) const;

    const TimeSpan m_period;
    const qint64 m_columns;
    TimelineActivity m_activity;
    // The column of the last event.
    TimelineActivity::Column* m_column = nullptr;
    TimeSpan m_ofColumn;
};

} // namespace CorvelGui
