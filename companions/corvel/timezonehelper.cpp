// SPDX-License-Identifier: MIT
#include "timezonehelper.h"

#include <array>

namespace Corvel {

namespace {

// Zones that were renamed. Qt on Windows knows them by their former names only, a current tzdata by
// their present ones only.
struct RenamedZone
{
    const char* present;
    const char* former;
};

constexpr std::array renamedZones{
    RenamedZone{"Africa/Asmara", "Africa/Asmera"},
    RenamedZone{"America/Argentina/Buenos_Aires", "America/Buenos_Aires"},
    RenamedZone{"America/Argentina/Catamarca", "America/Catamarca"},
    RenamedZone{"America/Argentina/Cordoba", "America/Cordoba"},
    RenamedZone{"America/Argentina/Jujuy", "America/Jujuy"},
    RenamedZone{"America/Argentina/Mendoza", "America/Mendoza"},
    RenamedZone{"America/Atikokan", "America/Coral_Harbour"},
    RenamedZone{"America/Indiana/Indianapolis", "America/Indianapolis"},
    RenamedZone{"America/Kentucky/Louisville", "America/Louisville"},
    RenamedZone{"America/Nuuk", "America/Godthab"},
    RenamedZone{"Asia/Ho_Chi_Minh", "Asia/Saigon"},
    RenamedZone{"Asia/Kathmandu", "Asia/Katmandu"},
    RenamedZone{"Asia/Kolkata", "Asia/Calcutta"},
    RenamedZone{"Asia/Yangon", "Asia/Rangoon"},
    RenamedZone{"Atlantic/Faroe", "Atlantic/Faeroe"},
    RenamedZone{"Europe/Kyiv", "Europe/Kiev"},
    RenamedZone{"Pacific/Chuuk", "Pacific/Truk"},
    RenamedZone{"Pacific/Kanton", "Pacific/Enderbury"},
    RenamedZone{"Pacific/Pohnpei", "Pacific/Ponape"},
};

// Returns the name by which this system knows the zone, or an empty one.
QByteArray availableId(const QByteArray& id)
{
    if (QTimeZone::isTimeZoneIdAvailable(id))
        return id;
    for (const auto& [present, former] : renamedZones) {
        const QByteArray other = id == present ? former : id == former ? present : "";
        if (!other.isEmpty() && QTimeZone::isTimeZoneIdAvailable(other))
            return other;
    }
    return {};
}

} // namespace

QDateTime TimeZoneHelper::fromMSecsSinceEpoch(qint64 msecs, const QTimeZone& zone)
{
    // Qt's own local time cannot tell the two passes of an hour that repeats without a change of
    // summer time.
    const QTimeZone known = zone.isValid() ? zone : QTimeZone::systemTimeZone();
    return known.isValid() ? QDateTime::fromMSecsSinceEpoch(msecs, known)
                           : QDateTime::fromMSecsSinceEpoch(msecs);
}

QString TimeZoneHelper::getTimeZone(const QString& name)
{
    const QByteArray id = name.trimmed().toUtf8();
    const QByteArray available = availableId(id);
    return QString::fromUtf8(
        available.isEmpty() ? availableId(QTimeZone::windowsIdToDefaultIanaId(id)) : available);
}

} // namespace Corvel
