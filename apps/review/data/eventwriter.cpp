#include "eventwriter.h"

#include <QDateTime>

#include <algorithm>

namespace Review {

namespace {

QByteArray timeText(qint64 msecs, const QTimeZone& zone)
{
    const QDateTime utc = QDateTime::fromMSecsSinceEpoch(msecs, Qt::UTC);
    const int offset = zone.offsetFromUtc(utc);
    // What is written of an offset ends with the minutes.
    constexpr int minute = 60;
    return (offset % minute == 0 ? utc.toOffsetFromUtc(offset) : utc)
        .toString(Qt::ISODateWithMs)
        .toLatin1();
}

QByteArray quotedIfNeeded(QByteArray field)
{
    constexpr QByteArrayView special("\",;\t\r\n");
    if (std::ranges::none_of(field, [&](char c) { return special.contains(c); }))
        return field;
    return '"' + field.replace('"', "\"\"") + '"';
}

} // namespace

EventWriter::EventWriter(const QTimeZone& zone, char separator)
    // Without the mark, spreadsheets take the text for another encoding.
    : m_zone(zone), m_separator(separator), m_text("\xEF\xBB\xBF")
{
    addRecord({"time", "kind", "text", "camera"});
}

void EventWriter::add(const Event& event)
{
    addRecord({timeText(event.time, m_zone), event.kind.toUtf8(), event.text.toUtf8(),
               event.track.toUtf8()});
    ++m_count;
}

void EventWriter::addRecord(const QList<QByteArray>& fields)
{
    for (const QByteArray& field : fields)
        m_text += quotedIfNeeded(field) + m_separator;
    m_text.chop(1);
    m_text += "\r\n";
}

} // namespace Review
