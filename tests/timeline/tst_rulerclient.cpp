// SPDX-License-Identifier: MIT
// What a client needs to load what is looked at, and to answer a right click.

#include "loggedruler.h"
#include "rangehandle.h"
#include "testsupport.h"

#include <CorvelGui/RulerMarkerButton>
#include <CorvelGui/TimelineLanes>
#include <CorvelGui/ZoomTimeline>

#include <QContextMenuEvent>

using namespace CorvelGui;

namespace {

TimeSpan minutes(int from, int to)
{
    return {monday + from * minute, monday + to * minute};
}

QString minutesOf(const QList<TimeSpan>& spans)
{
    QString text;
    for (const TimeSpan& span : spans)
        text += u"%1-%2 "_s.arg(double(span.begin - monday) / minute)
                    .arg(double(span.end - monday) / minute);
    return text;
}

bool askForMenu(QWidget* widget, QPoint position,
                QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse)
{
    QContextMenuEvent event(reason, position, widget->mapToGlobal(position));
    event.ignore();
    QApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

} // namespace

class TestRulerClient : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void viewsSettle();
    void loadingIsNoGap();
    void contexts();
    void menus();
};

void TestRulerClient::viewsSettle()
{
    LoggedRuler ruler;
    QSignalSpy settled(&ruler, &Ruler::viewSettled);
    using Spans = QList<TimeSpan>;
    const std::tuple<std::function<void()>, TimeSpan, Spans> steps[] = {
        // To begin with, then only the last of several views.
        {[] {}, minutes(0, 60), {minutes(0, 60)}},
        {[&] {
             ruler.centerOn(monday + day);
             ruler.centerOn(monday + hour);
         },
         minutes(30, 90),
         {minutes(60, 90)}},
        {[&] { ruler.setView(minutes(50, 70).begin, minutes(50, 70).end); }, minutes(50, 70), {}},
        {[&] { ruler.setView(minutes(0, 180).begin, minutes(0, 180).end); },
         minutes(0, 180),
         {minutes(0, 50), minutes(70, 180)}},
        // Only what is within the limits is there to be loaded.
        {[&] { ruler.setTimeLimits(at(4 * hour), at(5 * hour)); }, minutes(180, 240), {}},
        {[&] { ruler.centerOn(monday + 5 * hour); }, minutes(240, 300), {minutes(240, 300)}},
    };
    for (const auto& [change, view, added] : steps) {
        change();
        QTRY_COMPARE(settled.size(), 1);
        const QList<QVariant> arguments = settled.takeFirst();
        QCOMPARE(minutesOf({arguments[0].value<TimeSpan>()}), minutesOf({view}));
        QCOMPARE(minutesOf(arguments[1].value<Spans>()), minutesOf(added));
    }
}

void TestRulerClient::loadingIsNoGap()
{
    LoggedRuler ruler;
    ruler.setTimeLimits(at(0), at(hour));
    ruler.setTrackDescriptions(
        {{u"a"_s, u"Gate"_s, monday, monday + hour, {minutes(10, 20)}, {minutes(0, 30)}}});
    // What comes late, for a time out of view or of a track that is gone, does no harm.
    const TimeSpan view = ruler.view();
    QVERIFY(!ruler.setLoading(u"b"_s, minutes(0, 60), true));
    QVERIFY(ruler.setLoading(u"a"_s, minutes(-600, -300), true));
    QVERIFY(ruler.addRecordedSpans(u"a"_s, {minutes(9000, 9100)}));
    QVERIFY(ruler.view() == view);
    using Recording = TimelineActivity::Recording;
    const auto recording = [&](std::size_t column) {
        return ruler.activity(6).columns[column].recording;
    };
    QVERIFY(recording(0) == Recording::Unknown && recording(2) == Recording::Unknown);
    QVERIFY(recording(1) == Recording::Recorded && recording(4) == Recording::Gap);
    QVERIFY(ruler.setLoading(u"a"_s, minutes(0, 10), false));
    QVERIFY(recording(0) == Recording::Gap);
    QCOMPARE(ruler.trackDescriptions()[0].loading.size(), 2);
}

