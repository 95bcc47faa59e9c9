#pragma once

#include "eventlist.h"
#include "look/timetexts.h"
#include "look/wordcolumn.h"

namespace Review {

/// What each column says of an event, and how events sort by it.
class EventTexts
{
public:
    enum Column { Time, Kind, Text, Track, ColumnCount };

    explicit EventTexts(const TimeTexts& times);

    /// Replaces all events. Call it again when the language has changed, too.
    void setEvents(const EventList& events);
    void setTimes(const TimeTexts& times);

    QString text(qsizetype event, Column column) const;
    /// Times sort by instant, what is text in the order of the user's language.
    bool isLess(qsizetype event, qsizetype other, Column column) const;

private:
    struct Moment
    {
        qint64 msecs;
        /// Empty until it is asked for: most events are never looked at.
        QString text;
    };

    TimeTexts m_times;
    mutable std::vector<Moment> m_moments;
    WordColumn m_kinds;
    WordColumn m_texts;
    WordColumn m_tracks;
};

} // namespace Review
