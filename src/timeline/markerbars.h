// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"
#include "rulermarker.h"
#include "timespans.h"

#include <array>
#include <optional>

class QPainter;
class QRect;

namespace CorvelGui {

class MarkerStore;
class TimeScale;

/// The stretches of the ruler in which markers that last go on, by their severities.
using MarkerBars = std::array<TimeSpans, RulerMarker::severityCount>;

/// What is seen in the view of @p scale of the markers within @p range, if there is one. The cost
/// follows the columns and the blocks of the store, not what shares a column.
CORVELGUI_INTERNAL_EXPORT MarkerBars markerBars(const MarkerStore& store, const TimeScale& scale,
                                                const std::optional<TimeSpan>& range);

/// Draws them at the foot of @p area, the worst on top.
void drawMarkerBars(QPainter& painter, const MarkerBars& bars, const TimeScale& scale,
                    const QRect& area);

} // namespace CorvelGui
