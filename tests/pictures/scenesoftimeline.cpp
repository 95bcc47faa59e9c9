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

/// A ruler of three hours, changed by @p changes.
template <typename... Changes>
void showRulerAt(double scale, Sheet& sheet, const QString& name, const Changes&... changes)
{
    sheet.showAt(scale, name, new Ruler, rulerSize / scale, fill, changes...);
}

template <typename... Changes>
void showRuler(Sheet& sheet, const QString& name, const Changes&... changes)
{
    showRulerAt(1, sheet, name, changes...);
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
        showRulerAt(scale, sheet, u"scale %1"_s.arg(scale));
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
    showRulerAt(1.5, sheet, u"selected, at scale 1.5"_s, select);
    showRuler(sheet, u"selected, disabled"_s, select, disable);
    showRuler(sheet, u"selected, a handle with the focus"_s, select, [](Ruler& ruler) {
        for (auto* child : ruler.findChildren<QWidget*>())
            if (QByteArray(child->metaObject()->className()).endsWith("RangeHandle"))
                return focus(*child);
    });
    showRuler(sheet, u"being selected"_s, select, [](Ruler& ruler) {
        drag(ruler, {60, ruler.height() - 20}, {210, ruler.height() - 20});
    });
    for (const bool isPending : {false, true})
        showRuler(sheet, isPending ? u"pending preview"_s : u"preview"_s, [=](Ruler& ruler) {
            ruler.setPlayMode(false);
            ruler.setPreviewEnabled(true);
            ruler.setPreviewIndicatorPosition(quint64(middle + hour));
            ruler.onPreviewVisible(true, isPending);
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
    for (const bool isEnd : {true, false})
        showRuler(sheet, isEnd ? u"end of the period"_s : u"begin"_s, [isEnd](Ruler& ruler) {
            ruler.changeLevel(4, 0.5);
            ruler.onTimelineOffsetChanged(isEnd);
            ruler.setIndicatorPosition(quint64(isEnd ? monday + period - hour : monday));
        });
}

void Scenes::rulerStates(Sheet& sheet)
{
    const auto setTheme = [](Ruler& ruler) {
        ruler.setOrvaneGuiTheme(true);
    };
    const auto unsetTheme = [](Ruler& ruler) {
        ruler.setOrvaneGuiTheme(false);
    };
    const auto pause = [](Ruler& ruler) {
        ruler.setPlayMode(false);
    };
    showRuler(sheet, u"theme"_s, setTheme);
    showRuler(sheet, u"no theme"_s, unsetTheme);
    showRuler(sheet, u"theme of before"_s, setTheme, unsetTheme);
    showRuler(
        sheet, u"theme over own colours, not playing"_s, pause,
        [](Ruler& ruler) { ruler.setBodyColor(QColor(40, 60, 120)); }, setTheme);
    showRuler(sheet, u"inactive"_s, [](Ruler& ruler) { ruler.setActive(false, false); });
    showRuler(sheet, u"blocked"_s, [](Ruler& ruler) { ruler.setActive(true, true); });
    showRuler(sheet, u"not playing"_s, pause);
    showRuler(sheet, u"result mode"_s, [](Ruler& ruler) { ruler.setResultMode(true); });
    showRuler(sheet, u"focus"_s, focus);
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
    showRuler(sheet, u"markers"_s, addWithDetails,
              [](Ruler& ruler) { ruler.setMarkerDetails(false); });
    showRuler(
        sheet, u"markers without tracks"_s, [](Ruler& ruler) { ruler.setTrackDescriptions({}); },
        add);
    showRuler(sheet, u"icons without room"_s, add, [](Ruler& ruler) {
        ruler.setIconSize({17, 400});
    });
    showRuler(sheet, u"details"_s, addWithDetails);
    showRulerAt(2, sheet, u"details, at scale 2"_s, addWithDetails);
    showRuler(sheet, u"larger icons"_s, addWithDetails, [](Ruler& ruler) {
        ruler.setIconSize({32, 32});
    });
    showRuler(sheet, u"inactive"_s, addWithDetails,
              [](Ruler& ruler) { ruler.setActive(false, false); });
    const auto hoverAll = [](Ruler& ruler) {
        for (auto* button : ruler.findChildren<QAbstractButton*>())
            hover(*button);
    };
    showRuler(sheet, u"under the mouse"_s, addWithDetails, hoverAll);
    showRuler(sheet, u"pressed"_s, add, hoverAll, [](Ruler& ruler) {
        ruler.setOrvaneGuiTheme(true);
        for (auto* button : ruler.findChildren<QAbstractButton*>())
            QTest::mousePress(button, Qt::LeftButton);
    });
    showRuler(sheet, u"hidden"_s, addWithDetails, [](Ruler& ruler) { ruler.onHideMarkers(); });
    showRuler(sheet, u"with a list"_s, addWithDetails, [&](Ruler& ruler) {
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
    const auto showAt = [&sheet](double scale, const QString& name, const auto&... acts) {
        const auto begin = [](ZoomTimeline& timeline) {
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
        };
        sheet.showAt(scale, name, new ZoomTimeline, {952, 0}, begin, acts...);
    };
    const auto show = [&](const QString& name, const auto&... acts) {
        showAt(1, name, acts...);
    };
    const auto setRanges = [](ZoomTimeline& timeline, bool on) {
        Ruler& ruler = *timeline.ruler();
        ruler.setRangeSelection(on ? Ruler::RangeSelection::Drag
                                   : Ruler::RangeSelection::NoSelection);
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
    const auto mirrorAll = [](ZoomTimeline& timeline) {
        mirror(*timeline.window());
    };
    showAt(1.5, u"lanes, mirrored, at scale 1.5"_s, mirrorAll, lanes);
    show(u"lanes with focus"_s, lanes, [](ZoomTimeline& timeline) {
        timeline.lanes()->setMaximumLanes(3);
        focus(*timeline.lanes());
    });
    show(u"lanes with ranges"_s, lanes, [&](ZoomTimeline& timeline) {
        timeline.setFontSize(11);
        setRanges(timeline, true);
        // They are elsewhere in a shorter period.
        timeline.setTimeLimits(quint64(middle - 4 * day), quint64(middle + 3 * day));
    });
    show(u"no ranges any more"_s, lanes, [&](ZoomTimeline& timeline) {
        setRanges(timeline, true);
        timeline.grab();
        setRanges(timeline, false);
    });
    show(u"inactive"_s, lanes, [](ZoomTimeline& timeline) { timeline.setActive(false, false); });
    show(u"disabled"_s, lanes, disable);
}

void Scenes::overview(Sheet& sheet)
{
    using Strip = TimelineScroll;
    const auto showAt = [&sheet](double scale, const QString& name, const auto&... acts) {
        const auto begin = [](Strip& strip) {
            strip.setActive(true);
            strip.setViewArea(0.2);
            strip.onIndicatorPositionChanged(0, 0.45);
            strip.onCenterPositionChanged(0.4);
        };
        sheet.showAt(scale, name, new Strip, {220, 0}, begin, acts...);
    };
    const auto show = [&](const QString& name, const auto&... acts) {
        showAt(1, name, acts...);
    };
    const auto activity = [](Strip& strip) {
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
    const auto deactivate = [](Strip& strip) {
        strip.setActive(false);
    };
    const auto hoverStrip = [](Strip& strip) {
        strip.setHover(true);
    };
    const auto search = [](Strip& strip) {
        strip.setSearchTimeRange(0.3, 0.6);
        strip.displaySearchTimeRange(true);
    };
    const auto select = [](Strip& strip) {
        strip.setSelectedRange(0.5, 0.7);
    };
    show(u"strip"_s);
    show(u"small view"_s, [](Strip& strip) { strip.setViewArea(0.001); });
    show(u"all in view"_s, [](Strip& strip) { strip.setViewArea(1); });
    show(u"at the end"_s, [](Strip& strip) { strip.onCenterPositionChanged(1); });
    show(u"inactive"_s, deactivate);
    show(u"no theme"_s, [](Strip& strip) { strip.setOrvaneGuiTheme(false); });
    show(u"theme"_s, [](Strip& strip) { strip.setOrvaneGuiTheme(true); });
    show(u"under the mouse"_s, hoverStrip);
    for (const double x : {0.4, 0.8})
        show(u"mouse at %1"_s.arg(x), [x](Strip& strip) {
            enterMouse(strip, {int(x * strip.width()), strip.height() / 2});
        });
    show(u"pressed"_s, [](Strip& strip) {
        QTest::mousePress(&strip, Qt::LeftButton, {}, {int(0.4 * strip.width()), 7});
    });
    show(u"focus"_s, focus);
    show(u"search"_s, search);
    show(u"selected"_s, select);
    show(u"result"_s, search, [](Strip& strip) { strip.setResultMode(true); });
    show(u"activity"_s, activity);
    show(u"activity, ranges"_s, activity, search, select);
    show(u"activity, focus"_s, activity, focus, [](Strip& strip) { strip.setViewArea(0.01); });
    show(u"activity, under the mouse"_s, activity, hoverStrip);
    show(u"activity, inactive"_s, activity, deactivate);
    show(u"activity, dragged"_s, activity, [](Strip& strip) {
        drag(strip, {int(0.4 * strip.width()), strip.height() / 2},
             {int(0.6 * strip.width()), strip.height() / 2});
    });
    showAt(2, u"activity, at scale 2"_s, activity);
}
