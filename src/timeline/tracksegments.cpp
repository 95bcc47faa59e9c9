// SPDX-License-Identifier: MIT
#include "tracksegments.h"

#include "timescale.h"

#include <algorithm>
#include <cmath>

namespace CorvelGui {

namespace {

/// As std::partition_point(), for a point that is mostly close to @p first.
template <typename Predicate>
TimeSpans::const_iterator nearbyPartitionPoint(TimeSpans::const_iterator first,
                                               TimeSpans::const_iterator last,
                                               const Predicate& isBefore)
{
    for (std::ptrdiff_t step = 1; step < last - first; step *= 2) {
        if (!isBefore(*(first + step - 1)))
            return std::partition_point(first, first + step - 1, isBefore);
        first += step;
    }
    return std::partition_point(first, last, isBefore);
}

} // namespace

TrackSegmentList visibleSegments(const TimeSpans& spans, const TimeScale& scale)
{
    const double left = TimeScale::halfMargin();
    const double right = scale.sightEnd();
    TrackSegmentList segments;
    if (!scale.hasView() || right <= left)
        return segments;

    // What scale.xAt() does, with the division taken out of the search.
    const double pixels = scale.lengthPerMillisecond();
    const auto xAt = [pixels, from = scale.fineViewStart()](qint64 msecs) {
        return TimeScale::margin() + pixels * (double(msecs) - double(from.msecs) - from.fraction);
    };
    const auto endsUpTo = [&xAt](double x) {
        return [&xAt, x](const TimeSpan& span) {
            return xAt(span.end) <= x;
        };
    };
    auto span = std::partition_point(spans.begin(), spans.end(), endsUpTo(left));
    while (span != spans.end()) {
        const double start = std::max(xAt(span->begin), left);
        if (start >= right)
            break;
        const double end = std::max(std::min(xAt(span->end), right), std::floor(start) + 1);
        if (!segments.empty() && std::floor(start) <= std::floor(segments.back().end))
            segments.back().end = std::max(segments.back().end, end);
        else
            segments.push_back({start, end});
        // What ends within the last column is covered already.
        const double covered = std::floor(segments.back().end);
        span = nearbyPartitionPoint(std::next(span), spans.end(), endsUpTo(covered));
    }
    return segments;
}

void TrackSegments::setTracks(const QList<TrackDescription>& tracks)
{
    m_tracks.clear();
    TimeSpans described;
    TimeSpans recorded;
    for (const TrackDescription& track : tracks) {
        m_tracks.insert(track.identifier);
        described.push_back({track.begin, track.end});
        recorded.insert(recorded.end(), track.recorded.begin(), track.recorded.end());
    }
    m_recordedSpans = joined(std::move(recorded));
    m_described = joined(std::move(described));
    // Mostly none are.
    const TimeSpans notDescribed = difference(m_recordedSpans, m_described);
    m_described.insert(m_described.end(), notDescribed.begin(), notDescribed.end());
    m_described = joined(std::move(m_described));
    m_gapSpans = difference(m_described, m_recordedSpans);
}

bool TrackSegments::addRecorded(const QString& track, const QList<TimeSpan>& spans)
{
    if (!m_tracks.contains(track))
        return false;
    for (const TimeSpan& span : spans) {
        unite(m_recordedSpans, span);
        unite(m_described, span);
        subtract(m_gapSpans, span);
    }
    return true;
}

bool TrackSegments::isTrackLimitChanged(const TimeScale& scale) const
{
    return hasTracks() && (scale.beginLimitMs() < m_described.front().begin ||
                           m_described.back().end < scale.endLimitMs());
}

void TrackSegments::update(const TimeScale& scale)
{
    m_gaps = visibleSegments(m_gapSpans, scale);
    m_loading = visibleSegments(m_loadingSpans, scale);
    m_recorded = visibleSegments(m_recordedSpans, scale);
}

} // namespace CorvelGui
