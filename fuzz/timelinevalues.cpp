// SPDX-License-Identifier: MIT
#include "timelinevalues.h"

#include <QPixmap>
#include <QTimeZone>

using CorvelGui::RulerMarker;
using namespace Qt::StringLiterals;

QIcon TimelineValues::Icons::icon(int iconIndex)
{
    QPixmap picture(8 << (iconIndex % 4), 16);
    picture.fill(iconIndex % 2 ? Qt::red : Qt::transparent);
    return iconIndex % 4 == 3 ? QIcon() : QIcon(picture);
}

quint64 TimelineValues::instant()
{
    switch (number(0, 7)) {
    case 0:
        return 0;
    case 1:
        return m_input.ConsumeIntegral<quint64>();
    case 2: // a limit of one number type or another
        return (quint64(1) << number(0, 63)) - (flag() ? 1 : 0);
    case 3:
        return base + quint64(number(0, 1000));
    case 4: // around a change of the clock
        return base + 34 * day + quint64(number(-180, 180)) * minute;
    default:
        return base + quint64(number(0, 20'000)) * minute;
    }
}

QDateTime TimelineValues::time()
{
    const quint64 msecs = instant();
    switch (number(0, 5)) {
    case 0:
        return {};
    case 1:
        return QDateTime::fromMSecsSinceEpoch(qint64(msecs), QTimeZone("Europe/Brussels"));
    case 2:
        return QDateTime::fromMSecsSinceEpoch(qint64(msecs));
    default:
        return QDateTime::fromMSecsSinceEpoch(qint64(msecs), QTimeZone::utc());
    }
}

QString TimelineValues::zone()
{
    static constexpr std::array zones{"",
                                      "UTC",
                                      "Europe/Brussels",
                                      "America/New_York",
                                      "Australia/Lord_Howe",
                                      "Asia/Almaty",
                                      "x",
                                      "W. Europe Standard Time",
                                      "Asia/Kathmandu",
                                      "America/St_Johns"};
    return QString::fromLatin1(pick(zones));
}

QList<RulerMarker> TimelineValues::markers()
{
    QList<RulerMarker> markers;
    for (int count = number(0, 12); count > 0; --count)
        markers.append({.identifier = QUuid::createUuidV5({}, QString::number(count)),
                        .time = time(),
                        .kind = flag() ? RulerMarker::providedIconKind : 0,
                        .iconIndex = number(0, 7),
                        .text = flag() ? u"<b>%1"_s.arg(count) : QString(),
                        .iconProvider = flag() ? &m_icons : nullptr});
    if (flag() && !markers.isEmpty()) // many at one instant
        markers.append(QList<RulerMarker>(20, markers.first()));
    return markers;
}
