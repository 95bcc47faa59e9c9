// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QFontMetrics>
#include <QRectF>
#include <QString>

#include <vector>

namespace CorvelGui {

class ClockChanges;
class TimeScale;

/// A vertical line of the scale.
struct Tick
{
    double x;
    double top;
    double bottom;
    bool major;
};

/// A text of the scale; the position is where its baseline starts.
struct TickLabel
{
    double x;
    double baseline;
    QString text;
};

/// Where the clocks go forward or back.
struct ClockMark
{
    double x;
    double top;
    double repeated; ///< pixels before and behind it that the clocks show the same times; 0 forward
};

/// Everything that the scale draws, in the coordinates of the widget.
struct TickLayout
{
    std::vector<Tick> ticks;
    std::vector<TickLabel> labels;
    std::vector<ClockMark> clockMarks;
};

struct TickStyle
{
    QFontMetrics metrics;
    int headerHeight; ///< pixels; minor ticks start below the header
    QString dateFormat;
};

/// Milliseconds from the view start to the midnight after it, on the clock of the view.
CORVELGUI_INTERNAL_EXPORT qint64 msecsToMidnight(const TimeScale& scale);

/// Lays out the scale within @p rect. Major ticks fall on whole intervals counted from the midnight
/// that comes
/// @p toMidnight milliseconds after the view start.
CORVELGUI_INTERNAL_EXPORT TickLayout layoutTicks(const TimeScale& scale, const QRectF& rect,
                                                 const TickStyle& style, qint64 toMidnight);

/// Lays out the scale within @p rect with ticks in steps that people count in.
CORVELGUI_INTERNAL_EXPORT TickLayout layoutCalendarTicks(const TimeScale& scale, const QRectF& rect,
                                                         const TickStyle& style,
                                                         const ClockChanges& clock);

} // namespace CorvelGui
