#include "eventwriter.h"

namespace Review {

EventWriter::EventWriter(const QTimeZone& zone, char separator)
    : m_zone(zone), m_csv({"time", "kind", "text", "camera"}, separator)
{}

void EventWriter::add(const Event& event)
{
    m_csv.add({CsvWriter::timeText(event.time, m_zone), event.kind.toUtf8(), event.text.toUtf8(),
               event.track.toUtf8()});
    ++m_count;
}

} // namespace Review
