// SPDX-License-Identifier: MIT
#pragma once

#include "data/trackhistory.h"
#include "data/videofile.h"
#include "look/timetexts.h"
#include "videosource.h"

namespace Review {

/// A camera: what it is called, when it recorded and in which files, and how its times are written.
struct Camera
{
    Camera(const CorvelGui::TrackDescription& track, const QList<VideoFile>& shownBy,
           const TimeTexts& written)
        : identifier(track.identifier)
        , name(track.name)
        , history(track)
        , files(shownBy)
        , times(written)
    {}

    QString identifier;
    QString name;
    TrackHistory history;
    QList<VideoFile> files;
    TimeTexts times;
};

} // namespace Review
