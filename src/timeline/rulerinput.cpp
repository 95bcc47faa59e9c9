// SPDX-License-Identifier: MIT
// What the ruler hears of mouse, wheel and keys. Gestures and hover preview do the rest.

#include "ruler_p.h"

#include <QCursor>
#include <QEnterEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QTouchEvent>
#include <QWheelEvent>

namespace CorvelGui {

void Ruler::setIndicatorDragEnabled(bool on)
{
    d->indicatorDragEnabled = on;
}

bool Ruler::isFineWheel() const
{
    return d->fineWheel;
}

void Ruler::setFineWheel(bool on)
{
    if (d->fineWheel == on)
        return;
    d->fineWheel = on;
    Q_EMIT fineWheelChanged(on);
}

bool Ruler::hasTouchGestures() const
{
    return testAttribute(Qt::WA_AcceptTouchEvents);
}

void Ruler::setTouchGestures(bool on)
{
    if (hasTouchGestures() == on)
        return;
    setAttribute(Qt::WA_AcceptTouchEvents, on);
    Q_EMIT touchGesturesChanged(on);
}

void Ruler::setPreviewEnabled(bool on)
{
    if (d->active)
        update();
    d->hover->setEnabled(on);
}

bool Ruler::setPreviewIndicatorPosition(quint64 msecs)
{
    d->previewTime = msecs == 0 ? QDateTime() : d->scale.inZone(TimeScale::instant(msecs));
    if (d->active)
        update();
    if (d->previewTime.isValid())
        QTimer::singleShot(0, this, [this] { d->hover->checkPreviewLine(d->previewTime); });
    return true;
}

void Ruler::onPreviewVisible(bool visible, bool pending)
{
    d->hover->setPreview(visible, pending);
    if (d->active)
        update();
}

bool Ruler::isHeld() const
{
    return d->gestures->isHolding();
}

void Ruler::setActive(bool active, bool blocked)
{
    d->active = active;
    d->blocked = blocked;
    d->markers->setBlocked(blocked);
    const auto endInput = [this] {
        if (!d->takesInput())
            d->gestures->end();
    };
    const auto showState = [this] {
        if (!d->active)
            d->indicator->hide();
        d->arrows->setEnabled(d->takesInput());
        d->indicator->setCursor(d->blocked ? Qt::ArrowCursor : Qt::SizeHorCursor);
        d->indicator->setMouseTracking(!d->blocked);
    };
    whileAlive(
        this, endInput, [this] { d->hover->setUsable(d->takesInput()); }, showState,
        [this] { updateChildren(false); },
        [this] { d->hover->resume(mapFromGlobal(QCursor::pos())); });
}

bool Ruler::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        event->setAccepted(d->touch->handle(static_cast<const QTouchEvent*>(event)));
        return true;
    case QEvent::NativeGesture:
        if (d->zoomInput->pinch(static_cast<const QNativeGestureEvent*>(event)))
            return true;
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

void Ruler::mousePressEvent(QMouseEvent* event)
{
    d->gestures->press(event);
}

void Ruler::mouseMoveEvent(QMouseEvent* event)
{
    d->gestures->move(event);
}

void Ruler::mouseReleaseEvent(QMouseEvent* event)
{
    d->gestures->release(event);
}

void Ruler::wheelEvent(QWheelEvent* event)
{
    event->accept();
    d->zoomInput->turnWheel(event);
}

void Ruler::keyPressEvent(QKeyEvent* event)
{
    if (!openByKey(event) && !d->gestures->pressKey(event))
        QWidget::keyPressEvent(event);
}

void Ruler::enterEvent(QEnterEvent* event)
{
    d->hover->enter(event->position().toPoint());
}

void Ruler::leaveEvent(QEvent*)
{
    d->hover->leave();
}

} // namespace CorvelGui
