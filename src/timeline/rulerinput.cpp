// What the ruler does with mouse, wheel and keys.

#include "ruler_p.h"

#include <QApplication>
#include <QEnterEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace CorvelGui {

namespace {

constexpr double centerAnchor = 0.5;

} // namespace

void Ruler::mousePressEvent(QMouseEvent* event)
{
    const QPoint position = event->position().toPoint();
    d->viewDrag.pressPosition = position;
    d->viewDrag.pressTime = d->scale.msecsAt(position.x());
    d->viewDrag.pressed = event->button() == Qt::LeftButton;
}

void Ruler::mouseMoveEvent(QMouseEvent* event)
{
    if (d->blocked)
        return;
    const QPoint position = event->position().toPoint();
    d->hover.mouseMoved(position, HoverPreview::Clock::now());
    d->inPreviewArea = position.y() >= 0 && position.y() <= 2 * d->headerHeight;

    // Buttons hand moves outside of them on to the ruler: those are no drag of the view.
    const bool dragged =
        d->viewDrag.pressed && (event->buttons() & Qt::LeftButton) && d->scale.hasView() &&
        std::abs(position.x() - d->viewDrag.pressPosition.x()) >= QApplication::startDragDistance();
    const QPointer<Ruler> self(this);
    if (!d->viewDrag.active && !dragged) {
        d->markers->hoverAt(position);
        if (!d->inPreviewArea && d->mouseTimer.isActive())
            stopMouseTimer();
        else if (d->inPreviewArea && !d->mouseTimer.isActive())
            startMouseTimer(position);
    }
    if (dragged && !d->viewDrag.active) {
        stopMouseTimer();
        if (self)
            d->viewDrag.active = true;
    }
    if (dragged && self)
        dragView(position.x());
}

void Ruler::dragView(int x)
{
    const TimeScale& scale = d->scale;
    const double pixelsPerMillisecond = scale.lengthPerMillisecond();
    if (!(pixelsPerMillisecond > 0))
        return;
    const qint64 span = qint64(scale.millisecondsPerLevel());
    qint64 start = d->viewDrag.pressTime - qint64((x - TimeScale::margin()) / pixelsPerMillisecond);
    start = std::max(start, scale.beginLimitMs());
    if (start + span > scale.endLimitMs())
        start = scale.endLimitMs() - span;
    if (start == scale.viewStartMs())
        return;
    d->scale.setViewStart(scale.inZone(start));
    viewMovedByUser(true);
}

void Ruler::mouseReleaseEvent(QMouseEvent* event)
{
    if (d->blocked)
        return;
    const ViewDrag drag = std::exchange(d->viewDrag, {});
    if (drag.active) {
        const QPoint position = event->position().toPoint();
        whileAlive(
            this, [this] { changedTimeLineView(false); },
            [&] {
                if (d->takesInput() && d->inPreviewArea && d->previewEnabled)
                    startMouseTimer(position);
            });
    } else if (drag.pressed && event->button() == Qt::LeftButton && !d->resultMode) {
        const double x = event->position().x();
        if (x > TimeScale::margin() && x <= width() - TimeScale::margin() - 1 &&
            placeIndicator(int(x)))
            Q_EMIT indicatorPositionChanged(getIndicatorMSecs(), getIndicatorPosition());
    }
}

bool Ruler::placeIndicator(int x)
{
    if (!d->scale.hasView() || !d->scale.isWithinLimits(d->scale.msecsAt(x)))
        return false;
    setIndicatorTime(d->scale.inZone(d->scale.msecsAt(x)));
    showIndicatorTime(getIndicatorMSecs());
    d->indicator->moveHotSpotTo(x);
    d->indicator->setVisible(d->active);
    return true;
}

void Ruler::wheelEvent(QWheelEvent* event)
{
    event->accept();
    const QPoint degrees = event->angleDelta() / 8.0;
    if (degrees.isNull() || d->blocked)
        return;
    const double anchor = event->position().x() / width();
    const int level = d->scale.level();
    whileAlive(
        this,
        [&] {
            if (degrees.y() <= 0)
                onZoomerOut(level + 1, anchor);
            else if (level > 0)
                changeLevel(level - 1, anchor);
        },
        [this] { Q_EMIT changeSliderZoom(d->scale.level()); });
}

void Ruler::enterEvent(QEnterEvent* event)
{
    const QPoint position = event->position().toPoint();
    d->hovering = true;
    d->inPreviewArea = position.y() >= 0 && position.y() <= 2 * d->headerHeight;
    startMouseTimer(position);
}

void Ruler::leaveEvent(QEvent*)
{
    d->hovering = false;
    d->inPreviewArea = false;
    stopMouseTimer();
}

