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

    /// @p events are of all tracks, in the order of time.
    CameraFeed(const CorvelGui::TrackDescription& track, const Events& events,
               const TimeTexts& times);

    const QString& camera() const { return m_name; }
    const TrackHistory& history() const { return m_history; }
    const TimeTexts& times() const { return m_times; }
    CameraScene sceneAt(qint64 msecs) const;

private:
    QString m_name;
    TrackHistory m_history;
    /// An event of this track.
    struct Visit
    {
        qint64 time;
        EventKind kind;
    };
    QList<Visit> m_visits;
    TimeTexts m_times;
};

} // namespace Review