void TestRulerClient::contexts()
{
    LoggedRuler ruler;
    ruler.onAddMarkers({{.time = timeAt(10 * minute)},
                        {.time = timeAt(30 * minute)},
                        {.time = timeAt(30 * minute + second)}});
    ruler.displaySearchTimeRange(true);
    ruler.setSearchTimeRange(timeAt(0), timeAt(20 * minute), false);
    ruler.setResultTimeRange(timeAt(10 * minute), timeAt(20 * minute), false, false, false, false);
    ruler.setSelectedRange(minutes(20, 30));
    const auto columnOf = [&](int minutesAfter) {
        return int(ruler.xAt(minutes(minutesAfter, 0).begin));
    };
    const int markerY = ruler.findChild<RulerMarkerButton*>()->geometry().center().y();
    const int cases[][4] = {{columnOf(0), 5, 0, 1},
                            {columnOf(10) + 1, 5, 0, 3},
                            {columnOf(10) + 1, markerY, 1, 3},
                            {columnOf(20) + 1, markerY, 0, 4},
                            {columnOf(30) + 1, markerY, 2, 0}};
    for (const auto& [x, y, markers, ranges] : cases) {
        const RulerContext context = ruler.contextAt({x, y});
        QVERIFY(context.time.has_value());
        QVERIFY(std::abs(*context.time - ruler.timeAt(x)) <= 1);
        QCOMPARE(context.markers.size(), markers);
        QCOMPARE(context.markerCount, markers);
        QCOMPARE(int(context.ranges), ranges);
        QCOMPARE(context.globalPosition, ruler.mapToGlobal(QPoint(x, y)));
    }
    QCOMPARE(ruler.markersAt({columnOf(30), markerY}, 1).size(), 1);
    QVERIFY(!ruler.contextAt({2, 5}).time);
    ruler.setTimeLimits(at(hour), at(2 * hour));
    QVERIFY(!ruler.contextAt({columnOf(10), 5}).time);
    ruler.setTimeLimits(0, 0);
    QVERIFY(!ruler.contextAt({510, 5}).time);
}

void TestRulerClient::menus()
{
    ZoomTimeline timeline;
    timeline.setActive(true, false);
    timeline.resize(1200, 200);
    timeline.show();
    timeline.setTimeLimits(at(0), at(hour));
    timeline.setIndicatorPosition(at(40 * minute));
    Ruler* ruler = timeline.ruler();
    ruler->setTrackDescriptions({{.identifier = u"a"_s, .begin = monday, .end = monday + hour},
                                 {.identifier = u"b"_s, .begin = monday, .end = monday + hour}});
    timeline.setLanesVisible(true);
    QCoreApplication::sendPostedEvents();
    TimelineLanes* lanes = timeline.lanes();

    // Nobody wants to hear of it: the event is the parent's.
    QVERIFY(!askForMenu(ruler, {510, 10}) && !askForMenu(lanes, {510, 10}));
    QList<RulerContext> asked;
    connect(&timeline, &ZoomTimeline::contextRequested, this,
            [&](const RulerContext& context) { asked << context; });
    QVERIFY(askForMenu(ruler, {510, 10}));
    QCOMPARE(asked.takeLast().track, QString());
    const QPoint onLane = lanes->laneRect(1).center();
    QVERIFY(askForMenu(lanes, onLane));
    QCOMPARE(asked.last().track, u"b"_s);
    QCOMPARE(timeline.contextAt(lanes->mapTo(&timeline, onLane)).time, asked.takeLast().time);
    QVERIFY(!lanes->contextAt({5, 5}).time);
    // By keyboard, at the indicator and on the current lane.
    timeline.setCurrentTrack(u"b"_s);
    for (QWidget* widget : {static_cast<QWidget*>(ruler), static_cast<QWidget*>(lanes)}) {
        QVERIFY(askForMenu(widget, {1, 1}, QContextMenuEvent::Keyboard));
        QCOMPARE(asked.last().track, widget == lanes ? u"b"_s : QString());
        QVERIFY(std::abs(*asked.takeLast().time - monday - 40 * minute) < 10 * second);
    }
    // At the handle of the range that has the focus.
    ruler->setRangeSelection(Ruler::RangeSelection::Drag);
    ruler->setSelectedRangeBegin(monday + 10 * minute);
    ruler->setSelectedRangeEnd(monday + 50 * minute);
    QCOMPARE(ruler->selectedRange(), minutes(10, 50));
    QVERIFY(QTest::qWaitForWindowActive(&timeline));
    ruler->findChildren<RangeHandle*>()[1]->setFocus();
    QVERIFY(askForMenu(ruler, {1, 1}, QContextMenuEvent::Keyboard));
    QVERIFY(std::abs(*asked.takeLast().time - monday - 50 * minute) < 10 * second);
    timeline.setActive(true, true);
    QVERIFY(!askForMenu(ruler, {510, 10}) && !askForMenu(lanes, onLane));

    const QPointer gone(new LoggedRuler);
    connect(gone, &Ruler::contextRequested, gone, [gone] { delete gone; });
    askForMenu(gone, {510, 10});
    QVERIFY(!gone);
}

QTEST_MAIN(TestRulerClient)
#include "tst_rulerclient.moc"
