// SPDX-License-Identifier: MIT
#pragma once

#include "edgescroll.h"
#include "ruler.h"
#include "timescale.h"

#include <QObject>
#include <QPoint>
#include <QTimer>

#include <memory>
#include <optional>

namespace CorvelGui {

/// What the user does to a ruler with mouse and keys; RulerTouch brings fingers here.
///
/// At most one gesture runs: from the press of the left mouse button on the ruler, its indicator or
/// one of its arrows, or of two fingers, until end(), which comes with the release, or with
/// whatever means that the release went elsewhere.
class RulerGestures : public QObject
{
    Q_OBJECT

public:
    /// Acts on @p ruler, whose private state @p d must outlive it.
    RulerGestures(Ruler* ruler, Ruler::Private& d);
    ~RulerGestures() override;

    /// Whether the user holds the ruler, its indicator or an arrow.
    bool isHolding() const { return m_gesture != Gesture::None; }
    bool isDraggingIndicator() const { return m_gesture == Gesture::IndicatorDrag; }
    bool isDraggingView() const { return m_gesture == Gesture::ViewDrag; }
    bool isPinching() const { return m_gesture == Gesture::Pinch; }

    void press(const QMouseEvent* event);
    void move(const QMouseEvent* event);
    void release(const QMouseEvent* event);
    /// Two fingers take hold. Returns whether they still do, because clients hear of it at once.
    bool beginPinch();
    /// Moves the view so that a time is at column @p x, as far as the limits allow.
    void moveViewSoThat(const FineTime& time, double x);
    /// The range is taken by one of its handles. Returns whether it still is.
    bool beginRange();
    void dragRange(QPoint position, Qt::KeyboardModifiers held, bool isHeld);
    void dropRange(int x, Qt::KeyboardModifiers held);
    /// Moves the view just as far as it takes to show an instant.
    void bringIntoView(qint64 msecs);
    /// Returns false for a key that means nothing to a ruler.
    bool pressKey(const QKeyEvent* event);
    /// Puts the indicator to an instant, as a key does.
    void moveIndicatorTo(qint64 msecs);

    /// Clients may act on reports at once, unless Qt is in the middle of something.
    enum class Report { Now, NextTurn };
    /// Ends the gesture and reports that it is over.
    void end(Report report = Report::Now);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Gesture {
        None,
        Press, ///< of the ruler, which is a click unless it becomes a drag of the view or a range
        ViewDrag,
        IndicatorDrag,
        RangeDrag,
        ArrowHold,
        Pinch
    };
    class SecondFinger;

    /// Returns whether the gesture runs, because clients hear of it at once.
    bool begin(Gesture gesture);
    void setGesture(Gesture gesture);
    void tellEnd();
    void tellIndicator();
    void tellHeld();
    bool mayLoseRelease(const QEvent* event) const;

    void dragView(int x);
    void dragAgain();
    bool pressHistoryKey(const QKeyEvent* event);
    bool indicatorEvent(QEvent* event);
    void dragIndicator(QPoint position, bool isHeld);
    void dropIndicator(int x);
    void placeIndicator(int x);
    int onScale(int x) const;

    void holdArrow(int direction);
    void activateArrow(int direction);
    void onMoveTimerTimeout();
    bool canMoveViewPort(int direction) const;
    void moveViewPort(int direction);

    void moveViewTo(qint64 msecs, bool moving);
    void jumpToNeighbour(int direction);

    Ruler* const m_ruler;
    Ruler::Private& d;
    Gesture m_gesture = Gesture::None;
    QPoint m_pressPosition;
    FineTime m_pressTime;
    qint64 m_pressMsecs = 0; ///< in the whole milliseconds in which a drag counts between levels
    bool m_selects = false;  ///< if the press becomes a drag
    QTimer m_moveTimer;
    EdgeScroll m_edge;
    int m_direction = 0;
    const std::unique_ptr<SecondFinger> m_secondFinger;

    // What clients have not been told yet.
    std::optional<quint64> m_untoldIndicator;
    bool m_untoldView = false;
    bool m_toldHeld = false;
};

} // namespace CorvelGui
