// SPDX-License-Identifier: MIT
#include "csvwriter.h"

#include <QDateTime>
#include <QLocale>

#include <algorithm>

namespace Review {

namespace {

QByteArray quotedIfNeeded(QByteArray field)
{
    constexpr QByteArrayView special("\",;\t\r\n");
    if (std::ranges::none_of(field, [&](char c) { return special.contains(c); }))
        return field;
    return '"' + field.replace('"', "\"\"") + '"';
}

} // namespace

CsvWriter::CsvWriter(const QList<QByteArray>& columns, char separator)
    // Without the mark, spreadsheets take the text for another encoding.
    : m_separator(separator), m_text("\xEF\xBB\xBF")
{
    add(columns);
}

char CsvWriter::userSeparator()
{
    return QLocale().decimalPoint() == u',' ? ';' : ',';
}

void CsvWriter::add(const QList<QByteArray>& fields)
{
    for (const QByteArray& field : fields)
        m_text += quotedIfNeeded(field) + m_separator;
    m_text.chop(1);
    m_text += "\r\n";
}

QByteArray CsvWriter::timeText(qint64 msecs, const QTimeZone& zone)
{
    const QDateTime utc = QDateTime::fromMSecsSinceEpoch(msecs, Qt::UTC);
    const int offset = zone.offsetFromUtc(utc);
    // What is written of an offset ends with the minutes.
    constexpr int minute = 60;
    return (offset % minute == 0 ? utc.toOffsetFromUtc(offset) : utc)
        .toString(Qt::ISODateWithMs)
        .toLatin1();
}

QByteArray CsvWriter::secondsText(qint64 msecs)
{
    constexpr int digits = 15; // all that a double has
    return QByteArray::number(double(msecs) / 1'000, 'g', digits);
}

} // namespace Review
