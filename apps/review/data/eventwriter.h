// SPDX-License-Identifier: MIT
#pragma once

#include "events.h"

#include <QTimeZone>

namespace Review {

/// Writes some of many events as CSV that ReviewLoader reads: the same events come out of it, to
/// the millisecond, also those of an hour that the clock shows twice. Copies share the events.
class EventWriter
{
public:
    /// Times are those of the zone's clock, with their offset from UTC. @p separator is a comma, a
    /// semicolon or a tab.
    explicit EventWriter(const Events& events = {}, const QTimeZone& zone = QTimeZone::utc(),
                         char separator = ',');

    /// Adds the event of that number.
    void add(qsizetype event) { m_chosen.append(event); }
    /// Takes some seconds for a million of them.
    QByteArray text() const;
    /// How many events it writes.
    qsizetype count() const { return m_chosen.size(); }

private:
    Events m_events;
    QTimeZone m_zone;
    char m_separator;
    QList<qsizetype> m_chosen;
};

} // namespace Review
