// SPDX-License-Identifier: MIT
#include "rulergestures.h"

#include "ruler_p.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTouchEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace CorvelGui {

namespace {

constexpr int repeatInterval = 200; // milliseconds

} // namespace

/// Sees another finger come down on a touch screen. The first one arrives as the left mouse button,
/// others do not arrive at all.
class RulerGestures::SecondFinger : public QObject
{
public:
    explicit SecondFinger(RulerGestures* gestures) : m_gestures(gestures) {}

    void watch(bool on)
    {
        if (on)
            qApp->installEventFilter(this);
        else
            qApp->removeEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if ((event->type() == QEvent::TouchUpdate || event->type() == QEvent::TouchEnd) &&
            static_cast<const QTouchEvent*>(event)->pointCount() > 1)
            m_gestures->end(Report::NextTurn);
        return false;
    }

private:
    RulerGestures* const m_gestures;
};

RulerGestures::RulerGestures(Ruler* ruler, Ruler::Private& rulerState)
    : QObject(ruler)
    , m_ruler(ruler)
    , d(rulerState)
    , m_moveTimer(this)
    , m_edge(ruler, rulerState)
    , m_secondFinger(std::make_unique<SecondFinger>(this))
{
    m_ruler->installEventFilter(this);
    d.indicator->installEventFilter(this);
    connect(d.arrows, &RulerArrows::pressed, this, &RulerGestures::holdArrow);
    connect(d.arrows, &RulerArrows::released, this, [this] {
        if (m_gesture == Gesture::ArrowHold)
            end();
    });
    connect(d.arrows, &RulerArrows::activated, this, &RulerGestures::activateArrow);
    m_moveTimer.setInterval(repeatInterval);
    connect(&m_moveTimer, &QTimer::timeout, this, &RulerGestures::onMoveTimerTimeout);
    connect(&m_edge, &EdgeScroll::moved, this, &RulerGestures::dragAgain);
}

RulerGestures::~RulerGestures() = default;

// Begin and end

bool RulerGestures::begin(Gesture gesture)
{
    const bool alive = whileAlive(
        this, [this] { end(); }, [&] { setGesture(gesture); }, [this] { tellHeld(); });
    return alive && m_gesture == gesture;
}

void RulerGestures::end(Report report)
{
    if (m_gesture != Gesture::None) {
        const bool scrolled = m_edge.stop();
        m_untoldView = m_gesture == Gesture::ViewDrag || m_gesture == Gesture::ArrowHold ||
                       m_gesture == Gesture::Pinch || scrolled;
        m_moveTimer.stop();
        d.arrows->letGo();
        setGesture(Gesture::None);
        d.range->letGo();
    }
    if (report == Report::Now)
        tellEnd();
    else
        QTimer::singleShot(0, this, &RulerGestures::tellEnd);
}

bool RulerGestures::beginPinch()
{
    return begin(Gesture::Pinch);
}

bool RulerGestures::beginRange()
{
    return begin(Gesture::RangeDrag);
}

void RulerGestures::setGesture(Gesture gesture)
{
    m_gesture = gesture;
    d.history.endGesture();
    m_secondFinger->watch(gesture != Gesture::None && gesture != Gesture::Pinch);
    d.markers->setHoverable(gesture != Gesture::ViewDrag);
    d.hover->setDragging(gesture != Gesture::None && gesture != Gesture::Press &&
                         gesture != Gesture::ArrowHold);
}

void RulerGestures::tellEnd()
{
    whileAlive(
        this, [this] { tellIndicator(); }, [this] { d.range->tellEnd(); },
        [this] {
            if (std::exchange(m_untoldView, false))
                m_ruler->changedTimeLineView(false);
        },
        [this] { tellHeld(); });
}

void RulerGestures::tellIndicator()
{
    const quint64 msecs = m_ruler->getIndicatorMSecs();
    if (std::exchange(m_untoldIndicator, {}) == msecs)
        Q_EMIT m_ruler->indicatorPositionChanged(msecs, m_ruler->getIndicatorPosition());
}

void RulerGestures::tellHeld()
{
    if (std::exchange(m_toldHeld, isHolding()) != isHolding())
        Q_EMIT m_ruler->heldChanged(isHolding());
}

bool RulerGestures::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == d.indicator)
        return indicatorEvent(event);
    if (!mayLoseRelease(event))
        return false;
    if (isHolding())
        end(Report::NextTurn);
    if (event->type() != QEvent::WindowDeactivate && event->type() != QEvent::FocusOut)
        d.hover->abandon();
    return false;
}

