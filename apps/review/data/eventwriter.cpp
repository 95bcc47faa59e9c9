// SPDX-License-Identifier: MIT
#include "eventwriter.h"

#include "csvwriter.h"

namespace Review {

EventWriter::EventWriter(const Events& events, const QTimeZone& zone, char separator)
    : m_events(events), m_zone(zone), m_separator(separator)
{}

QByteArray EventWriter::text() const
{
    CsvWriter csv({"time", "kind", "text", "camera", "duration", "severity"}, m_separator);
    for (const qsizetype number : m_chosen) {
        const Event event = m_events[number];
        csv.add({CsvWriter::timeText(event.time, m_zone), event.kind.toUtf8(), event.text.toUtf8(),
                 event.track.toUtf8(),
                 event.duration > 0 ? CsvWriter::secondsText(event.duration) : QByteArray(),
                 event.severity ? severityWords[std::size_t(*event.severity)] : QByteArray()});
    }
    return csv.text();
}

} // namespace Review
