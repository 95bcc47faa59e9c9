// SPDX-License-Identifier: MIT
#include "scenes.h"
#include "sheet.h"
#include "testsupport.h"
#include "times.h"

#include <CorvelGui/Ruler>
#include <CorvelGui/RulerMarker>
#include <CorvelGui/TimelineLanes>
#include <CorvelGui/TimelineScroll>
#include <CorvelGui/ZoomTimeline>
#include <CorvelGui/Zoomer>
#include <Hueloft/POrvGuiTheme>

using namespace CorvelGui;
using Hueloft::POrvGuiTheme;

namespace {

using Severity = RulerMarker::Severity;

constexpr qint64 period = 20 * day;
constexpr qint64 middle = monday + 8 * day + 12 * hour;
constexpr QSize rulerSize(952, 0);

QDateTime at(qint64 msecs)
{
    return QDateTime::fromMSecsSinceEpoch(msecs, Qt::UTC);
}

TrackDescription track(const QString& name, qint64 step, qint64 begin = monday + day)
{
    TrackDescription track{name, name, begin, monday + 18 * day, {}};
    for (qint64 time = begin; time < track.end; time += step)
        track.recorded.append({time, time + time / minute % 31 * minute});
    return track;
}

void fill(Ruler& ruler)
{
    ruler.setTimeZone(u"UTC"_s);
    ruler.setActive(true, false);
    ruler.setTrackDescriptions({track(u"Gate"_s, 47 * minute)});
    ruler.setTimeLimits(quint64(monday), quint64(monday + period));
    ruler.setIndicatorPosition(quint64(middle));
    ruler.setView(middle - hour, middle + 2 * hour);
}

/// A ruler of three hours, changed by @p change.
void showRuler(Sheet& sheet, const QString& name, const std::function<void(Ruler&)>& change,
               double scale = 1)
{
    sheet.show<Ruler>(
        name, new Ruler, scale == 1 ? rulerSize : rulerSize / scale,
        [&](Ruler& ruler) {
            fill(ruler);
            change(ruler);
        },
        scale);
}

struct Icons : IRulerMarkerIconProvider
{
    int iconKey(int index) override { return index; }
    QIcon icon(int index) override
    {
        QPixmap picture(64, 64);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setBrush(index ? POrvGuiTheme::colorPurple : POrvGuiTheme::colorYellow);
        painter.drawPolygon(QPolygonF{{32, 4}, {60, 60}, {4, 60}});
        return picture;
    }
};

RulerMarker marker(qint64 time, Severity severity = Severity::None, qint64 duration = 0,
                   int icon = -1)
{
    static Icons icons;
    return {.identifier = QUuid::createUuid(),
            .time = at(time),
            .kind = icon < 0 ? 0 : RulerMarker::providedIconKind,
            .iconIndex = icon,
            .text = u"Door"_s,
            .iconProvider = &icons,
            .duration = duration,
            .severity = severity};
}

/// Some alone, some beside each other, and many in one place.
QList<RulerMarker> someMarkers()
{
    QList<RulerMarker> all{marker(middle - 50 * minute),
                           marker(middle - 35 * minute, {}, 0, 0),
                           marker(middle - 22 * minute, Severity::Information, 0, 1),
                           marker(middle - 10 * minute, Severity::Warning, 25 * minute),
                           marker(middle + 25 * minute, Severity::Alarm, 10 * minute),
                           marker(middle + 40 * minute),
                           marker(middle + 42 * minute)};
    for (int i = 0; i < 12; ++i)
        all.append(marker(middle + 60 * minute + i * second, Severity::Information));
    for (int i = 0; i < 130; ++i)
        all.append(marker(middle + 90 * minute + i * second,
                          i == 60 ? Severity::Alarm : Severity::None, hour));
    return all;
}

/// Many of them, more by day than by night.
QList<RulerMarker> manyMarkers()
{
    QList<RulerMarker> all;
    for (qint64 time = monday + 2 * day; time < monday + 17 * day; time += 41 * minute) {
        const qint64 index = all.size();
        const int count = int(time % day / hour) / 5;
        for (int i = 0; i < count; ++i)
            all.append(marker(time + i * minute, index % 97 == 0  ? Severity::Alarm
                                                 : index % 5 == 0 ? Severity::Warning
                                                 : index % 2 == 0 ? Severity::Information
                                                                  : Severity::None));
    }
    return all;
}

/// @p draw with the held mouse on the widget from @p from to @p to.
void drag(QWidget& widget, QPoint from, QPoint to, Qt::KeyboardModifiers held = {})
{
    QTest::mousePress(&widget, Qt::LeftButton, held, from);
    moveMouse(widget, (from + to) / 2, Qt::LeftButton);
    moveMouse(widget, to, Qt::LeftButton);
}

} // namespace

