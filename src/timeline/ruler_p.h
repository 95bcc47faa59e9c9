// SPDX-License-Identifier: MIT
#pragma once

#include "base/accessiblerange.h"
#include "base/keyboardfocus.h"
#include "base/whilealive.h"
#include "clockchanges.h"
#include "indicator.h"
#include "ruler.h"
#include "rulerarrows.h"
#include "rulergestures.h"
#include "rulerhover.h"
#include "rulermarkers.h"
#include "rulerpainter.h"
#include "rulerrange.h"
#include "rulertouch.h"
#include "rulerzoominput.h"
#include "timescale.h"
#include "tracklanes.h"
#include "tracksegments.h"
#include "viewfollower.h"
#include "viewhistory.h"
#include "viewrest.h"

#include <memory>
#include <optional>

namespace CorvelGui {

struct Ruler::Private
{
    TimeScale scale;
    ClockChanges clock;
    TrackSegments segments;
    TrackLanes lanes;
    RulerPainter painter;
    QString dateFormat;

    // Children
    Indicator* indicator = nullptr;
    RulerArrows* arrows = nullptr;
    RulerMarkers* markers = nullptr;

    const KeyboardFocus* focus = nullptr;

    QDateTime indicatorTime;
    quint64 exactIndicator = 0; ///< with the steps below a pixel; 0 without an indicator
    bool indicatorDragEnabled = false;
    QDateTime previewTime;

    std::optional<TimeSpan> searchRange;
    bool searchDisplayed = false;
    std::optional<TimeSpan> resultRange;
    bool resultBeginMarked = false;
    bool resultEndMarked = false;

    std::unique_ptr<RulerRange> range;
    bool edgeScrolling = false;

    int headerHeight = 0;
    QSize iconSize{20, 20}; ///< of which markers have about half
    unsigned int fontSize = 8;
    bool theme = true;
    bool playMode = true;
    bool resultMode = false;
    bool active = false;
    bool blocked = false;
    bool markerDetails = false;
    MergedClick mergedClick = MergedClick::Jump;
    bool viewChangeBlocked = false;
    bool viewChangePending = false;

    bool continuousZoom = false;
    bool calendarTicks = false;
    bool fineWheel = false;
    bool zoomHistory = false;
    ViewHistory history;
    std::pair<bool, bool> historyReported; ///< back, forward

    std::unique_ptr<ViewRest> rest;
    ViewFollower follower;
    bool followingReported = false;

    std::unique_ptr<RulerHover> hover;
    std::unique_ptr<RulerGestures> gestures;
    std::unique_ptr<RulerZoomInput> zoomInput;
    std::unique_ptr<RulerTouch> touch;

    // Last, so that it stops asking before anything else is gone.
    std::unique_ptr<AccessibleRange> accessible;

    bool takesInput() const { return active && !blocked; }
    bool showsCalendar() const { return calendarTicks || continuousZoom; }
    /// As ClockChanges::whichOfTwo(), where clock changes are told.
    QString whichOfTwo(qint64 instant) const
    {
        return showsCalendar() ? clock.whichOfTwo(instant) : QString();
    }
    RulerRanges shownRanges() const;
    /// The column that keys act on, in a ruler of a width: that of the focused handle of the
    /// range, of the indicator, or the middle.
    int columnForKeys(int width) const;
    /// The column of the exact indicator, or the middle.
    double zoomColumn(int width) const;
};

/// The view was zoomed, or may have been.
struct Ruler::Zoomed
{
    TimeScale::View before;
    ViewHistory::Zoom how = ViewHistory::Zoom::Whole;
    bool moving = false;    ///< more follows at once
    bool remembered = true; ///< where a history is kept
};

} // namespace CorvelGui
