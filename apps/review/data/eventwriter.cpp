// SPDX-License-Identifier: MIT
#include "eventwriter.h"

namespace Review {

EventWriter::EventWriter(const QTimeZone& zone, char separator)
    : m_zone(zone), m_csv({"time", "kind", "text", "camera", "duration", "severity"}, separator)
{}

void EventWriter::add(const Event& event)
{
    m_csv.add({CsvWriter::timeText(event.time, m_zone), event.kind.toUtf8(), event.text.toUtf8(),
               event.track.toUtf8(),
               event.duration > 0 ? CsvWriter::secondsText(event.duration) : QByteArray(),
               event.severity ? severityWords[std::size_t(*event.severity)] : QByteArray()});
    ++m_count;
}

} // namespace Review
