// SPDX-License-Identifier: MIT
#include "rulertouch.h"

#include "ruler_p.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QStyleHints>
#include <QTouchEvent>

#include <algorithm>
#include <cmath>

namespace CorvelGui {

namespace {

constexpr qint64 flickMemory = 100;  // milliseconds before a finger leaves that its speed is of
constexpr double slowestFlick = 0.3; // pixels per millisecond
constexpr double slowestCoast = 0.02;
constexpr double coastTime = 325; // milliseconds until the speed is a third
constexpr int frameTime = 16;

QList<QEventPoint> fingersOf(const QTouchEvent* event)
{
    QList<QEventPoint> fingers = event->points();
    fingers.removeIf(
        [](const QEventPoint& point) { return point.state() == QEventPoint::Released; });
    return fingers;
}

QMouseEvent mouseEvent(QEvent::Type type, const QEventPoint& finger)
{
    const bool isMove = type == QEvent::MouseMove;
    const bool isRelease = type == QEvent::MouseButtonRelease;
    return {type,
            finger.position(),
            finger.globalPosition(),
            isMove ? Qt::NoButton : Qt::LeftButton,
            isRelease ? Qt::NoButton : Qt::LeftButton,
            Qt::NoModifier};
}

} // namespace

RulerTouch::RulerTouch(Ruler* ruler, Ruler::Private& rulerState)
    : QObject(ruler), m_ruler(ruler), d(rulerState), m_pressTimer(this), m_coastTimer(this)
{
    m_pressTimer.setSingleShot(true);
    connect(&m_pressTimer, &QTimer::timeout, this, &RulerTouch::askForMenu);
    m_coastTimer.setInterval(frameTime);
    connect(&m_coastTimer, &QTimer::timeout, this, &RulerTouch::coast);
}

bool RulerTouch::handle(const QTouchEvent* event)
{
    switch (event->type()) {
    case QEvent::TouchBegin:
        return begin(event);
    case QEvent::TouchUpdate:
        move(event);
        return true;
    case QEvent::TouchEnd:
        finish(event);
        return true;
    default:
        m_pressTimer.stop();
        d.gestures->end();
        return true;
    }
}

bool RulerTouch::begin(const QTouchEvent* event)
{
    const QEventPoint& finger = event->points().first();
    if (!d.takesInput() || m_ruler->childAt(finger.position().toPoint()))
        return false;
    // A finger that stops the view wants nothing else.
    m_over = m_coastTimer.isActive();
    m_start = finger.position();
    m_globalStart = finger.globalPosition();
    m_samples = {{qint64(event->timestamp()), m_start.x()}};
    if (m_over) {
        stopCoasting(true);
        return true;
    }
    m_pressTimer.start(QGuiApplication::styleHints()->mousePressAndHoldInterval());
    const QMouseEvent press = mouseEvent(QEvent::MouseButtonPress, finger);
    d.gestures->press(&press);
    return true;
}

void RulerTouch::move(const QTouchEvent* event)
{
    if (m_over || pinch(event))
        return;
    const QList<QEventPoint> fingers = fingersOf(event);
    if (fingers.isEmpty())
        return;
    const QPointF position = fingers.first().position();
    if ((position - m_start).manhattanLength() >= QApplication::startDragDistance())
        m_pressTimer.stop();
    m_samples.push_back({qint64(event->timestamp()), position.x()});
    while (m_samples.size() > 2 && m_samples.front().time < m_samples.back().time - flickMemory)
        m_samples.pop_front();
    const QMouseEvent move = mouseEvent(QEvent::MouseMove, fingers.first());
    d.gestures->move(&move);
}

// Two fingers, from when they are down until one of them leaves.
bool RulerTouch::pinch(const QTouchEvent* event)
{
    const QList<QEventPoint> fingers = fingersOf(event);
    if (fingers.size() < 2) {
        m_over = d.gestures->isPinching();
        if (m_over)
            d.gestures->end();
        return m_over;
    }
    m_pressTimer.stop();
    const QPointF first = fingers[0].position();
    const QPointF second = fingers[1].position();
    const double x = (first.x() + second.x()) / 2;
    const double distance = std::hypot(second.x() - first.x(), second.y() - first.y());
    if (d.gestures->isPinching())
        d.zoomInput->movePinch(x, distance);
    else if (d.gestures->beginPinch())
        d.zoomInput->beginPinch(x, distance);
    return true;
}

void RulerTouch::finish(const QTouchEvent* event)
{
    m_pressTimer.stop();
    if (m_over)
        return;
    if (d.gestures->isPinching())
        return d.gestures->end();
    const bool wasDrag = d.gestures->isDraggingView();
    const QEventPoint finger = event->points().first();
    m_samples.push_back({qint64(event->timestamp()), finger.position().x()});
    const QMouseEvent release = mouseEvent(QEvent::MouseButtonRelease, finger);
    whileAlive(
        this, [&] { d.gestures->release(&release); },
        [&] {
            if (wasDrag)
                flick();
        });
}

void RulerTouch::askForMenu()
{
    m_over = true;
    whileAlive(
        this, [this] { d.gestures->end(); },
        [this] {
            QContextMenuEvent event(QContextMenuEvent::Other, m_start.toPoint(),
                                    m_globalStart.toPoint());
            QApplication::sendEvent(m_ruler, &event);
        });
}

void RulerTouch::flick()
{
    const Sample& first = m_samples.front();
    const Sample& last = m_samples.back();
    // A finger that rested before it left does not throw.
    const Sample& before = m_samples[m_samples.size() - 2];
    if (last.time <= first.time || last.time - before.time >= flickMemory)
        return;
    m_coastSpeed = (last.x - first.x) / double(last.time - first.time);
    if (std::abs(m_coastSpeed) < slowestFlick || !d.takesInput())
        return;
    m_coastTime = d.scale.fineTimeAt(TimeScale::margin());
    m_coastView = d.scale.shownView();
    m_coastClock.start();
    m_coastTimer.start();
}

void RulerTouch::coast()
{
    // Whoever else moves or takes the view has it.
    if (d.scale.shownView() != m_coastView || d.gestures->isHolding() || !d.takesInput())
        return stopCoasting(false);
    const double left = std::exp(-double(m_coastClock.elapsed()) / coastTime);
    const double way = m_coastSpeed * coastTime * (1 - left);
    const auto go = [&] {
        d.gestures->moveViewSoThat(m_coastTime, TimeScale::margin() + way);
    };
    if (!whileAlive(this, go))
        return;
    const bool stands = d.scale.shownView() == m_coastView && std::abs(way) > 1;
    m_coastView = d.scale.shownView();
    if (stands || std::abs(m_coastSpeed) * left < slowestCoast)
        stopCoasting(true);
}

void RulerTouch::stopCoasting(bool report)
{
    m_coastTimer.stop();
    if (report)
        m_ruler->changedTimeLineView(false);
}

} // namespace CorvelGui
