#pragma once

#include "times.h"

#include <CorvelGui/Ruler>

#include <QAccessible>
#include <QApplication>
#include <QStringList>
#include <QTest>
#include <QTimeZone>

#include <utility>

/// Milliseconds since the epoch, @p offset after a Monday's midnight in UTC.
inline quint64 at(qint64 offset)
{
    return quint64(monday + offset);
}

inline QDateTime timeAt(qint64 offset)
{
    return QDateTime::fromMSecsSinceEpoch(monday + offset, QTimeZone::utc());
}

inline void moveMouse(QWidget& widget, QPoint position, Qt::MouseButtons buttons = {})
{
    QMouseEvent event(QEvent::MouseMove, position, widget.mapToGlobal(position), Qt::NoButton,
                      buttons, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

/// What assistive technology does with a button.
inline void pressByAssistiveTechnology(QWidget* button)
{
    QAccessible::queryAccessibleInterface(button)->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
}

inline void leaveMouse(QWidget& widget)
{
    QEvent event(QEvent::Leave);
    QApplication::sendEvent(&widget, &event);
}

/// An active ruler in UTC with 1000 pixels of scale that writes down its signals in order. It shows
/// the first hour from Monday, 3.6 seconds a pixel, unless it has no duration.
class LoggedRuler : public CorvelGui::Ruler
{
public:
    explicit LoggedRuler(qint64 duration = 10 * day)
    {
        using namespace Qt::StringLiterals;
        using CorvelGui::Ruler;

        resize(1020, height());
        show(); // a widget that was never shown does not know its size
        setTimeZone(u"UTC"_s);
        setActive(true, false);
        const auto clock = [](const QDateTime& time) {
            return time.toString(u"dd hh:mm"_s);
        };
        const auto number = [](double value) {
            return QString::number(value, 'g', 4);
        };
        connect(this, &Ruler::changeSliderZoom, this,
                [this](int level) { log << u"level %1"_s.arg(level); });
        connect(this, &Ruler::centerPositionChanged, this,
                [=, this](double position) { log << u"center "_s + number(position); });
        connect(this, &Ruler::indicatorPositionChanged, this, [=, this](quint64 msecs, double) {
            log << u"indicator %1"_s.arg((qint64(msecs) - monday) / second);
        });
        connect(this, &Ruler::timeLineViewChanged, this,
                [=, this](const QDateTime&, const QDateTime&, const QDateTime& begin,
                          const QDateTime& end, bool moving) {
                    log << u"view %1 - %2%3"_s.arg(clock(begin), clock(end),
                                                   moving ? u" moving"_s : QString());
                });
        connect(this, &Ruler::jumpToTime, this, [=, this](const QDateTime& time, const QUuid&) {
            log << u"jump "_s + clock(time);
        });
        connect(this, &Ruler::jumpToTrackTime, this,
                [=, this](const QDateTime& time, const QUuid&) {
                    log << u"track jump "_s + clock(time);
                });
        connect(this, &Ruler::newVisibleRulerMarkers, this,
                [=, this](const QList<QDateTime>& times) {
                    QStringList clocks;
                    for (const QDateTime& time : times)
                        clocks << clock(time);
                    log << u"new "_s + clocks.join(u", "_s);
                });
        connect(this, &Ruler::previewPositionChanged, this,
                [this](quint64 msecs, const QPoint& position, bool onMarker) {
                    log << (msecs == 0
                                ? u"no preview"_s
                                : u"preview %1 at %2%3"_s.arg((qint64(msecs) - monday) / second)
                                      .arg(position.x())
                                      .arg(onMarker ? u" marker"_s : QString()));
                });
        connect(this, &Ruler::previewIndicatorPositionChanged, this,
                [this](const QPoint& position) {
                    log << u"line %1,%2"_s.arg(position.x()).arg(position.y());
                });
        // A new window gets an enter event for wherever the mouse is.
        if (QTest::qWaitForWindowExposed(this))
            QCoreApplication::processEvents();
        if (duration > 0)
            setTimeLimits(at(0), at(duration));
        log.clear();
    }

    void press(int x) { QTest::mousePress(this, Qt::LeftButton, {}, QPoint(x, 30)); }
    void dragTo(int x, int y = 30) { moveMouse(*this, QPoint(x, y), Qt::LeftButton); }
    void release(int x) { QTest::mouseRelease(this, Qt::LeftButton, {}, QPoint(x, 30)); }
    QStringList click(int x, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(this, button, {}, QPoint(x, 30));
        return takeLog();
    }

    QStringList takeLog() { return std::exchange(log, {}); }

    QStringList log;
};
