#include "camerafeed.h"

#include <algorithm>

using CorvelGui::TrackDescription;

namespace Review {

CameraFeed::CameraFeed(const TrackDescription& track, const QList<Event>& events,
                       const TimeTexts& times)
    : m_name(track.name), m_history(track), m_times(times)
{
    std::ranges::copy_if(events, std::back_inserter(m_events),
                         [&track](const Event& event) { return event.track == track.identifier; });
}

CameraScene CameraFeed::sceneAt(qint64 msecs) const
{
    constexpr double msecsPerHour = 3'600'000;
    CameraScene scene{.camera = m_name,
                      .time = m_times.exactDateTime(msecs),
                      .hour = m_times.wallClock(msecs).time().msecsSinceStartOfDay() / msecsPerHour,
                      .state = m_history.stateAt(msecs)};
    for (auto event = std::ranges::lower_bound(m_events, msecs - visit, {}, &Event::time);
         event != m_events.end() && event->time <= msecs + visit; ++event)
        scene.visitors.append({.kind = EventKinds::parse(event->kind),
                               .progress = double(msecs - event->time + visit) / (2 * visit)});
    return scene;
}

} // namespace Review