void Scenes::rulerZooms(Sheet& sheet)
{
    for (int level = 0; level < 9; ++level)
        showRuler(sheet, u"level %1"_s.arg(level), [level](Ruler& ruler) {
            ruler.onTimelineOffsetChanged(0.43);
            ruler.changeLevel(level, 0.5);
        });
    for (const qint64 span : {20 * second, 7 * minute, 5 * hour, 2 * day, 19 * day})
        showRuler(sheet, u"counted, %1 s"_s.arg(span / second), [span](Ruler& ruler) {
            ruler.setContinuousZoom(true);
            ruler.setCalendarTicks(true);
            ruler.setView(middle - span / 3, middle + span * 2 / 3);
        });
    // The night in which the clocks go back, and the one in which they go forward.
    for (const qint64 change : {1'792'890'000'000, 1'774'746'000'000})
        showRuler(sheet, u"clock change"_s, [change](Ruler& ruler) {
            ruler.setTimeZone(u"Europe/Brussels"_s);
            ruler.setTimeLimits(quint64(change - 10 * day), quint64(change + 10 * day));
            ruler.setContinuousZoom(true);
            ruler.setView(change - 5 * hour, change + 5 * hour);
            ruler.setIndicatorPosition(quint64(change - 30 * minute));
        });
    for (const double scale : {1.25, 1.5, 3.0})
        showRuler(
            sheet, u"scale %1"_s.arg(scale), [](Ruler&) {}, scale);
}

void Scenes::rulerRanges(Sheet& sheet)
{
    showRuler(sheet, u"search"_s, [](Ruler& ruler) {
        ruler.displaySearchTimeRange(true);
        ruler.setSearchTimeRange(at(middle - 20 * minute), at(middle + hour), false);
    });
    showRuler(sheet, u"result"_s, [](Ruler& ruler) {
        ruler.onAddMarkers(someMarkers());
        ruler.setResultMode(true);
        ruler.setResultTimeRange(at(middle - 20 * minute), at(middle + hour), true, true, true,
                                 false);
    });
    const auto select = [](Ruler& ruler) {
        ruler.setRangeSelection(Ruler::RangeSelection::Drag);
        ruler.setSelectedRange({middle + 20 * minute, middle + 80 * minute});
    };
    showRuler(sheet, u"selected"_s, select);
    showRuler(sheet, u"selected, at scale 1.5"_s, select, 1.5);
    showRuler(sheet, u"selected, disabled"_s, [&](Ruler& ruler) {
        select(ruler);
        ruler.setEnabled(false);
    });
    showRuler(sheet, u"selected, a handle with the focus"_s, [&](Ruler& ruler) {
        select(ruler);
        for (auto* child : ruler.findChildren<QWidget*>())
            if (QByteArray(child->metaObject()->className()).endsWith("RangeHandle"))
                return focus(*child);
    });
    showRuler(sheet, u"being selected"_s, [&](Ruler& ruler) {
        select(ruler);
        drag(ruler, {60, ruler.height() - 20}, {210, ruler.height() - 20});
    });
    showRuler(sheet, u"preview"_s, [](Ruler& ruler) {
        ruler.setPlayMode(false);
        ruler.setPreviewEnabled(true);
        ruler.setPreviewIndicatorPosition(quint64(middle + hour));
        ruler.onPreviewVisible(true, false);
    });
    showRuler(sheet, u"pending preview"_s, [](Ruler& ruler) {
        ruler.setPlayMode(false);
        ruler.setPreviewEnabled(true);
        ruler.setPreviewIndicatorPosition(quint64(middle + hour));
        ruler.onPreviewVisible(true, true);
    });
    showRuler(sheet, u"out of view"_s, [](Ruler& ruler) {
        ruler.setPreviewEnabled(true);
        ruler.displaySearchTimeRange(true);
        ruler.setSearchTimeRange(at(middle - 20 * minute), at(middle + hour), false);
        ruler.setView(middle + 3 * hour, middle + 6 * hour);
        ruler.setPreviewIndicatorPosition(quint64(middle));
        ruler.onPreviewVisible(true, false);
    });
    showRuler(sheet, u"no indicator, and no preview any more"_s, [](Ruler& ruler) {
        ruler.setPreviewEnabled(true);
        ruler.setPreviewIndicatorPosition(quint64(middle + hour));
        ruler.onPreviewVisible(true, false);
        ruler.setPreviewEnabled(false);
        ruler.setIndicatorPosition(0);
    });
    showRuler(sheet, u"end of the period"_s, [](Ruler& ruler) {
        ruler.changeLevel(4, 0.5);
        ruler.onTimelineOffsetChanged(1.0);
        ruler.setIndicatorPosition(quint64(monday + period - hour));
    });
    showRuler(sheet, u"begin of the period"_s, [](Ruler& ruler) {
        ruler.changeLevel(4, 0.5);
        ruler.onTimelineOffsetChanged(0.0);
        ruler.setIndicatorPosition(quint64(monday));
    });
}

