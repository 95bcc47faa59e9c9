// SPDX-License-Identifier: MIT
#include "rangepresets.h"

#include "localmoments.h"

#include <QTimeZone>

namespace CorvelGui {

namespace {

constexpr qint64 secondsOfAnHour = 3600;
constexpr qint64 secondsOfADay = 24 * secondsOfAnHour;

// Not always midnight: some clocks are put forward then.
QDateTime beginOfDay(QDate date, const QDateTime& zone)
{
    const QList<QDateTime> midnights = localMoments(date, QTime(0, 0), zone);
    return midnights.isEmpty() ? date.startOfDay(zone.timeZone()) : midnights.first();
}

} // namespace

MomentRange presetRange(PInputDateTimeWithRange::Preset preset, const QDateTime& now)
{
    const QDate today = now.date();
    switch (preset) {
    case PInputDateTimeWithRange::LastHour:
        return {now.addSecs(-secondsOfAnHour), now};
    case PInputDateTimeWithRange::Today:
        return {beginOfDay(today, now), now};
    case PInputDateTimeWithRange::Yesterday:
        return {beginOfDay(today.addDays(-1), now), beginOfDay(today, now)};
    case PInputDateTimeWithRange::LastSevenDays: {
        const QList<QDateTime> begins = localMoments(today.addDays(-7), now.time(), now);
        return {begins.isEmpty() ? now.addSecs(-7 * secondsOfADay) : begins.first(), now};
    }
    case PInputDateTimeWithRange::OwnRange:
        break;
    }
    return {};
}

} // namespace CorvelGui
