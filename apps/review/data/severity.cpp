// SPDX-License-Identifier: MIT
#include "severity.h"

namespace Review {

Severity Severities::ofKind(EventKind kind)
{
    switch (kind) {
    case EventKind::Alarm:
        return Severity::Alarm;
    case EventKind::Person:
    case EventKind::Vehicle:
    case EventKind::Animal:
        return Severity::Information;
    default:
        return Severity::None;
    }
}

QString Severities::text(Severity severity)
{
    switch (severity) {
    case Severity::Information:
        return tr("Information");
    case Severity::Warning:
        return tr("Warning");
    case Severity::Alarm:
        return tr("Alarm");
    case Severity::None:
        break;
    }
    return {};
}

} // namespace Review
