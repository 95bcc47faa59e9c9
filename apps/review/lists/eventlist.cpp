#include "eventlist.h"

#include <algorithm>

using CorvelGui::TimeSpan;
using CorvelGui::TrackDescription;

namespace Review {

EventList::EventList(const ReviewData& review) : m_events(review.events)
{
    for (const TrackDescription& track : review.tracks)
        m_trackNames.insert(track.identifier, track.name);
    findShown();
}

QString EventList::trackName(qsizetype index) const
{
    const QString& identifier = m_events[index].track;
    return m_trackNames.value(identifier, identifier);
}

bool EventList::setHiddenTracks(const QSet<QString>& identifiers)
{
    if (m_hiddenTracks == identifiers)
        return false;
    m_hiddenTracks = identifiers;
    findShown();
    return true;
}

void EventList::findShown()
{
    m_shown.clear();
    for (qsizetype i = 0; i < m_events.size(); ++i) {
        if (isShown(i))
            m_shown.push_back(i);
    }
}

bool EventList::isShown(qsizetype index) const
{
    return m_hiddenTracks.isEmpty() || !m_hiddenTracks.contains(m_events[index].track);
}

QList<Event> EventList::eventsIn(const TimeSpan& span) const
{
    QList<Event> events;
    auto shown = std::partition_point(m_shown.begin(), m_shown.end(),
                                      [&](qsizetype i) { return m_events[i].time < span.begin; });
    for (; shown != m_shown.end() && m_events[*shown].time < span.end; ++shown)
        events.append(m_events[*shown]);
    return events;
}

} // namespace Review
