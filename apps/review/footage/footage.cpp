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

qint64 Footage::instantOf(const WallTime& time, const TimeCorrection& correction) const
{
    if (time.offset)
        return time.clock.toMSecsSinceEpoch() - *time.offset * qint64(1'000) + correction.offset;
    const QTimeZone zone = correction.zone.isEmpty() ? m_zone : QTimeZone(correction.zone.toUtf8());
    return QDateTime(time.clock.date(), time.clock.time(), zone).toMSecsSinceEpoch() +
           correction.offset;
}

ReviewData Footage::addTo(ReviewData data, const TimeCorrections& corrections) const
{
    QHash<QString, qsizetype> tracks;
    for (qsizetype i = 0; i < data.tracks.size(); ++i)
        tracks.insert(data.tracks[i].identifier, i);
    const qsizetype described = data.tracks.size();
    for (const Recording& recording : m_recordings) {
        const qint64 begin = instantOf(recording.begin, corrections.value(recording.camera));
        const qint64 end = begin + recording.length;
        if (begin < 0)
            continue; // no time of a camera
        const qsizetype number = tracks.value(recording.camera, data.tracks.size());
        if (number == data.tracks.size()) {
            tracks.insert(recording.camera, number);
            data.tracks.append({recording.camera, recording.camera, begin, end, {}});
        }
        TrackDescription& track = data.tracks[number];
        track.recorded.append({begin, end});
        data.files[recording.camera].append({recording.path, begin, end, 0});
        if (number < described)
            continue; // its period is known better
        track.begin = std::min(track.begin, begin);
        track.end = std::max(track.end, end);
    }
    return data;
}

} // namespace Review
