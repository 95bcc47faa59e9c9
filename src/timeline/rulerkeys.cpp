// SPDX-License-Identifier: MIT
// What the keys of a ruler do.

#include "ruler_p.h"

#include <QKeyEvent>

#include <algorithm>

namespace CorvelGui {

namespace {

constexpr double centerAnchor = 0.5;

} // namespace

bool RulerGestures::pressKey(const QKeyEvent* event)
{
    if (!d.takesInput() || !d.scale.hasView())
        return false;
    const TimeScale& scale = d.scale;
    const qint64 step = event->modifiers() & Qt::ShiftModifier
                            ? scale.millisecondsPerInterval()
                            : scale.millisecondsPerMinorDivision();
    const qint64 indicator = qint64(d.exactIndicator);
    const qint64 span = qint64(scale.millisecondsPerLevel());
    if ((d.zoomHistory && pressHistoryKey(event)) || d.range->pressKey(event))
        return true;
    switch (event->key()) {
    case Qt::Key_Left:
        return moveIndicatorTo(indicator - step), true;
    case Qt::Key_Right:
        return moveIndicatorTo(indicator + step), true;
    case Qt::Key_Home:
        return moveIndicatorTo(scale.beginLimitMs()), true;
    case Qt::Key_End:
        return moveIndicatorTo(scale.endLimitMs()), true;
    case Qt::Key_PageUp:
        return moveViewTo(scale.viewStartMs() - span, false), true;
    case Qt::Key_PageDown:
        return moveViewTo(scale.viewStartMs() + span, false), true;
    case Qt::Key_Plus:
        return m_ruler->zoomIn(), true;
    case Qt::Key_Minus:
        return m_ruler->zoomOut(), true;
    case Qt::Key_0:
        if (!(event->modifiers() & Qt::ControlModifier))
            return false;
        return m_ruler->onZoomerOut(TimeScale::wholeRangeLevel, centerAnchor), true;
    case Qt::Key_N:
        return jumpToNeighbour(+1), true;
    case Qt::Key_P:
        return jumpToNeighbour(-1), true;
    default:
        return false;
    }
}

bool RulerGestures::pressHistoryKey(const QKeyEvent* event)
{
    const bool isAlt = event->modifiers() & Qt::AltModifier;
    const bool isBackspace = event->key() == Qt::Key_Backspace;
    const bool isShift = event->modifiers() & Qt::ShiftModifier;
    if ((isAlt && event->key() == Qt::Key_Left) || (isBackspace && !isShift))
        return m_ruler->zoomBack(), true;
    if ((isAlt && event->key() == Qt::Key_Right) || (isBackspace && isShift))
        return m_ruler->zoomForward(), true;
    return false;
}

void RulerGestures::moveIndicatorTo(qint64 msecs)
{
    const qint64 target = std::clamp(msecs, d.scale.beginLimitMs(), d.scale.endLimitMs());
    if (d.resultMode || target == qint64(d.exactIndicator))
        return;
    m_ruler->setIndicatorTime(d.scale.inZone(target));
    whileAlive(
        this,
        [this] {
            if (m_ruler->bringIndicatorIntoView())
                m_ruler->viewMovedByUser(false);
            else
                m_ruler->updateChildren(false);
        },
        [this] {
            Q_EMIT m_ruler->indicatorPositionChanged(m_ruler->getIndicatorMSecs(),
                                                     m_ruler->getIndicatorPosition());
        });
}

void RulerGestures::jumpToNeighbour(int direction)
{
    const std::optional<RulerMarker> marker =
        d.markers->takeNeighbour(qint64(d.exactIndicator), direction,
                                 {.begin = d.scale.beginLimitMs(), .end = d.scale.endLimitMs()});
    if (!marker)
        return;
    whileAlive(
        this, [&] { moveIndicatorTo(marker->time.toMSecsSinceEpoch()); },
        [&] { Q_EMIT m_ruler->jumpToTime(marker->time, marker->identifier); });
}

} // namespace CorvelGui
