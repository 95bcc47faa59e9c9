// SPDX-License-Identifier: MIT
#include "footage.h"

#include <QHash>
#include <QMap>

#include <algorithm>

using CorvelGui::TrackDescription;

namespace Review {

QList<Footage::CameraTimes> Footage::cameras() const
{
    QMap<QString, CameraTimes> cameras;
    for (const Recording& recording : m_recordings) {
        CameraTimes& times = cameras[recording.camera];
        const bool isFirst = times.camera.isEmpty() || recording.begin.clock < times.first.clock;
        times.camera = recording.camera;
        ++times.sources[recording.source];
        times.needsZone = times.needsZone || !recording.begin.offset;
        if (isFirst)
            times.first = recording.begin;
    }
    return cameras.values();
}

Footage::Sources Footage::sources() const
{
    Sources sources{};
    for (const Recording& recording : m_recordings)
        ++sources[recording.source];
    return sources;
}

QTimeZone Footage::zoneOf(const TimeCorrection& correction) const
{
    return correction.zone.isEmpty() ? m_zone : QTimeZone(correction.zone.toUtf8());
}

qint64 Footage::instantOf(const WallTime& time, const TimeCorrection& correction) const
{
    return time.instantIn(zoneOf(correction)) + correction.offset;
}

ReviewData Footage::addTo(ReviewData data, const TimeCorrections& corrections) const
{
    // What the recordings of a camera have in common.
    struct Clock
    {
        QTimeZone zone;
        qint64 offset;
    };
    QHash<QString, Clock> clocks;
    const auto clockOf = [&](const QString& camera) -> const Clock& {
        const auto known = clocks.constFind(camera);
        if (known != clocks.cend())
            return *known;
        const TimeCorrection correction = corrections.value(camera);
        return *clocks.insert(camera, {zoneOf(correction), correction.offset});
    };
    QHash<QString, qsizetype> tracks;
    for (qsizetype i = 0; i < data.tracks.size(); ++i)
        tracks.insert(data.tracks[i].identifier, i);
    const qsizetype described = data.tracks.size();
    for (const Recording& recording : m_recordings) {
        const Clock& clock = clockOf(recording.camera);
        const qint64 begin = recording.begin.instantIn(clock.zone) + clock.offset;
        const qint64 end = begin + recording.length;
        if (begin < 0)
            continue; // no time of a camera
        const qsizetype number = tracks.value(recording.camera, data.tracks.size());
        if (number == data.tracks.size()) {
            tracks.insert(recording.camera, number);
            data.tracks.append({recording.camera, recording.camera, begin, end, {}});
        }
        TrackDescription& track = data.tracks[number];
        (recording.isRead ? track.recorded : track.loading).append({begin, end});
        if (recording.isRead)
            data.files[recording.camera].append({recording.path, begin, end, 0});
        if (number < described)
            continue; // its period is known better
        track.begin = std::min(track.begin, begin);
        track.end = std::max(track.end, end);
    }
    return data;
}

} // namespace Review
