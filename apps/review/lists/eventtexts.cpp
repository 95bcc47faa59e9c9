#include "eventtexts.h"

#include "data/eventkind.h"

namespace Review {

EventTexts::EventTexts(const TimeTexts& times) : m_times(times) {}

void EventTexts::setEvents(const EventList& events)
{
    m_moments.clear();
    m_moments.reserve(size_t(events.size()));
    m_kinds = {};
    m_texts = {};
    m_tracks = {};
    for (qsizetype i = 0; i < events.size(); ++i) {
        const Event& event = events.event(i);
        m_moments.push_back({event.time, {}});
        m_kinds.append(EventKinds::text(event.kind));
        m_texts.append(event.text);
        m_tracks.append(events.trackName(i));
    }
}

void EventTexts::setTimes(const TimeTexts& times)
{
    m_times = times;
    for (Moment& moment : m_moments)
        moment.text.clear();
}

QString EventTexts::text(qsizetype event, Column column) const
{
    switch (column) {
    case Time: {
        Moment& moment = m_moments[size_t(event)];
        if (moment.text.isEmpty())
            moment.text = m_times.dateTime(moment.msecs);
        return moment.text;
    }
    case Kind:
        return m_kinds.text(event);
    case Text:
        return m_texts.text(event);
    case Track:
        return m_tracks.text(event);
    case ColumnCount:
        break;
    }
    return {};
}

bool EventTexts::isLess(qsizetype event, qsizetype other, Column column) const
{
    const auto ranksLower = [&](const WordColumn& words) {
        return words.rank(event) < words.rank(other);
    };
    switch (column) {
    case Time:
        return m_moments[size_t(event)].msecs < m_moments[size_t(other)].msecs;
    case Kind:
        return ranksLower(m_kinds);
    case Text:
        return ranksLower(m_texts);
    case Track:
        return ranksLower(m_tracks);
    case ColumnCount:
        break;
    }
    return false;
}

} // namespace Review