void Scenes::rulerStates(Sheet& sheet)
{
    showRuler(sheet, u"theme"_s, [](Ruler& ruler) { ruler.setOrvaneGuiTheme(true); });
    showRuler(sheet, u"no theme"_s, [](Ruler& ruler) { ruler.setOrvaneGuiTheme(false); });
    showRuler(sheet, u"theme of before"_s, [](Ruler& ruler) {
        ruler.setOrvaneGuiTheme(true);
        ruler.setOrvaneGuiTheme(false);
    });
    showRuler(sheet, u"theme over own colours, not playing"_s, [](Ruler& ruler) {
        ruler.setPlayMode(false);
        ruler.setBodyColor(QColor(40, 60, 120));
        ruler.setOrvaneGuiTheme(true);
    });
    showRuler(sheet, u"inactive"_s, [](Ruler& ruler) { ruler.setActive(false, false); });
    showRuler(sheet, u"blocked"_s, [](Ruler& ruler) { ruler.setActive(true, true); });
    showRuler(sheet, u"not playing"_s, [](Ruler& ruler) { ruler.setPlayMode(false); });
    showRuler(sheet, u"result mode"_s, [](Ruler& ruler) { ruler.setResultMode(true); });
    showRuler(sheet, u"focus"_s, [](Ruler& ruler) { focus(ruler); });
    showRuler(sheet, u"own colours"_s, [](Ruler& ruler) {
        ruler.setHeaderColor(QColor(90, 40, 40));
        ruler.setBodyColor(QColor(40, 60, 120));
    });
    showRuler(sheet, u"large text"_s, [](Ruler& ruler) {
        ruler.setFontSize(14);
        ruler.setDateFormat(u"yyyy-MM-dd"_s);
    });
    showRuler(sheet, u"loading"_s, [](Ruler& ruler) {
        ruler.setLoading(u"Gate"_s, {middle + 20 * minute, middle + 90 * minute}, true);
        ruler.grab();
        ruler.setLoading(u"Gate"_s, {middle + 45 * minute, middle + 55 * minute}, false);
    });
    showRuler(sheet, u"dragged indicator"_s, [](Ruler& ruler) {
        ruler.setIndicatorDragEnabled(true);
        drag(ruler, {165, 8}, {280, 8});
    });
    sheet.show(u"no period"_s, new Ruler, rulerSize);
    for (const int level : {1, 4, 9}) {
        auto* zoomer = new Zoomer(9);
        zoomer->initializeControls();
        zoomer->onChangeSliderPosition(level);
        zoomer->setEnabled(level != 9);
        sheet.show(u"zoomer, level %1"_s.arg(level), zoomer);
    }
}

