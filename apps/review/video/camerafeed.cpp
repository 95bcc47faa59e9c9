#include "camerafeed.h"

#include <algorithm>

using CorvelGui::TrackDescription;

namespace Review {

CameraFeed::CameraFeed(const TrackDescription& track, const Events& events, const TimeTexts& times)
    : m_name(track.name), m_history(track), m_times(times)
{
    const auto number = events.tracks().indexOf(track.identifier);
    QList<EventKind> kinds;
    for (const QString& kind : events.kinds())
        kinds.append(EventKinds::parse(kind));
    for (qsizetype i = 0; number >= 0 && i < events.size(); ++i) {
        if (events.trackAt(i) == number)
            m_visits.append({events.timeAt(i), kinds[events.kindAt(i)]});
    }
}

CameraScene CameraFeed::sceneAt(qint64 msecs) const
{
    constexpr double msecsPerHour = 3'600'000;
    CameraScene scene{.camera = m_name,
                      .time = m_times.exactDateTime(msecs),
                      .hour = m_times.wallClock(msecs).time().msecsSinceStartOfDay() / msecsPerHour,
                      .state = m_history.stateAt(msecs)};
    for (auto event = std::ranges::lower_bound(m_visits, msecs - visit, {}, &Visit::time);
         event != m_visits.end() && event->time <= msecs + visit; ++event)
        scene.visitors.append(
            {.kind = event->kind, .progress = double(msecs - event->time + visit) / (2 * visit)});
    return scene;
}

} // namespace Review
