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

/// What the client shows.
struct ReviewData
{
    QList<CorvelGui::TrackDescription> tracks;
    /// Sorted by time.
    QList<Event> events;

    /// From the first to the last instant of all that is there; empty if there is nothing.
    CorvelGui::TimeSpan period() const;
    qsizetype recordingCount() const;
};

} // namespace Review
