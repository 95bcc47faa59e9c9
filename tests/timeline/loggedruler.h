// SPDX-License-Identifier: MIT
#pragma once

#include "testsupport.h"
#include "times.h"

#include <CorvelGui/Ruler>

/// Milliseconds since the epoch, @p offset after a Monday's midnight in UTC.
inline quint64 at(qint64 offset)
{
    return quint64(monday + offset);
}

inline QDateTime timeAt(qint64 offset)
{
    return QDateTime::fromMSecsSinceEpoch(monday + offset, QTimeZone::utc());
}

/// What assistive technology does with a button.
inline void pressByAssistiveTechnology(QWidget* button)
{
    QAccessible::queryAccessibleInterface(button)->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
}

/// An active ruler in UTC with 1000 pixels of scale that writes down its signals in order. It shows
/// the first hour of ten days from Monday, 3.6 seconds a pixel.
class LoggedRuler : public CorvelGui::Ruler
{
public:
    LoggedRuler()
    {
        resize(1020, height());
        show(); // a widget that was never shown does not know its size
        setTimeZone(u"UTC"_s);
        setActive(true, false);
        const auto clock = [](const QDateTime& time) {
            return time.toString(u"dd hh:mm"_s);
        };
        const auto seconds = [](quint64 msecs) {
            return (qint64(msecs) - monday) / second;
        };
        logs(&Ruler::changeSliderZoom, [](int level) { return u"level %1"_s.arg(level); });
        logs(&Ruler::centerPositionChanged,
             [](double position) { return u"center %1"_s.arg(position, 0, 'g', 4); });
        logs(&Ruler::indicatorPositionChanged,
             [=](quint64 msecs, double) { return u"indicator %1"_s.arg(seconds(msecs)); });
        logs(&Ruler::timeLineViewChanged,
             [=](const QDateTime&, const QDateTime&, const QDateTime& begin, const QDateTime& end,
                 bool moving) {
                 return u"view %1 - %2%3"_s.arg(clock(begin), clock(end),
                                                moving ? u" moving"_s : QString());
             });
        logs(&Ruler::jumpToTime,
             [=](const QDateTime& time, const QUuid&) { return u"jump "_s + clock(time); });
        logs(&Ruler::jumpToTrackTime,
             [=](const QDateTime& time, const QUuid&) { return u"track jump "_s + clock(time); });
        logs(&Ruler::newVisibleRulerMarkers, [=](const QList<QDateTime>& times) {
            QStringList clocks;
            for (const QDateTime& time : times)
                clocks << clock(time);
            return u"new "_s + clocks.join(u", "_s);
        });
        logs(&Ruler::previewPositionChanged,
             [=](quint64 msecs, const QPoint& position, bool onMarker) {
                 return msecs == 0 ? u"no preview"_s
                                   : u"preview %1 at %2%3"_s.arg(seconds(msecs))
                                         .arg(position.x())
                                         .arg(onMarker ? u" marker"_s : QString());
             });
        logs(&Ruler::previewIndicatorPositionChanged, [](const QPoint& position) {
            return u"line %1,%2"_s.arg(position.x()).arg(position.y());
        });
        logs(&Ruler::rangeSelectionStarted, [] { return u"started"_s; });
        logs(&Ruler::selectedRangeChanged, [=](const CorvelGui::TimeSpan& range) {
            return range.isEmpty() ? u"no range"_s
                                   : u"range %1 - %2"_s.arg(seconds(quint64(range.begin)))
                                         .arg(seconds(quint64(range.end)));
        });
        logs(&Ruler::rangeSelectionEnded,
             [](bool cancelled) { return cancelled ? u"cancelled"_s : u"ended"_s; });
        // A new window gets an enter event for wherever the mouse is.
        if (QTest::qWaitForWindowExposed(this))
            QCoreApplication::processEvents();
        setTimeLimits(at(0), at(10 * day));
        log.clear();
    }

    QStringList takeLog() { return std::exchange(log, {}); }

    QStringList log;
    std::function<void()> said; ///< called after every line; may delete the ruler

private:
    template <typename Signal, typename Text>
    void logs(Signal signal, Text text)
    {
        connect(this, signal, this, [this, text](const auto&... arguments) {
            log << text(arguments...);
            if (const auto tell = said)
                tell();
        });
    }
};
