// SPDX-License-Identifier: MIT
#include "rulerzoominput.h"

#include "ruler_p.h"

#include <QNativeGestureEvent>
#include <QWheelEvent>

#include <cmath>
#include <cstdlib>

namespace CorvelGui {

namespace {

constexpr int restInterval = 200; // milliseconds
constexpr double notchFactor = 1.4142135623730951;
constexpr double pixelsPerNotch = 60;

} // namespace

RulerZoomInput::RulerZoomInput(Ruler* ruler, Ruler::Private& rulerState)
    : QObject(ruler), m_ruler(ruler), d(rulerState), m_restTimer(this)
{
    m_restTimer.setSingleShot(true);
    m_restTimer.setInterval(restInterval);
    connect(&m_restTimer, &QTimer::timeout, this, [this] { m_ruler->changedTimeLineView(false); });
}

void RulerZoomInput::turnWheel(const QWheelEvent* event)
{
    if (d.blocked)
        return;
    const QPoint angle = event->angleDelta();
    const double x = event->position().x();
    if (!d.fineWheel) {
        const QPoint degrees = angle / 8.0;
        if (!degrees.isNull())
            zoomByNotches(degrees.y() > 0 ? +1 : -1, x);
    } else if (WheelTurns::isSideways(angle) || event->modifiers() & Qt::ShiftModifier) {
        turnSideways(event);
    } else if (angle.y() != 0 && event->phase() != Qt::ScrollMomentum) {
        // With continuous zoom by just as much, else by whole notches.
        const double notches = d.continuousZoom ? double(angle.y()) / WheelTurns::notch
                                                : double(m_wheel.add(angle.y()));
        zoomByNotches(notches, x);
    }
}

void RulerZoomInput::turnSideways(const QWheelEvent* event)
{
    const auto length = [](QPoint delta) {
        return WheelTurns::isSideways(delta) ? delta.x() : delta.y();
    };
    const int pixels = length(event->pixelDelta());
    const double distance =
        pixels != 0 ? pixels : length(event->angleDelta()) * pixelsPerNotch / WheelTurns::notch;
    const TimeScale& scale = d.scale;
    m_restTimer.start();
    d.gestures->moveViewSoThat(scale.fineTimeAt(scale.margin()), scale.margin() + distance);
}

void RulerZoomInput::zoomByNotches(double notches, double x)
{
    if (notches == 0)
        return;
    if (d.continuousZoom)
        return m_ruler->zoomAbout(std::pow(notchFactor, notches), x);
    const int direction = notches > 0 ? +1 : -1;
    for (int step = 0; step < std::abs(int(notches)); ++step)
        if (!zoomByLevel(direction, x))
            return;
}

bool RulerZoomInput::zoomByLevel(int direction, double x)
{
    const double anchor = x / m_ruler->width();
    const int level = d.scale.level();
    return whileAlive(
        this,
        [&] {
            if (direction < 0)
                m_ruler->onZoomerOut(level + 1, anchor);
            else if (level > 0)
                m_ruler->changeLevel(level - 1, anchor);
        },
        [this] { Q_EMIT m_ruler->changeSliderZoom(d.scale.level()); });
}

bool RulerZoomInput::pinch(const QNativeGestureEvent* event)
{
    if (!d.continuousZoom || d.blocked || event->gestureType() != Qt::ZoomNativeGesture)
        return false;
    m_ruler->zoomAbout(std::max(1 + event->value(), 0.1), event->position().x());
    return true;
}

void RulerZoomInput::beginPinch(double x, double distance)
{
    m_pinchTime = d.scale.fineTimeAt(x);
    m_pinchSpan = d.scale.exactSpan();
    m_pinchDistance = std::max(distance, 1.0);
}

void RulerZoomInput::movePinch(double x, double distance)
{
    const double span = m_pinchSpan * m_pinchDistance / std::max(distance, 1.0);
    if (d.continuousZoom)
        return m_ruler->zoomTo(span, m_pinchTime, x, true);
    const int level = d.scale.nearestLevel(span);
    const bool zooms = level != d.scale.level() && span != d.scale.exactSpan();
    whileAlive(
        this,
        [&] {
            if (zooms)
                m_ruler->changeLevel(level, x / m_ruler->width());
        },
        [&] { d.gestures->moveViewSoThat(m_pinchTime, x); });
}

} // namespace CorvelGui
