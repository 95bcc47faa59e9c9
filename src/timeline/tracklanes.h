// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"
#include "timespans.h"
#include "trackdescription.h"

#include <QHash>
#include <QList>
#include <QString>

#include <optional>
#include <vector>

namespace CorvelGui {

/// What is known of each track for itself. Its spans are sorted out when they are looked at first.
class CORVELGUI_INTERNAL_EXPORT TrackLanes
{
public:
    struct Spans
    {
        TimeSpans recorded;
        TimeSpans described; ///< recorded or not
        TimeSpans loading;
    };

    void setTracks(const QList<TrackDescription>& tracks);
    /// Adds recordings of a track that was set.
    void addRecorded(const QString& track, const QList<TimeSpan>& spans);

    /// Notes whether a span of a track is loading. Returns false if there is no such track.
    bool setLoading(const QString& track, const TimeSpan& span, bool loading);
    /// What is loading of any track.
    TimeSpans loading() const;

    /// With the recordings that were added.
    const QList<TrackDescription>& tracks() const { return m_tracks; }
    int count() const { return int(m_tracks.size()); }
    /// -1 for an identifier that no track has.
    int indexOf(const QString& track) const { return m_indices.value(track, -1); }
    const Spans& spans(int index) const;

private:
    QList<TrackDescription> m_tracks;
    QHash<QString, int> m_indices;
    mutable std::vector<std::optional<Spans>> m_spans;
};

} // namespace CorvelGui