void Ruler::hideEvent(QHideEvent* event)
{
    d->hovering = false;
    d->inPreviewArea = false;
    endGestures();
    QWidget::hideEvent(event);
}

void Ruler::endGestures()
{
    d->mouseTimer.stop();
    d->arrows->stop();
    d->viewDrag = {};
    d->indicatorDragging = false;
}

bool Ruler::eventFilter(QObject* watched, QEvent* event)
{
    if (d->blocked)
        return false;
    if (watched == d->indicator)
        return indicatorEvent(event);
    if (auto* button = qobject_cast<RulerMarkerButton*>(watched))
        return markerEvent(button, event);
    return false;
}

bool Ruler::indicatorEvent(QEvent* event)
{
    if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseButtonRelease &&
        event->type() != QEvent::MouseMove)
        return false;
    const auto* mouse = static_cast<QMouseEvent*>(event);
    const QPoint position = d->indicator->mapToParent(mouse->position().toPoint());

    if (event->type() == QEvent::MouseButtonPress) {
        if (mouse->button() == Qt::LeftButton)
            d->indicatorDragging = true;
        return false;
    }
    if (event->type() == QEvent::MouseButtonRelease) {
        // The ruler saw the press as well, but will not see this.
        d->viewDrag = {};
        if (!std::exchange(d->indicatorDragging, false))
            return false;
        const int x =
            std::clamp(position.x(), int(TimeScale::margin()),
                       std::max(int(width() - TimeScale::margin()), int(TimeScale::margin())));
        if (placeIndicator(x))
            Q_EMIT indicatorPositionChanged(getIndicatorMSecs(), getIndicatorPosition());
        return true;
    }

    d->hover.mouseMoved(position, HoverPreview::Clock::now());
    if (!d->indicatorDragging)
        return true;
    const bool inScale =
        position.x() > TimeScale::margin() && position.x() < width() - TimeScale::margin();
    const bool placed = inScale && placeIndicator(position.x());
    whileAlive(
        this,
        [&] {
            if (placed && d->indicatorDragEnabled)
                Q_EMIT indicatorPositionChanged(getIndicatorMSecs(), getIndicatorPosition());
        },
        [&] { Q_EMIT previewPositionChanged(0, position, false); });
    return true;
}

bool Ruler::markerEvent(RulerMarkerButton* button, QEvent* event)
{
    if (!d->viewDrag.active && checkRulerMarkerEvent(button, event))
        return true;
    const bool isPress = event->type() == QEvent::MouseButtonPress;
    if (!isPress && event->type() != QEvent::MouseButtonDblClick)
        return false;
    if (static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton)
        return false;

    const QPointer<RulerMarkerButton> alive(button);
    const QDateTime time = button->marker().time;
    const QUuid identifier = button->marker().identifier;
    if (isPress)
        Q_EMIT jumpToTime(time, identifier);
    else
        Q_EMIT jumpToTrackTime(time, identifier);
    // A button that is gone handles no event any more.
    return alive.isNull();
}

bool Ruler::checkRulerMarkerEvent(RulerMarkerButton* button, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::MouseMove: {
        const QPointF inButton = static_cast<QSinglePointEvent*>(event)->position();
        const QPoint position = button->mapToParent(inButton.toPoint());
        d->hover.mouseMoved(position, HoverPreview::Clock::now());
        d->markers->setHovered(button, true);
        if (!d->mouseTimer.isActive())
            startMouseTimer(position);
        // Passed on to the ruler, a move would count as one outside the preview area.
        return event->type() == QEvent::MouseMove && !static_cast<QMouseEvent*>(event)->buttons();
    }
    case QEvent::Leave:
        d->markers->setHovered(button, false);
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
        button->setAlternativeHover(event->type() == QEvent::MouseButtonPress);
        break;
    default:
        break;
    }
    return false;
}

void Ruler::startMouseTimer(QPoint position)
{
    if (!d->takesInput() || !d->previewEnabled || !isVisible())
        return;
    d->hover.start(position, d->scale.viewStartMs(), HoverPreview::Clock::now());
    d->mouseTimer.start();
}

void Ruler::stopMouseTimer()
{
    d->mouseTimer.stop();
    Q_EMIT previewPositionChanged(0, d->hover.mousePosition(), false);
}

void Ruler::onMouseTimerTimeout()
{
    const HoverPreview::Situation situation{.dragging = d->indicatorDragging || d->viewDrag.active,
                                            .visible = d->previewVisible,
                                            .pending = d->previewPending,
                                            .markerHovered = d->markers->hovered() != nullptr,
                                            .viewStart = d->scale.viewStartMs()};
    if (d->hover.isDue(situation, HoverPreview::Clock::now()))
        emitPrviewPositionChanged();
}

