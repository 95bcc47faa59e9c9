// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"
#include "timespans.h"
#include "trackdescription.h"

#include <QList>
#include <QSet>
#include <QString>

#include <utility>
#include <vector>

namespace CorvelGui {

class TimeScale;

/// A stretch of the ruler's body, in pixels of the current view; at least one pixel column.
struct TrackSegment
{
    double start;
    double end;

    bool operator==(const TrackSegment&) const = default;
};

using TrackSegmentList = std::vector<TrackSegment>;

/// The segments under which @p spans are seen in the view of @p scale. What shares pixel columns
/// comes as one segment, so the work follows the columns in view and the logarithm of the number of
/// spans.
CORVELGUI_INTERNAL_EXPORT TrackSegmentList visibleSegments(const TimeSpans& spans,
                                                           const TimeScale& scale);

/// What the described tracks together know of the period: recorded where any of them has a
/// recording, a gap where some track is described and none has a recording, and nothing elsewhere.
class CORVELGUI_INTERNAL_EXPORT TrackSegments
{
public:
    void setTracks(const QList<TrackDescription>& tracks);
    /// Adds recordings of a track that was set. Returns false if there is none of that name.
    bool addRecorded(const QString& track, const QList<TimeSpan>& spans);
    /// What is loading, of any track.
    void setLoading(TimeSpans spans) { m_loadingSpans = std::move(spans); }
    bool hasTracks() const { return !m_described.empty(); }

    /// True when the limits of @p scale reach beyond the described tracks, at the begin or at the
    /// end.
    bool isTrackLimitChanged(const TimeScale& scale) const;

    /// Makes the two lists of segments for the view of @p scale.
    void update(const TimeScale& scale);
    const TimeSpans& gapSpans() const { return m_gapSpans; }
    const TimeSpans& recordedSpans() const { return m_recordedSpans; }
    const TimeSpans& loadingSpans() const { return m_loadingSpans; }
    const TrackSegmentList& gaps() const { return m_gaps; }
    /// Covers gaps, and is covered by what is recorded.
    const TrackSegmentList& loading() const { return m_loading; }
    const TrackSegmentList& recorded() const { return m_recorded; }

private:
    QSet<QString> m_tracks; ///< their identifiers
    TimeSpans m_described;
    TimeSpans m_gapSpans;
    TimeSpans m_recordedSpans;
    TimeSpans m_loadingSpans;
    TrackSegmentList m_gaps;
    TrackSegmentList m_loading;
    TrackSegmentList m_recorded;
};

} // namespace CorvelGui
