// SPDX-License-Identifier: MIT
#pragma once

#include "eventlist.h"
#include "look/timetexts.h"

#include <QCollator>

#include <functional>

namespace Review {

/// What each column says of an event, and how events sort by it. Copies share the events.
class EventTexts
{
public:
    enum Column { Time, Kind, Text, Track, Duration, Severity, ColumnCount };

    EventTexts(const EventList& events, const TimeTexts& times);

    QString text(qsizetype event, Column column) const;
    /// Less than 0 if @p event comes before @p other. Times sort by instant, durations by length
    /// and severities from the least one on; what is text in the order of the user's language:
    /// numbers in texts by their values, upper and lower case alike.
    int compare(qsizetype event, qsizetype other, Column column) const;
    /// Says of an event whether a column says @p text, in upper or lower case.
    std::function<bool(qsizetype event)> finder(const QString& text) const;

private:
    Review::Severity severityOf(qsizetype event) const;

    Events m_events;
    TimeTexts m_times;
    QCollator m_order;
    // By the numbers of kinds and tracks, like their places in the order of texts.
    QStringList m_kinds;
    QList<Review::Severity> m_kindSeverities;
    QStringList m_tracks;
    QList<int> m_kindRanks;
    QList<int> m_trackRanks;
};

} // namespace Review
