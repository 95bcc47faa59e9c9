#include "trackhistory.h"

#include <algorithm>

using CorvelGui::TimeSpan;
using CorvelGui::TrackDescription;

namespace Review {

TrackHistory::TrackHistory(const TrackDescription& track)
    : m_known{.begin = track.begin, .end = track.end}, m_recorded(TimeSpan::joined(track.recorded))
{
    if (!m_recorded.isEmpty()) {
        m_known.begin = std::min(m_known.begin, m_recorded.first().begin);
        m_known.end = std::max(m_known.end, m_recorded.last().end);
    }
}

TrackState TrackHistory::stateAt(qint64 msecs) const
{
    const auto next = std::partition_point(m_recorded.begin(), m_recorded.end(),
                                           [msecs](const TimeSpan& s) { return s.begin <= msecs; });
    if (next != m_recorded.begin() && msecs < std::prev(next)->end)
        return TrackState::Recorded;
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
