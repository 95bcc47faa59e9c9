#pragma once

#include <CorvelGui/TrackDescription>

#include <QList>
#include <QString>

namespace Review {

/// Something that happened at one moment.
struct Event
{
    /// Milliseconds since the Unix epoch.
    qint64 time = 0;
    QString kind;
    QString text;
    /// Identifier of the track that it belongs to; empty if it belongs to none.
    QString track;

    bool operator==(const Event&) const = default;
};

/// A moment at a camera.
struct Sight
{
    qint64 msecs = 0;
    /// Identifier of its track; may be empty.
    QString track = {};
};

/// What the client shows.
struct ReviewData
{
    QList<CorvelGui::TrackDescription> tracks;
    /// Sorted by time.
    QList<Event> events;

    /// From the first to the last instant of all that is there; empty if there is nothing.
    CorvelGui::TimeSpan period() const;
    /// Where there is something to see for the first time: the first event, or without events the
    /// first recording.
    Sight firstSight() const;
    qsizetype recordingCount() const;
};

} // namespace Review
