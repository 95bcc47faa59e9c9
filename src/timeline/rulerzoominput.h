// SPDX-License-Identifier: MIT
#pragma once

#include "base/wheelturns.h"
#include "ruler.h"
#include "timescale.h"

#include <QObject>
#include <QTimer>

class QNativeGestureEvent;

namespace CorvelGui {

/// What the user does to the zoom of a ruler with a wheel, a touchpad or two fingers.
class RulerZoomInput : public QObject
{
    Q_OBJECT

public:
    /// Acts on @p ruler, whose private state @p d must outlive it.
    RulerZoomInput(Ruler* ruler, Ruler::Private& d);

    void turnWheel(const QWheelEvent* event);
    /// Returns false for what is no pinch on a touchpad.
    bool pinch(const QNativeGestureEvent* event);

    /// Two fingers come down, with their middle at @p x and as far from each other as @p distance
    /// says.
    void beginPinch(double x, double distance);
    /// What was between the fingers stays there.
    void movePinch(double x, double distance);

private:
    void turnSideways(const QWheelEvent* event);
    void zoomByNotches(double notches, double x);
    bool zoomByLevel(int direction, double x);

    Ruler* const m_ruler;
    Ruler::Private& d;
    WheelTurns m_wheel;
    QTimer m_restTimer; ///< until the view counts as no longer moving

    // When the fingers came down.
    FineTime m_pinchTime;
    double m_pinchSpan = 0.0;
    double m_pinchDistance = 1.0;
};

} // namespace CorvelGui