// Whether the ruler may not hear of what the mouse does from now on.
bool RulerGestures::mayLoseRelease(const QEvent* event) const
{
    switch (event->type()) {
    case QEvent::Hide:
    case QEvent::WindowBlocked:
    case QEvent::WindowDeactivate:
        return true;
    case QEvent::EnabledChange:
        return !m_ruler->isEnabled();
    case QEvent::FocusOut:
        return static_cast<const QFocusEvent*>(event)->reason() == Qt::PopupFocusReason;
    default:
        return false;
    }
}

// The mouse on the ruler itself

void RulerGestures::press(const QMouseEvent* event)
{
    if (d.blocked)
        return;
    if (d.zoomHistory && event->button() == Qt::BackButton)
        return m_ruler->zoomBack();
    if (d.zoomHistory && event->button() == Qt::ForwardButton)
        return m_ruler->zoomForward();
    if (event->button() != Qt::LeftButton)
        return;
    m_pressPosition = event->position().toPoint();
    m_pressTime = d.scale.fineTimeAt(m_pressPosition.x());
    m_pressMsecs = d.scale.msecsAt(m_pressPosition.x());
    m_selects = d.range->isSelecting(event->modifiers());
    begin(Gesture::Press);
}

void RulerGestures::move(const QMouseEvent* event)
{
    if (d.blocked)
        return;
    const QPoint position = event->position().toPoint();
    const bool isHeld = event->buttons() & Qt::LeftButton;
    if (!isHeld && !whileAlive(this, [this] { end(); }))
        return;

    d.hover->moved(position);
    const bool isFar =
        std::abs(position.x() - m_pressPosition.x()) >= QApplication::startDragDistance();
    if (m_gesture == Gesture::Press && isFar && d.scale.hasView()) {
        setGesture(m_selects ? Gesture::RangeDrag : Gesture::ViewDrag);
        const auto takeRange = [&] {
            if (m_gesture == Gesture::RangeDrag)
                d.range->takeNew(m_pressTime.msecs, m_pressPosition.x(), event->modifiers());
        };
        if (!whileAlive(
                this, [this] { d.hover->stop(); }, takeRange))
            return;
    }
    if (m_gesture == Gesture::RangeDrag)
        dragRange(position, event->modifiers(), isHeld);
    else if (m_gesture != Gesture::ViewDrag)
        d.hover->hover(position);
    else if (isFar)
        dragView(position.x());
}

void RulerGestures::dragView(int x)
{
    const TimeScale& scale = d.scale;
    const double pixelsPerMillisecond = scale.lengthPerMillisecond();
    if (!scale.hasView() || !(pixelsPerMillisecond > 0))
        return;
    if (d.continuousZoom)
        return moveViewSoThat(m_pressTime, x);
    moveViewTo(m_pressMsecs - qint64((x - TimeScale::margin()) / pixelsPerMillisecond), true);
}

void RulerGestures::release(const QMouseEvent* event)
{
    if (d.blocked)
        return;
    const bool wasDrag = m_gesture == Gesture::ViewDrag || m_gesture == Gesture::RangeDrag;
    if (m_gesture == Gesture::Press && event->button() == Qt::LeftButton && !d.resultMode) {
        const int x = int(event->position().x());
        if (d.scale.isOnScale(x))
            placeIndicator(x);
    }
    const QPoint position = event->position().toPoint();
    whileAlive(
        this, [&] { dropRange(position.x(), event->modifiers()); }, [this] { end(); },
        [&] {
            if (wasDrag)
                d.hover->resume(position);
        });
}

// The range

void RulerGestures::dragRange(QPoint position, Qt::KeyboardModifiers held, bool isHeld)
{
    d.hover->movedOnIndicator(position);
    if (!isHeld)
        return end();
    if (m_gesture != Gesture::RangeDrag)
        return;
    m_edge.dragTo(position.x());
    d.range->drag(position.x(), held);
}

void RulerGestures::dropRange(int x, Qt::KeyboardModifiers held)
{
    if (m_gesture != Gesture::RangeDrag)
        return;
    whileAlive(
        this, [&] { d.range->drag(x, held); }, [this] { end(); });
}

// The view has moved under what is dragged.
void RulerGestures::dragAgain()
{
    if (m_gesture == Gesture::RangeDrag)
        return d.range->dragAgain();
    placeIndicator(onScale(m_edge.column()));
    whileAlive(
        this,
        [this] {
            if (d.indicatorDragEnabled)
                tellIndicator();
        },
        [this] { m_ruler->noticeView(); });
}

