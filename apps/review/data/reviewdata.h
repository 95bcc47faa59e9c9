// SPDX-License-Identifier: MIT
#pragma once

#include "events.h"
#include "videofile.h"

#include <CorvelGui/TrackDescription>

#include <QHash>
#include <QList>

namespace Review {

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
    Events events;
    /// What shows the recordings of a track, by its identifier, in any order.
    QHash<QString, QList<VideoFile>> files = {};

    /// From the first to the last instant of all that is there; empty if there is nothing.
    CorvelGui::TimeSpan period() const;
    /// Where there is something to see for the first time: the first event, or without events the
    /// first recording.
    Sight firstSight() const;
    qsizetype recordingCount() const;
    /// Brings recordings and files into the order of time, which saves the window the work.
    void sort();
    /// Takes from @p before what is the same there, once sorted: the window compares only whether
    /// it is shared. See Events::compareWith().
    void shareWith(const ReviewData& before);
};

} // namespace Review
