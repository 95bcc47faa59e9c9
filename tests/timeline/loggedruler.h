#pragma once

#include "times.h"

#include <CorvelGui/Ruler>

#include <QStringList>
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

/// An active ruler in UTC with 1000 pixels of scale that writes down its signals in order.
class LoggedRuler : public CorvelGui::Ruler
{
public:
    LoggedRuler()
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
    }

    QStringList takeLog() { return std::exchange(log, {}); }

    QStringList log;
};