void Scenes::markers(Sheet& sheet)
{
    const auto add = [](Ruler& ruler) {
        ruler.onAddMarkers(someMarkers());
    };
    const auto addWithDetails = [](Ruler& ruler) {
        ruler.setMarkerDetails(true);
        ruler.onAddMarkers(someMarkers());
    };
    showRuler(sheet, u"markers"_s, [&](Ruler& ruler) {
        addWithDetails(ruler);
        ruler.setMarkerDetails(false);
    });
    showRuler(sheet, u"markers without tracks"_s, [&](Ruler& ruler) {
        ruler.setTrackDescriptions({});
        add(ruler);
    });
    showRuler(sheet, u"icons without room"_s, [&](Ruler& ruler) {
        add(ruler);
        ruler.setIconSize({17, 400});
    });
    showRuler(sheet, u"details"_s, addWithDetails);
    showRuler(sheet, u"details, at scale 2"_s, addWithDetails, 2);
    showRuler(sheet, u"larger icons"_s, [&](Ruler& ruler) {
        addWithDetails(ruler);
        ruler.setIconSize({32, 32});
    });
    showRuler(sheet, u"inactive"_s, [&](Ruler& ruler) {
        addWithDetails(ruler);
        ruler.setActive(false, false);
    });
    showRuler(sheet, u"under the mouse"_s, [&](Ruler& ruler) {
        addWithDetails(ruler);
        for (auto* button : ruler.findChildren<QAbstractButton*>())
            hover(*button);
    });
    showRuler(sheet, u"pressed"_s, [&](Ruler& ruler) {
        ruler.setOrvaneGuiTheme(true);
        add(ruler);
        for (auto* button : ruler.findChildren<QAbstractButton*>()) {
            hover(*button);
            QTest::mousePress(button, Qt::LeftButton);
        }
    });
    showRuler(sheet, u"hidden"_s, [&](Ruler& ruler) {
        addWithDetails(ruler);
        ruler.onHideMarkers();
    });
    showRuler(sheet, u"with a list"_s, [&](Ruler& ruler) {
        addWithDetails(ruler);
        ruler.setMergedClick(Ruler::MergedClick::List);
        ruler.setIndicatorPosition(quint64(middle + hour));
        QTest::keyClick(&ruler, Qt::Key_Return);
        auto* list = ruler.findChild<QListWidget*>();
        sheet.grab(u"list"_s, *list->window());
        QTest::keyClick(list, Qt::Key_Escape);
    });
    showRuler(sheet, u"all in one view"_s, [](Ruler& ruler) {
        ruler.setMarkerDetails(true);
        ruler.onAddMarkers(manyMarkers());
        ruler.setContinuousZoom(true);
        ruler.setView(monday, monday + period);
    });
}

void Scenes::lanes(Sheet& sheet)
{
    const auto show = [&sheet](const QString& name, const std::function<void(ZoomTimeline&)>& act,
                               double scale = 1) {
        sheet.show<ZoomTimeline>(
            name, new ZoomTimeline, {952, 0},
            [&](ZoomTimeline& timeline) {
                fill(*timeline.ruler());
                timeline.setTimeZone(u"UTC"_s);
                timeline.setTimeLimits(quint64(monday), quint64(monday + period));
                timeline.setIndicatorPosition(quint64(middle));
                timeline.setActive(true, false);
                timeline.ruler()->setTrackDescriptions(
                    {track(u"Gate"_s, 47 * minute), track(u"Yard, north"_s, 20 * minute),
                     track(u"Loading dock with the long name"_s, 31 * minute, middle),
                     track(u"Roof"_s, hour)});
                timeline.ruler()->setView(middle - hour, middle + 2 * hour);
                act(timeline);
            },
            scale);
    };
    const auto setRanges = [](ZoomTimeline& timeline, bool on) {
        Ruler& ruler = *timeline.ruler();
        ruler.setRangeSelection(on ? Ruler::RangeSelection::Drag : Ruler::RangeSelection::Off);
        ruler.setSelectedRange(on ? TimeSpan{middle + 20 * minute, middle + 80 * minute}
                                  : TimeSpan());
        ruler.setResultTimeRange(on ? at(middle + 30 * minute) : QDateTime(), at(middle + hour),
                                 true, false, false, false);
        ruler.setPreviewIndicatorPosition(quint64(middle - 30 * minute));
        ruler.onPreviewVisible(on, false);
        if (on)
            timeline.setSearchTimeRange(at(middle - hour), at(middle + 3 * hour), false);
        else
            timeline.clearSearchTimeRange();
    };
    show(u"timeline"_s, [](ZoomTimeline& timeline) {
        timeline.setActivityVisible(true);
        timeline.grab();
        timeline.setActivityVisible(false);
    });
    show(u"light theme"_s, [](ZoomTimeline& timeline) { timeline.setOrvaneGuiTheme(false); });
    const auto lanes = [](ZoomTimeline& timeline) {
        timeline.setLanesVisible(true);
        timeline.setActivityVisible(true);
        timeline.ruler()->onAddMarkers(manyMarkers());
        timeline.setCurrentTrack(u"Yard, north"_s);
        timeline.ruler()->setLoading(u"Gate"_s, {middle + 20 * minute, middle + hour}, true);
    };
    show(u"lanes"_s, lanes);
    show(u"lanes, at scale 1.5"_s, lanes, 1.5);
    show(u"lanes with focus"_s, [&](ZoomTimeline& timeline) {
        lanes(timeline);
        timeline.lanes()->setMaximumLanes(3);
        focus(*timeline.lanes());
    });
    show(u"lanes with ranges"_s, [&](ZoomTimeline& timeline) {
        lanes(timeline);
        timeline.setFontSize(11);
        setRanges(timeline, true);
        // They are elsewhere in a shorter period.
        timeline.setTimeLimits(quint64(middle - 4 * day), quint64(middle + 3 * day));
    });
    show(u"no ranges any more"_s, [&](ZoomTimeline& timeline) {
        lanes(timeline);
        setRanges(timeline, true);
        timeline.grab();
        setRanges(timeline, false);
    });
    show(u"inactive"_s, [&](ZoomTimeline& timeline) {
        lanes(timeline);
        timeline.setActive(false, false);
    });
    show(u"disabled"_s, [&](ZoomTimeline& timeline) {
        lanes(timeline);
        timeline.setEnabled(false);
    });
}

