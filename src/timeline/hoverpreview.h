// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QPoint>
#include <QtGlobal>

#include <chrono>

namespace CorvelGui {

/// The rules of the hover preview: when a resting mouse has earned one. It has no timer and reads
/// no clock; whoever owns one asks it at every tick.
class CORVELGUI_INTERNAL_EXPORT HoverPreview
{
public:
    using Clock = std::chrono::steady_clock;

    struct Situation
    {
        bool dragging = false;      ///< the view or the indicator is being dragged
        bool visible = false;       ///< a preview is shown
        bool pending = false;       ///< a preview is being fetched
        bool markerHovered = false; ///< the mouse is on a marker
        qint64 viewStart = 0;       ///< milliseconds since the epoch
        /// From here on a move of the view asks for another preview, in milliseconds.
        qint64 smallestViewMove = 500;
    };

    /// The timer starts, with the mouse at @p position.
    void start(QPoint position, qint64 viewStart, Clock::time_point now);
    void mouseMoved(QPoint position, Clock::time_point now);
    /// Whether a preview is due at a tick of the timer.
    bool isDue(const Situation& situation, Clock::time_point now) const;
    /// A preview was asked for.
    void emitted(qint64 viewStart);

    QPoint mousePosition() const { return m_mousePosition; }
    /// Where the mouse was at the last preview; (-1, -1) if there was none since the start.
    QPoint lastPosition() const { return m_lastPosition; }

private:
    QPoint m_mousePosition;
    QPoint m_lastPosition{-1, -1};
    qint64 m_lastViewStart = 0;
    Clock::time_point m_lastMove;
};

} // namespace CorvelGui
