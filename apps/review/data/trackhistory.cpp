// SPDX-License-Identifier: MIT
#include "trackhistory.h"

#include <algorithm>

using CorvelGui::TimeSpan;
using CorvelGui::TrackDescription;

namespace Review {

namespace {

/// @p spans are sorted, without overlaps.
bool covers(const QList<TimeSpan>& spans, qint64 msecs)
{
    const auto next = std::ranges::upper_bound(spans, msecs, {}, &TimeSpan::begin);
    return next != spans.begin() && msecs < std::prev(next)->end;
}

} // namespace

TrackHistory::TrackHistory(const TrackDescription& track)
    : m_known{.begin = track.begin, .end = track.end}
    , m_recorded(TimeSpan::joined(track.recorded))
    , m_loading(TimeSpan::joined(track.loading))
{
    if (!m_recorded.isEmpty()) {
        m_known.begin = std::min(m_known.begin, m_recorded.first().begin);
        m_known.end = std::max(m_known.end, m_recorded.last().end);
    }
}

TrackState TrackHistory::stateAt(qint64 msecs) const
{
    if (covers(m_recorded, msecs))
        return TrackState::Recorded;
    if (covers(m_loading, msecs))
        return TrackState::Loading;
    return m_known.begin <= msecs && msecs < m_known.end ? TrackState::Gap
                                                         : TrackState::NothingKnown;
}

std::optional<TimeSpan> TrackHistory::nextRecording(qint64 msecs) const
{
    const auto next = std::ranges::upper_bound(m_recorded, msecs, {}, &TimeSpan::begin);
    return next == m_recorded.end() ? std::nullopt : std::optional(*next);
}

qint64 TrackHistory::recordedTime() const
{
    qint64 total = 0;
    for (const TimeSpan& span : m_recorded)
        total += span.end - span.begin;
    return total;
}

} // namespace Review
