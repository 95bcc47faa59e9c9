#include "tracklanes.h"

#include <algorithm>

namespace CorvelGui {

void TrackLanes::setTracks(const QList<TrackDescription>& tracks)
{
    m_tracks = tracks;
    m_indices.clear();
    for (int i = count() - 1; i >= 0; --i)
        m_indices[m_tracks[i].identifier] = i;
    m_spans.assign(std::size_t(count()), std::nullopt);
}

void TrackLanes::addRecorded(const QString& track, const QList<TimeSpan>& spans)
{
    const int index = indexOf(track);
    if (index < 0)
        return;
    QList<TimeSpan>& recorded = m_tracks[index].recorded;
    for (const TimeSpan& span : spans) {
        // A recording that goes on comes in many small pieces.
        if (!recorded.isEmpty() && span.begin >= recorded.last().begin &&
            span.begin <= recorded.last().end)
            recorded.last().end = std::max(recorded.last().end, span.end);
        else
            recorded.append(span);
        if (std::optional<Spans>& known = m_spans[std::size_t(index)]) {
            unite(known->recorded, span);
            unite(known->described, span);
        }
    }
}

const TrackLanes::Spans& TrackLanes::spans(int index) const
{
    std::optional<Spans>& known = m_spans[std::size_t(index)];
    if (!known) {
        const TrackDescription& track = m_tracks[index];
        TimeSpans recorded = joined({track.recorded.begin(), track.recorded.end()});
        TimeSpans described = recorded;
        described.push_back({track.begin, track.end});
        known = {std::move(recorded), joined(std::move(described))};
    }
    return *known;
}

} // namespace CorvelGui
