// SPDX-License-Identifier: MIT
#pragma once

#include "tracklanes.h"

#include <QColor>
#include <QRectF>

class QPainter;

namespace CorvelGui {

class TimeScale;
struct RulerColors;
struct RulerRanges;

/// Draws lanes in the colours of a ruler.
struct LanePainter
{
    const TimeScale& scale;
    double rulerLeft;  ///< where its columns begin
    double namesWidth; ///< without the scroll bar

    void drawLane(QPainter& painter, const QRectF& lane, const TrackLanes::Spans& spans) const;
    void drawName(QPainter& painter, const QRectF& lane, const QString& name, bool current) const;
    void drawFrame(QPainter& painter, const QRectF& lane) const;
    /// Over all lanes, which are of @p height together.
    void drawRanges(QPainter& painter, double height, const RulerRanges& ranges,
                    const RulerColors& colors) const;
};

} // namespace CorvelGui
