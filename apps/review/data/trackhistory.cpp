#include "trackhistory.h"

#include <algorithm>
#include <utility>

using CorvelGui::TimeSpan;
using CorvelGui::TrackDescription;

namespace Review {

namespace {

/// Whether they are sorted, none empty, with a gap between any two.
bool areApart(const QList<TimeSpan>& spans)
{
    const TimeSpan* before = nullptr;
    for (const TimeSpan& span : spans) {
        if (span.isEmpty() || (before && span.begin <= before->end))
            return false;
        before = &span;
    }
    return true;
}

QList<TimeSpan> joinedSpans(QList<TimeSpan> spans)
{
    std::ranges::sort(spans, {}, &TimeSpan::begin);
    QList<TimeSpan> joined;
    for (const TimeSpan& span : std::as_const(spans)) {
        if (span.isEmpty())
            continue;
        if (joined.isEmpty() || span.begin > joined.last().end)
            joined.append(span);
        else
            joined.last().end = std::max(joined.last().end, span.end);
    }
    return joined;
}

} // namespace

TrackHistory::TrackHistory(const TrackDescription& track)
    : m_known{.begin = track.begin, .end = track.end} // Mostly they are, and shared then.
    , m_recorded(areApart(track.recorded) ? track.recorded : joinedSpans(track.recorded))
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
