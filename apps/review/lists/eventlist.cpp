// SPDX-License-Identifier: MIT
#include "eventlist.h"

#include <utility>

using CorvelGui::TimeSpan;
using CorvelGui::TrackDescription;

namespace Review {

EventList::EventList(const ReviewData& review)
    : m_events(review.events), m_trackNames(m_events.tracks()), m_hidden(m_trackNames.size())
{
    for (const TrackDescription& track : review.tracks) {
        const auto number = m_events.tracks().indexOf(track.identifier);
        if (number >= 0)
            m_trackNames[number] = track.name;
    }
}

bool EventList::setHiddenTracks(const QSet<QString>& identifiers)
{
    const QBitArray before = std::exchange(m_hidden, QBitArray(m_trackNames.size()));
    for (const QString& identifier : identifiers) {
        const auto number = m_events.tracks().indexOf(identifier);
        if (number >= 0)
            m_hidden.setBit(number);
    }
    return m_hidden != before;
}

bool EventList::continues(const EventList& other) const
{
    const auto isHidden = [](const EventList& list, qsizetype track) {
        return list.m_hidden.testBit(track);
    };
    for (qsizetype track = 0; track < other.m_hidden.size() && track < m_hidden.size(); ++track) {
        if (isHidden(*this, track) != isHidden(other, track))
            return false;
    }
    return m_events.continues(other.m_events);
}

QList<qsizetype> EventList::eventsIn(const TimeSpan& span) const
{
    QList<qsizetype> events;
    for (qsizetype event = m_events.firstFrom(span.begin);
         event < m_events.size() && m_events.timeAt(event) < span.end; ++event) {
        if (isShown(event))
            events.append(event);
    }
    return events;
}

} // namespace Review
