// SPDX-License-Identifier: MIT
#include "eventkind.h"

using namespace Qt::StringLiterals;

namespace Review {

EventKind EventKinds::parse(const QString& name)
{
    static constexpr std::pair<QLatin1StringView, EventKind> names[] = {
        {"person"_L1, EventKind::Person},   {"human"_L1, EventKind::Person},
        {"vehicle"_L1, EventKind::Vehicle}, {"car"_L1, EventKind::Vehicle},
        {"animal"_L1, EventKind::Animal},   {"alarm"_L1, EventKind::Alarm},
        {"alert"_L1, EventKind::Alarm},     {"bookmark"_L1, EventKind::Bookmark},
        {"blank"_L1, EventKind::Blank},     {"empty"_L1, EventKind::Blank},
    };
    const QStringView trimmed = QStringView(name).trimmed();
    for (const auto& [known, kind] : names) {
        if (trimmed.compare(known, Qt::CaseInsensitive) == 0)
            return kind;
    }
    return EventKind::Other;
}

QString EventKinds::text(const QString& name)
{
    switch (parse(name)) {
    case EventKind::Person:
        return tr("Person");
    case EventKind::Vehicle:
        return tr("Vehicle");
    case EventKind::Animal:
        return tr("Animal");
    case EventKind::Alarm:
        return tr("Alarm");
    case EventKind::Bookmark:
        return tr("Bookmark");
    case EventKind::Blank:
        return tr("Blank");
    case EventKind::Other:
        break;
    }
    return name;
}

} // namespace Review
