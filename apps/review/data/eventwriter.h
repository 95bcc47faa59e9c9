#pragma once

#include "reviewdata.h"

#include <QByteArray>
#include <QTimeZone>

namespace Review {

/// Writes events as CSV that ReviewLoader reads: the same events come out of it, to the
/// millisecond, also those of an hour that the clock shows twice.
class EventWriter
{
public:
    /// Times are those of the zone's clock, with their offset from UTC. @p separator is a comma, a
    /// semicolon or a tab.
    explicit EventWriter(const QTimeZone& zone, char separator = ',');

    void add(const Event& event);
    const QByteArray& text() const { return m_text; }
    /// How many events it holds.
    qsizetype count() const { return m_count; }

private:
    void addRecord(const QList<QByteArray>& fields);

    const QTimeZone m_zone;
    const char m_separator;
    QByteArray m_text;
    qsizetype m_count = 0;
};

} // namespace Review
