// SPDX-License-Identifier: MIT
#pragma once

#include "activitypicture.h"
#include "base/accessiblerange.h"
#include "base/keyboardfocus.h"
#include "overviewbox.h"
#include "rulerpainter.h"
#include "timelinescroll.h"
#include "viewareabox.h"

#include <QColor>
#include <QLocale>
#include <QTimer>

#include <algorithm>
#include <optional>

namespace CorvelGui {

struct TimelineScroll::Private
{
    explicit Private(TimelineScroll* strip)
        : q(strip)
        , accessible(strip, {.role = QAccessible::ScrollBar,
                             .name = [] { return tr("Timeline overview"); },
                             .minimum = [] { return 0.0; },
                             .maximum = [] { return 1.0; },
                             .value = [this] { return shownPosition(); },
                             .step = [this] { return keyStep(); },
                             .text = [this] { return spokenPosition(); },
                             .move =
                                 [this](double position) {
                                     q->moveView(position);
                                 }})
    {}

    using Part = OverviewBox::Part;

    ViewAreaBox box() const { return {q->width(), viewArea, centerPosition}; }
    bool hovered() const { return hover || (mouseX && partAt(*mouseX) != Part::Outside); }

    // While the activity is shown.
    OverviewScale overview() const { return OverviewScale(q->width()); }
    OverviewRange view() const
    {
        return wanted.value_or(
            OverviewRange{centerPosition - viewArea / 2, centerPosition + viewArea / 2});
    }

    Part partAt(int x) const
    {
        if (activityVisible)
            return OverviewBox(overview(), view()).partAt(x);
        return box().contains(x) ? Part::Inside : Part::Outside;
    }
    /// Whether a column is left of the box (-1), on it (0) or right of it (+1).
    int sideOf(int x) const
    {
        if (partAt(x) != Part::Outside)
            return 0;
        const double left = activityVisible ? OverviewBox(overview(), view()).left() : box().left();
        return x < left ? -1 : 1;
    }
    double xAt(double position) const
    {
        return activityVisible ? overview().xAt(position) : (q->width() - 2) * position + 1.0;
    }

    // The view may reach beyond the period.
    double shownPosition() const
    {
        return centerPosition > 0.0 ? std::min(centerPosition, 1.0) : 0.0;
    }
    double keyStep() const { return viewArea > 0.0 ? viewArea / keyStepsPerView : 0.0; }
    QString spokenPosition() const
    {
        return tr("%1 percent").arg(QLocale().toString(shownPosition() * 100, 'f', 1));
    }

    void drawSelectedRange(QPainter& painter) const;
    void drawBoxOverActivity(QPainter& painter, const QColor& color) const;

    enum class Hold { None, Box, Edge, BesideBox };

    static constexpr int selectionTint = 90; // of 255
    static constexpr int plainHeight = 15;
    static constexpr int activityHeight = 30;
    static constexpr double keyStepsPerView = 10.0;

    TimelineScroll* const q;

    bool active = false;
    bool theme = false;
    bool resultMode = false;
    double viewArea = 1.0;
    double indicatorPosition = 0.0;
    double centerPosition = 0.0;

    QColor boxColor{100, 100, 100};
    QColor hoverColor{140, 140, 140};
    QColor dragColor{80, 80, 80};
    QColor indicatorColor{255, 210, 0};
    QColor borderColor{180, 180, 180};
    QColor inactiveBorderColor{180, 180, 180};
    QColor searchColor{28, 187, 255};
    QColor selectionColor = RulerColors().selection;

    double searchBegin = 0.0;
    double searchEnd = 0.0;
    bool searchValid = false;
    bool searchDisplayed = false;
    OverviewRange selected = {};

    bool hover = false;
    std::optional<int> mouseX; // while the mouse is inside
    Hold hold = Hold::None;
    bool toldHeld = false;
    int pressX = 0;
    int dragOffset = 0;
    int step = 0;
    QTimer repeatTimer{q};

    bool activityVisible = false;
    ActivityPicture activity;
    Part edge = Part::End;               ///< that is moved
    double grip = 0.0;                   ///< from the box's centre or its edge to the mouse
    std::optional<OverviewRange> wanted; ///< while an edge is moved
    const KeyboardFocus* const focus = new KeyboardFocus(q);

    AccessibleRange accessible;
};

} // namespace CorvelGui
