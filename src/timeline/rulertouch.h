// SPDX-License-Identifier: MIT
#pragma once

#include "ruler.h"
#include "timescale.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <deque>

class QTouchEvent;

namespace CorvelGui {

/// Fingers on a ruler: one is taken for the mouse, until it flicks the view or stays where it is;
/// two pinch.
class RulerTouch : public QObject
{
    Q_OBJECT

public:
    /// Acts on @p ruler, whose private state @p d must outlive it.
    RulerTouch(Ruler* ruler, Ruler::Private& d);

    /// Returns false for a touch that is not the ruler's; the window system then makes a mouse of
    /// it.
    bool handle(const QTouchEvent* event);

private:
    struct Sample
    {
        qint64 time; ///< milliseconds
        double x;
    };

    bool begin(const QTouchEvent* event);
    void move(const QTouchEvent* event);
    void finish(const QTouchEvent* event);
    bool pinch(const QTouchEvent* event);
    void askForMenu();
    void flick();
    void coast();
    void stopCoasting(bool report);

    Ruler* const m_ruler;
    Ruler::Private& d;
    QTimer m_pressTimer; ///< until a finger that stays asks for the menu
    bool m_over = false; ///< what the fingers still do means nothing
    QPointF m_start;
    QPointF m_globalStart;
    std::deque<Sample> m_samples; ///< of the last moments

    QTimer m_coastTimer;
    QElapsedTimer m_coastClock;
    double m_coastSpeed = 0.0; ///< at first, in pixels per millisecond
    FineTime m_coastTime;      ///< what was at the left end then
    TimeScale::View m_coastView;
};

} // namespace CorvelGui
