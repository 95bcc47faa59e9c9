// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"
#include "clockchanges.h"

#include <QFontMetricsF>
#include <QString>

#include <vector>

namespace CorvelGui {

/// A stretch of time at any zoom: @p from is at the left end, and every pixel column stands for the
/// same time.
struct CalendarView
{
    qint64 from = 0;          ///< milliseconds since the epoch
    double msecsPerPixel = 0; ///< more than 0
    double left = 0;          ///< pixel position of from
    double right = 0;         ///< first pixel position that is no longer seen

    double xAt(qint64 instant) const { return left + double(instant - from) / msecsPerPixel; }
};

/// A vertical line of the scale.
struct CalendarTick
{
    qint64 instant;
    double x;
    bool major; ///< carries a label where there is room for one
};

/// A text of the scale. No two in one row overlap, and none is cut at either end.
struct CalendarLabel
{
    qint64 instant; ///< what it stands at; for the first date, what the left end shows
    double x;       ///< where the text starts
    double width;
    int row; ///< 0 beside its tick, 1 below it: what the upper row does not say, and how the
             ///< clocks change
    QString text;
};

/// Everything that a freely zoomed scale draws.
struct CalendarScale
{
    std::vector<CalendarTick> ticks;
    std::vector<CalendarLabel> labels;
    /// Clock changes in view, or of which repeated times are, unless ticks are further apart.
    std::vector<ClockChange> changes;
};

struct CalendarStyle
{
    QFontMetricsF metrics;
    QString dateFormat; ///< of dates with a day, as QDateTime::toString() takes it
};

/// The longest step that people count in and that is not longer than @p msecs; at least 1 ms.
CORVELGUI_INTERNAL_EXPORT qint64 calendarStep(double msecs);

/// Chooses ticks in steps that people count in, from a millisecond to centuries: as close as their
/// labels allow, on the wall clock of the zone. Days start at local midnight, or at the first
/// instant of theirs where midnight is skipped. Times of the wall clock that come twice tell which
/// of the two they are by their distance from UTC.
CORVELGUI_INTERNAL_EXPORT CalendarScale layOutCalendar(const CalendarView& view,
                                                       const ClockChanges& clock,
                                                       const CalendarStyle& style);

} // namespace CorvelGui
