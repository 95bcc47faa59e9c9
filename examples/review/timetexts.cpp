#include "timetexts.h"

#include <Corvel/TimeZoneHelper>

#include <QDateTime>

using Corvel::TimeZoneHelper;
using namespace Qt::StringLiterals;

namespace Review {

TimeTexts::TimeTexts(const QString& zoneName)
    : m_zone(zoneName.isEmpty() ? QTimeZone::systemTimeZone()
                                : QTimeZone(TimeZoneHelper::getTimeZone(zoneName).toUtf8()))
{}

QString TimeTexts::zoneName() const
{
    return QString::fromUtf8(m_zone.id());
}

QString TimeTexts::dateTime(qint64 msecs) const
{
    return TimeZoneHelper::fromMSecsSinceEpoch(msecs, m_zone).toString(u"dd.MM.yyyy HH:mm:ss"_s);
}

QString TimeTexts::duration(qint64 msecs)
{
    const qint64 seconds = msecs / 1'000;
    return u"%1:%2:%3"_s.arg(seconds / 3'600)
        .arg(seconds / 60 % 60, 2, 10, QChar(u'0'))
        .arg(seconds % 60, 2, 10, QChar(u'0'));
}

} // namespace Review