void Ruler::emitPrviewPositionChanged()
{
    const auto previewMarker = [this] {
        const RulerMarkerButton* button = d->markers->takeHovered();
        if (!button)
            return;
        const qint64 msecs = button->marker().time.toMSecsSinceEpoch();
        if (d->scale.isWithinLimits(msecs))
            Q_EMIT previewPositionChanged(quint64(msecs), button->geometry().center(), true);
    };
    const auto previewMousePosition = [this] {
        d->hover.emitted(d->scale.viewStartMs());
        const QPoint position = d->hover.mousePosition();
        if (position.x() <= TimeScale::margin() || position.x() >= width() - TimeScale::margin() ||
            !d->scale.hasView())
            return;
        const qint64 msecs = d->scale.msecsAt(position.x());
        if (d->scale.isWithinLimits(msecs))
            Q_EMIT previewPositionChanged(quint64(msecs), position, false);
    };
    whileAlive(this, previewMarker, previewMousePosition);
}

void Ruler::checkPreviewLine()
{
    if (!d->previewTime.isValid() || !d->scale.hasView())
        return;
    const double x = d->scale.xAt(d->previewTime.toMSecsSinceEpoch());
    const int column =
        int(std::lround(std::max(std::min(x, d->scale.sightEnd()), TimeScale::halfMargin())));
    if (column != d->hover.lastPosition().x())
        Q_EMIT previewIndicatorPositionChanged(QPoint(column, d->hover.lastPosition().y()));
}

void Ruler::keyPressEvent(QKeyEvent* event)
{
    if (!d->takesInput() || !d->scale.hasView())
        return QWidget::keyPressEvent(event);

    const TimeScale& scale = d->scale;
    const qint64 step = event->modifiers() & Qt::ShiftModifier
                            ? scale.millisecondsPerInterval()
                            : scale.millisecondsPerMinorDivision();
    const qint64 indicator = qint64(d->exactIndicator);
    const qint64 span = qint64(scale.millisecondsPerLevel());
    switch (event->key()) {
    case Qt::Key_Left:
        return moveIndicatorByKey(indicator - step);
    case Qt::Key_Right:
        return moveIndicatorByKey(indicator + step);
    case Qt::Key_Home:
        return moveIndicatorByKey(scale.beginLimitMs());
    case Qt::Key_End:
        return moveIndicatorByKey(scale.endLimitMs());
    case Qt::Key_PageUp:
        return moveViewByKey(scale.viewStartMs() - span);
    case Qt::Key_PageDown:
        return moveViewByKey(scale.viewStartMs() + span);
    case Qt::Key_Plus:
        return onZoomerIn(scale.level() - 1, centerAnchor);
    case Qt::Key_Minus:
        return onZoomerOut(scale.level() + 1, centerAnchor);
    case Qt::Key_0:
        if (event->modifiers() & Qt::ControlModifier)
            return onZoomerOut(TimeScale::wholeRangeLevel, centerAnchor);
        break;
    case Qt::Key_N:
        return jumpToNeighbour(+1);
    case Qt::Key_P:
        return jumpToNeighbour(-1);
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}

void Ruler::moveIndicatorByKey(qint64 msecs)
{
    const qint64 target = std::clamp(msecs, d->scale.beginLimitMs(), d->scale.endLimitMs());
    if (d->resultMode || target == qint64(d->exactIndicator))
        return;
    setIndicatorTime(d->scale.inZone(target));
    whileAlive(
        this,
        [this] {
            if (d->scale.pageTo(d->indicatorTime))
                viewMovedByUser(false);
            else
                updateChildren(false);
        },
        [this] { Q_EMIT indicatorPositionChanged(getIndicatorMSecs(), getIndicatorPosition()); });
}

void Ruler::moveViewByKey(qint64 msecs)
{
    const TimeScale& scale = d->scale;
    const qint64 latest = scale.endLimitMs() - qint64(scale.millisecondsPerLevel());
    const qint64 start = std::max(std::min(msecs, latest), scale.beginLimitMs());
    if (start == scale.viewStartMs())
        return;
    d->scale.setViewStart(scale.inZone(start));
    viewMovedByUser(false);
}

void Ruler::jumpToNeighbour(int direction)
{
    const std::optional<RulerMarker> marker =
        d->markers->takeNeighbour(qint64(d->exactIndicator), direction,
                                  {.begin = d->scale.beginLimitMs(), .end = d->scale.endLimitMs()});
    if (!marker)
        return;
    const QDateTime time = marker->time;
    const QUuid identifier = marker->identifier;
    whileAlive(
        this, [&] { moveIndicatorByKey(time.toMSecsSinceEpoch()); },
        [&] { Q_EMIT jumpToTime(time, identifier); });
}

} // namespace CorvelGui
