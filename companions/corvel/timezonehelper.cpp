#include "timezonehelper.h"

namespace Corvel {

QDateTime TimeZoneHelper::fromMSecsSinceEpoch(qint64 msecs, const QTimeZone& zone)
{
    return zone.isValid() ? QDateTime::fromMSecsSinceEpoch(msecs, zone)
                          : QDateTime::fromMSecsSinceEpoch(msecs, Qt::LocalTime);
}

QString TimeZoneHelper::getTimeZone(const QString& name)
{
    const QByteArray id = name.trimmed().toUtf8();
    if (QTimeZone::isTimeZoneIdAvailable(id))
        return QString::fromUtf8(id);
    return QString::fromUtf8(QTimeZone::windowsIdToDefaultIanaId(id));
}

} // namespace Corvel
