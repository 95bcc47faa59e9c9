// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/RulerMarker>

#include <QColor>

namespace CorvelGui {

/// The colour of a severity wherever the timeline shows one; readable on its dark bands.
inline QColor severityColor(RulerMarker::Severity severity)
{
    switch (severity) {
    case RulerMarker::Severity::Alarm:
        return {230, 66, 58};
    case RulerMarker::Severity::Warning:
        return {240, 160, 40};
    case RulerMarker::Severity::Information:
        return {84, 156, 222};
    default:
        return {150, 155, 162};
    }
}

} // namespace CorvelGui
