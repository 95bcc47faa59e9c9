// SPDX-License-Identifier: MIT
#include "reviewdata.h"

#include <algorithm>
#include <limits>

using CorvelGui::TimeSpan;
using CorvelGui::TrackDescription;

namespace Review {

TimeSpan ReviewData::period() const
{
    TimeSpan period{.begin = std::numeric_limits<qint64>::max(), .end = 0};
    const auto include = [&period](qint64 begin, qint64 end) {
        period.begin = std::min(period.begin, begin);
        period.end = std::max(period.end, end);
    };
    for (const TrackDescription& track : tracks) {
        include(track.begin, track.end);
        for (const TimeSpan& span : track.recorded)
            include(span.begin, span.end);
    }
    if (!events.isEmpty())
        include(events.timeAt(0), events.end());
    if (period.begin > period.end)
        return {};
    // A timeline of a single instant needs some width.
    constexpr qint64 shortest = 1'000;
    period.end = std::max(period.end, period.begin + shortest);
    return period;
}

Sight ReviewData::firstSight() const
{
    if (!events.isEmpty())
        return {.msecs = events.timeAt(0), .track = events[0].track};
    Sight first{.msecs = period().end};
    for (const TrackDescription& track : tracks) {
        for (const TimeSpan& span : track.recorded) {
            if (span.begin < first.msecs)
                first = {.msecs = span.begin, .track = track.identifier};
        }
    }
    return first.track.isEmpty() ? Sight{.msecs = period().begin} : first;
}

qsizetype ReviewData::recordingCount() const
{
    qsizetype count = 0;
    for (const TrackDescription& track : tracks)
        count += track.recorded.size();
    return count;
}

void ReviewData::sort()
{
    for (TrackDescription& track : tracks) {
        std::ranges::sort(track.recorded, {}, &TimeSpan::begin);
        std::ranges::sort(track.loading, {}, &TimeSpan::begin);
    }
    for (QList<VideoFile>& ofTrack : files)
        std::ranges::stable_sort(ofTrack, {}, &VideoFile::begin);
}

void ReviewData::shareWith(const ReviewData& before)
{
    const auto share = [](auto& list, const auto& known) {
        if (list == known)
            list = known;
    };
    QHash<QString, const TrackDescription*> tracksBefore;
    for (const TrackDescription& track : before.tracks)
        tracksBefore.insert(track.identifier, &track);
    for (TrackDescription& track : tracks) {
        if (const TrackDescription* known = tracksBefore.value(track.identifier)) {
            share(track.recorded, known->recorded);
            share(track.loading, known->loading);
        }
    }
    for (auto ofTrack = files.begin(); ofTrack != files.end(); ++ofTrack)
        share(*ofTrack, before.files.value(ofTrack.key()));
    events.compareWith(before.events);
}

} // namespace Review
