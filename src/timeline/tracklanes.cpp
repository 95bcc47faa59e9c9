// SPDX-License-Identifier: MIT
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

bool TrackLanes::setLoading(const QString& track, const TimeSpan& span, bool loading)
{
    const int index = indexOf(track);
    if (index < 0)
        return false;
    QList<TimeSpan>& list = m_tracks[index].loading;
    TimeSpans spans = joined({list.begin(), list.end()});
    if (loading)
        unite(spans, span);
    else
        subtract(spans, span);
    list = QList<TimeSpan>(spans.begin(), spans.end());
    if (std::optional<Spans>& known = m_spans[std::size_t(index)])
        known->loading = std::move(spans);
    return true;
}

TimeSpans TrackLanes::loading() const
{
    TimeSpans all;
    for (const TrackDescription& track : m_tracks)
        all.insert(all.end(), track.loading.begin(), track.loading.end());
    return joined(std::move(all));
}

const TrackLanes::Spans& TrackLanes::spans(int index) const
{
    std::optional<Spans>& known = m_spans[std::size_t(index)];
    if (!known) {
        const TrackDescription& track = m_tracks[index];
        TimeSpans recorded = joined({track.recorded.begin(), track.recorded.end()});
        TimeSpans described = recorded;
        described.push_back({track.begin, track.end});
        known = {std::move(recorded), joined(std::move(described)),
                 joined({track.loading.begin(), track.loading.end()})};
    }
    return *known;
}

} // namespace CorvelGui
