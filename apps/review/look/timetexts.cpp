// SPDX-License-Identifier: MIT
#include "timetexts.h"

#include <Corvel/TimeZoneHelper>

#include <QLocale>

using Corvel::TimeZoneHelper;
using namespace Qt::StringLiterals;

namespace Review {

QString TimeFormat::pattern() const
{
    return datePattern() + u" HH:mm:ss"_s;
}

QString TimeFormat::datePattern() const
{
    switch (order) {
    case Order::YearFirst:
        return u"yyyy-MM-dd"_s;
    case Order::MonthFirst:
        return u"MM/dd/yyyy"_s;
    case Order::DayFirst:
        break;
    }
    return u"dd.MM.yyyy"_s;
}

// Windows names a clock that never leaves UTC after a place, such as Reykjavik.
static QTimeZone zoneOfComputer()
{
    const QTimeZone zone = QTimeZone::systemTimeZone();
    const bool isUtc = zone.isValid() && !zone.hasDaylightTime() &&
                       zone.standardTimeOffset(QDateTime::currentDateTimeUtc()) == 0;
    return isUtc ? QTimeZone::utc() : zone;
}

TimeTexts::TimeTexts(const QString& zoneName, const TimeFormat& format)
    : m_zone(zoneName.isEmpty() ? zoneOfComputer()
                                : QTimeZone(TimeZoneHelper::getTimeZone(zoneName).toUtf8()))
    , m_format(format)
{}

QString TimeTexts::zoneName() const
{
    return QString::fromUtf8(m_zone.id());
}

QString TimeTexts::dateTime(qint64 msecs) const
{
    return TimeZoneHelper::fromMSecsSinceEpoch(msecs, m_zone).toString(m_format.pattern());
}

QString TimeTexts::exactDateTime(qint64 msecs) const
{
    const QDateTime time = TimeZoneHelper::fromMSecsSinceEpoch(msecs, m_zone);
    return u"%1 %2 %3"_s.arg(
        QLocale().dayName(time.date().dayOfWeek(), QLocale::ShortFormat),
        time.toString(m_format.milliseconds ? m_format.pattern() + u".zzz"_s : m_format.pattern()),
        m_zone.abbreviation(time));
}

QString TimeTexts::duration(qint64 msecs)
{
    const qint64 seconds = msecs / 1'000;
    return u"%1:%2:%3"_s.arg(seconds / 3'600)
        .arg(seconds / 60 % 60, 2, 10, QChar(u'0'))
        .arg(seconds % 60, 2, 10, QChar(u'0'));
}

QString TimeTexts::exactDuration(qint64 msecs)
{
    const QString fraction = u".%1"_s.arg(msecs % 1'000, 3, 10, QChar(u'0'));
    return msecs % 1'000 == 0 ? duration(msecs) : duration(msecs) + fraction;
}

QDateTime TimeTexts::wallClock(qint64 msecs) const
{
    const QDateTime utc = QDateTime::fromMSecsSinceEpoch(msecs, Qt::UTC);
    return utc.addSecs(m_zone.offsetFromUtc(utc));
}

qint64 TimeTexts::fromWallClock(const QDateTime& wallClock) const
{
    // The offsets before and after any clock change nearby.
    const qint64 before =
        wallClock.addSecs(-m_zone.offsetFromUtc(wallClock.addDays(-1))).toMSecsSinceEpoch();
    const qint64 after =
        wallClock.addSecs(-m_zone.offsetFromUtc(wallClock.addDays(1))).toMSecsSinceEpoch();
    for (const qint64 candidate : {before, after}) {
        if (this->wallClock(candidate) == wallClock)
            return candidate;
    }
    return before;
}

} // namespace Review
