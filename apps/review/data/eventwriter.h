// SPDX-License-Identifier: MIT
#pragma once

#include "csvwriter.h"
#include "reviewdata.h"

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
    const QByteArray& text() const { return m_csv.text(); }
    /// How many events it holds.
    qsizetype count() const { return m_count; }

private:
    const QTimeZone m_zone;
    CsvWriter m_csv;
    qsizetype m_count = 0;
};

} // namespace Review