// The indicator

bool RulerGestures::indicatorEvent(QEvent* event)
{
    if (event->type() == QEvent::Hide && isDraggingIndicator())
        end(Report::NextTurn);
    if (d.blocked)
        return false;

    const auto* mouse = dynamic_cast<QMouseEvent*>(event);
    if (!mouse)
        return false;
    const auto position = [&] {
        return d.indicator->mapToParent(mouse->position().toPoint());
    };
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        if (mouse->button() != Qt::LeftButton)
            return false;
        begin(Gesture::IndicatorDrag);
        return true;
    case QEvent::MouseMove:
        dragIndicator(position(), mouse->buttons() & Qt::LeftButton);
        return true;
    case QEvent::MouseButtonRelease:
        if (!isDraggingIndicator())
            return false;
        dropIndicator(position().x());
        return true;
    default:
        return false;
    }
}

void RulerGestures::dragIndicator(QPoint position, bool isHeld)
{
    d.hover->movedOnIndicator(position);
    if (!isHeld)
        return end();
    if (!isDraggingIndicator())
        return;
    if (d.edgeScrolling)
        m_edge.dragTo(position.x());
    if (d.scale.isOnScale(position.x()))
        placeIndicator(position.x());
    whileAlive(
        this,
        [this] {
            if (d.indicatorDragEnabled)
                tellIndicator();
        },
        [&] { Q_EMIT m_ruler->previewPositionChanged(0, position, false); });
}

void RulerGestures::dropIndicator(int x)
{
    m_untoldIndicator.reset();
    placeIndicator(onScale(x));
    end();
}

int RulerGestures::onScale(int x) const
{
    const int leftmost = int(TimeScale::margin());
    const int rightmost = std::max(int(m_ruler->width() - TimeScale::margin()), leftmost);
    return std::clamp(x, leftmost, rightmost);
}

void RulerGestures::placeIndicator(int x)
{
    if (!d.scale.hasView() || !d.scale.isWithinLimits(d.scale.msecsAt(x)))
        return;
    m_ruler->setIndicatorTime(d.scale.inZone(d.scale.msecsAt(x)));
    m_untoldIndicator = m_ruler->getIndicatorMSecs();
    m_ruler->showIndicatorTime(*m_untoldIndicator);
    d.indicator->moveHotSpotTo(x);
    d.indicator->setVisible(d.active);
}

// The arrows

void RulerGestures::holdArrow(int direction)
{
    if (!begin(Gesture::ArrowHold))
        return;
    d.arrows->hold(direction);
    if (!canMoveViewPort(direction))
        return;
    m_direction = direction;
    m_moveTimer.start();
    moveViewPort(direction);
}

void RulerGestures::activateArrow(int direction)
{
    if (!d.takesInput() || !canMoveViewPort(direction))
        return;
    whileAlive(
        this, [&] { moveViewPort(direction); }, [this] { m_ruler->changedTimeLineView(false); });
}

void RulerGestures::onMoveTimerTimeout()
{
    if (canMoveViewPort(m_direction))
        moveViewPort(m_direction);
    else
        m_moveTimer.stop();
}

bool RulerGestures::canMoveViewPort(int direction) const
{
    if (!d.scale.hasView())
        return false;
    return direction < 0 ? d.scale.beginLimitMs() < d.scale.viewStartMs()
                         : d.scale.viewEndMs() <= d.scale.endLimitMs();
}

void RulerGestures::moveViewPort(int direction)
{
    d.scale.setViewStart(
        d.scale.viewStart().addMSecs(direction * d.scale.millisecondsPerInterval()));
    m_ruler->viewMovedByUser(true);
}

void RulerGestures::moveViewTo(qint64 msecs, bool moving)
{
    const qint64 start = d.scale.startWithinLimits(msecs);
    if (start == d.scale.viewStartMs())
        return;
    d.scale.setViewStart(d.scale.inZone(start));
    m_ruler->viewMovedByUser(moving);
}

void RulerGestures::moveViewSoThat(const FineTime& time, double x)
{
    const TimeScale::View before = d.scale.shownView();
    d.scale.putAt(time, x);
    if (d.scale.shownView() != before)
        m_ruler->viewMovedByUser(true);
}

void RulerGestures::bringIntoView(qint64 msecs)
{
    if (d.scale.pageTo(d.scale.inZone(msecs)))
        m_ruler->viewMovedByUser(false);
}

} // namespace CorvelGui