void Scenes::overview(Sheet& sheet)
{
    const auto show = [&sheet](const QString& name,
                               const std::function<void(TimelineScroll&)>& change, int height = 0,
                               double scale = 1) {
        sheet.show<TimelineScroll>(
            name, new TimelineScroll, {220, height},
            [&](TimelineScroll& strip) {
                strip.setActive(true);
                strip.setViewArea(0.2);
                strip.onIndicatorPositionChanged(0, 0.45);
                strip.onCenterPositionChanged(0.4);
                change(strip);
            },
            scale);
    };
    const auto activity = [](TimelineScroll& strip) {
        strip.setActivitySource([](int columns) {
            TimelineActivity made;
            using Recording = TimelineActivity::Recording;
            for (int i = 0; i < columns; ++i) {
                made.columns.push_back(
                    {.recording = i < 20        ? Recording::Unknown
                                  : i % 50 < 35 ? Recording::Recorded
                                                : Recording::Gap,
                     .events = {quint32(i % 7), quint32(i % 30), quint32(i > 100 ? i % 11 : 0),
                                quint32(i % 61 == 0)}});
            }
            return made;
        });
        strip.setActivityVisible(true);
    };
    show(u"strip"_s, [](TimelineScroll&) {});
    show(u"small view"_s, [](TimelineScroll& strip) { strip.setViewArea(0.001); });
    show(u"all in view"_s, [](TimelineScroll& strip) { strip.setViewArea(1); });
    show(u"at the end"_s, [](TimelineScroll& strip) { strip.onCenterPositionChanged(1); });
    show(u"inactive"_s, [](TimelineScroll& strip) { strip.setActive(false); });
    show(u"no theme"_s, [](TimelineScroll& strip) { strip.setOrvaneGuiTheme(false); });
    show(u"theme"_s, [](TimelineScroll& strip) { strip.setOrvaneGuiTheme(true); });
    show(u"under the mouse"_s, [](TimelineScroll& strip) { strip.setHover(true); });
    for (const double x : {0.4, 0.8})
        show(u"mouse at %1"_s.arg(x), [x](TimelineScroll& strip) {
            enterMouse(strip, {int(x * strip.width()), strip.height() / 2});
        });
    show(u"pressed"_s, [](TimelineScroll& strip) {
        QTest::mousePress(&strip, Qt::LeftButton, {}, {int(0.4 * strip.width()), 7});
    });
    show(u"focus"_s, [](TimelineScroll& strip) { focus(strip); });
    show(u"search"_s, [](TimelineScroll& strip) {
        strip.setSearchTimeRange(0.3, 0.6);
        strip.displaySearchTimeRange(true);
    });
    show(u"selected"_s, [](TimelineScroll& strip) { strip.setSelectedRange(0.5, 0.7); });
    show(u"result"_s, [](TimelineScroll& strip) {
        strip.setResultMode(true);
        strip.setSearchTimeRange(0.3, 0.6);
        strip.displaySearchTimeRange(true);
    });
    show(u"activity"_s, activity);
    show(u"activity, ranges"_s, [&](TimelineScroll& strip) {
        activity(strip);
        strip.setSearchTimeRange(0.3, 0.6);
        strip.displaySearchTimeRange(true);
        strip.setSelectedRange(0.5, 0.7);
    });
    show(u"activity, focus"_s, [&](TimelineScroll& strip) {
        activity(strip);
        strip.setViewArea(0.01);
        focus(strip);
    });
    show(u"activity, under the mouse"_s, [&](TimelineScroll& strip) {
        activity(strip);
        strip.setHover(true);
    });
    show(u"activity, inactive"_s, [&](TimelineScroll& strip) {
        activity(strip);
        strip.setActive(false);
    });
    show(u"activity, dragged"_s, [&](TimelineScroll& strip) {
        activity(strip);
        drag(strip, {int(0.4 * strip.width()), strip.height() / 2},
             {int(0.6 * strip.width()), strip.height() / 2});
    });
    show(u"activity, at scale 2"_s, activity, 0, 2);
}
