#pragma once

#include "camerapicture.h"
#include "data/reviewdata.h"
#include "data/trackhistory.h"
#include "look/timetexts.h"

namespace Review {

/// Says what the camera of a track sees at any instant.
class CameraFeed
{
public:
    /// How long before and after its event a visitor is in the picture, in milliseconds.
    static constexpr qint64 visit = 10'000;

    /// @p events are of all tracks, sorted by time.
    CameraFeed(const CorvelGui::TrackDescription& track, const QList<Event>& events,
               const TimeTexts& times);

    const QString& camera() const { return m_name; }
    const TrackHistory& history() const { return m_history; }
    const TimeTexts& times() const { return m_times; }
    CameraScene sceneAt(qint64 msecs) const;

private:
    QString m_name;
    TrackHistory m_history;
    QList<Event> m_events; // of this track
    TimeTexts m_times;
};

} // namespace Review
