// SPDX-License-Identifier: MIT
#include "lanelayout.h"
#include "loggedruler.h"
#include "testsupport.h"
#include "tracklanes.h"

#include <CorvelGui/TimelineLanes>
#include <CorvelGui/ZoomTimeline>

#include <QScrollBar>

using namespace CorvelGui;

namespace {

/// Track n is described for a day and was recorded in the hour n.
QList<TrackDescription> tracks(int count)
{
    QList<TrackDescription> all;
    for (int i = 0; i < count; ++i)
        all.append({QString::number(i),
                    u"Camera %1"_s.arg(i),
                    monday,
                    monday + day,
                    {{monday + i * hour, monday + (i + 1) * hour}}});
    return all;
}

class LaneTimeline : public ZoomTimeline
{
public:
    explicit LaneTimeline(int count)
    {
        setOrvaneGuiTheme(true);
        setActive(true, false);
        ruler()->setTrackDescriptions(tracks(count));
        setLanesVisible(true);
        lanes()->setMaximumLanes(4);
        resize(1200, sizeHint().height());
        show();
        setTimeZone(u"UTC"_s);
        setTimeLimits(at(0), at(day));
        ruler()->setView(monday, monday + day);
    }

    void click(int lane)
    {
        QTest::mouseClick(lanes(), Qt::LeftButton, {}, lanes()->laneRect(lane).center());
    }
    void turn(int x, Qt::KeyboardModifiers modifiers = {})
    {
        turnWheel(lanes(), QPointF(x, 5), {0, -120}, modifiers);
    }
    int scrolled() const { return -lanes()->laneRect(0).top(); }
};

} // namespace

class TestLanes : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void layout()
    {
        const LaneLayout lanes{.count = 10, .laneHeight = 20, .height = 50, .offset = 30};
        QCOMPARE(lanes.maximumOffset(), 150);
        QCOMPARE(QList({lanes.first(), lanes.end(), lanes.top(2)}), QList({1, 4, 10}));
        QCOMPARE(QList({lanes.laneAt(-31), lanes.laneAt(0), lanes.laneAt(10), lanes.laneAt(170)}),
                 QList({-1, 1, 2, -1}));
        QCOMPARE(QList({lanes.offsetShowing(0), lanes.offsetShowing(2), lanes.offsetShowing(3),
                        lanes.offsetShowing(9)}),
                 QList({0, 30, 30, 150}));
        const LaneLayout few{.count = 2, .laneHeight = 20, .height = 50, .offset = 0};
        QCOMPARE(QList({few.maximumOffset(), few.end(), few.laneAt(45)}), QList({0, 2, -1}));
    }

    void spansOfOneTrack()
    {
        TrackLanes lanes;
        lanes.setTracks({{u"a"_s, {}, 0, 100, {{40, 60}, {20, 50}}}, {u"b"_s, {}, 0, 10, {}}});
        QCOMPARE(lanes.spans(0).recorded, (TimeSpans{{20, 60}}));
        QCOMPARE(lanes.spans(0).described, (TimeSpans{{0, 100}}));
        for (const TimeSpan& span : {TimeSpan{60, 70}, {70, 75}, {90, 110}})
            lanes.addRecorded(u"a"_s, {span});
        lanes.addRecorded(u"b"_s, {{0, 4}, {4, 5}}); // not looked at so far
        QCOMPARE(lanes.spans(0).recorded, (TimeSpans{{20, 75}, {90, 110}}));
        QCOMPARE(lanes.spans(0).described, (TimeSpans{{0, 110}}));
        QCOMPARE(lanes.tracks()[1].recorded, (QList<TimeSpan>{{0, 5}}));
        QCOMPARE(lanes.spans(1).described, (TimeSpans{{0, 10}}));
    }

    void tracksChangeTheLanes()
    {
        LaneTimeline timeline(3);
        auto changes = [look = timeline.lanes()->grab().toImage(), &timeline]() mutable {
            return look != std::exchange(look, timeline.lanes()->grab().toImage());
        };
        timeline.ruler()->addRecordedSpans(u"2"_s, {{monday + hour, monday + 2 * hour}});
        QVERIFY(changes());
        for (const QString& name : {u"A"_s, u"B"_s, QString(80, u'M')}) {
            timeline.ruler()->setTrackDescriptions({{u"0"_s, name, monday, monday + hour, {}}});
            QVERIFY(changes());
        }
        // Long names leave most of a narrow timeline to the ruler.
        timeline.ruler()->setMinimumWidth(100);
        timeline.resize(600, timeline.height());
        QTRY_COMPARE_GT(timeline.ruler()->width(), 380);
        timeline.ruler()->setTrackDescriptions({});
        QVERIFY(!timeline.lanes()->isVisible());
    }

    void userChoosesTracks()
    {
        LaneTimeline timeline(10);
        QSignalSpy chosen(&timeline, &ZoomTimeline::currentTrackChanged);
        timeline.click(2);
        timeline.click(2);
        const std::pair<Qt::Key, int> keys[] = {
            {Qt::Key_Down, 3},   {Qt::Key_Down, 4}, {Qt::Key_Up, 3},      {Qt::Key_End, 9},
            {Qt::Key_PageUp, 5}, {Qt::Key_Home, 0}, {Qt::Key_PageDown, 4}};
        for (const auto& [key, lane] : keys) {
            QTest::keyClick(timeline.lanes(), key);
            QCOMPARE(timeline.currentTrack(), QString::number(lane));
            QVERIFY(timeline.lanes()->rect().contains(timeline.lanes()->laneRect(lane)));
        }
        QCOMPARE(chosen.size(), 1 + std::ssize(keys));

        // A track may come later.
        timeline.setCurrentTrack(u"11"_s);
        QCOMPARE(timeline.lanes()->currentLane(), -1);
        timeline.ruler()->setTrackDescriptions(tracks(12));
        QCOMPARE(timeline.lanes()->currentLane(), 11);
    }

    // Painted with the ruler, not a frame later.
    void lanesFollowAtOnce()
    {
        struct Log : QObject
        {
            bool eventFilter(QObject* watched, QEvent* event) override
            {
                if (event->type() == QEvent::UpdateRequest)
                    text += u"update "_s;
                else if (event->type() == QEvent::Paint)
                    text += watched->inherits("CorvelGui::Ruler") ? u"ruler "_s : u"lanes "_s;
                return false;
            }
            QString text;
        };
        LaneTimeline timeline(2);
        QVERIFY(QTest::qWaitForWindowExposed(&timeline));
        QCoreApplication::processEvents();
        Log log;
        timeline.installEventFilter(&log);
        timeline.ruler()->installEventFilter(&log);
        timeline.lanes()->installEventFilter(&log);
        timeline.ruler()->onTimelineOffsetChanged(0.4);
        QTRY_VERIFY(log.text.contains(u"lanes"_s));
        QCOMPARE(log.text.count(u"update"_s), 1);
    }

    void lanesScroll()
    {
        LaneTimeline timeline(10);
        const int lane = timeline.lanes()->laneRect(0).height();
        QCOMPARE(timeline.lanes()->height(), 4 * lane);
        timeline.turn(5);
        QCOMPARE(timeline.scrolled(), lane);
        timeline.turn(600, Qt::ShiftModifier);
        QCOMPARE(timeline.scrolled(), 2 * lane);
        const TimeSpan view = timeline.ruler()->view();
        timeline.ruler()->setView(view.begin, view.begin + hour);
        timeline.turn(600);
        QCOMPARE(timeline.scrolled(), 2 * lane);
        QVERIFY(timeline.ruler()->view().end - timeline.ruler()->view().begin > hour);
        QVERIFY(timeline.lanes()->findChild<QScrollBar*>()->isVisible());
        timeline.lanes()->setMaximumLanes(10);
        QCOMPARE(timeline.scrolled(), 0);
        QVERIFY(!timeline.lanes()->findChild<QScrollBar*>()->isVisible());

        // Where there is no room, the current one stays.
        timeline.setCurrentTrack(timeline.lanes()->laneTrack(5));
        timeline.resize(timeline.minimumSizeHint());
        QTRY_COMPARE(timeline.lanes()->height(), lane);
        QTRY_COMPARE(timeline.scrolled(), 5 * lane);
        QVERIFY(timeline.lanes()->findChild<QScrollBar*>()->isVisible());
    }

    void assistiveTechnologySeesAList()
    {
        LaneTimeline timeline(10);
        timeline.setCurrentTrack(u"1"_s);
        QAccessibleInterface* list = QAccessible::queryAccessibleInterface(timeline.lanes());
        QCOMPARE(list->role(), QAccessible::List);
        QVERIFY(!list->text(QAccessible::Name).isEmpty());
        QCOMPARE(list->childCount(), 10);
        QAccessibleInterface* lane = list->child(3);
        QCOMPARE(lane->text(QAccessible::Name), u"Camera 3"_s);
        QCOMPARE(list->indexOfChild(lane), 3);
        QCOMPARE(list->childAt(lane->rect().center().x(), lane->rect().center().y()), lane);
        QVERIFY(list->child(1)->state().selected && !lane->state().selected);
        QVERIFY(!list->child(1)->state().focused);
        QVERIFY(list->child(9)->state().offscreen && !lane->state().offscreen);
        lane->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(timeline.currentTrack(), u"3"_s);
        timeline.ruler()->setTrackDescriptions(tracks(2));
        QVERIFY(!lane->isValid());
    }
};

QTEST_MAIN(TestLanes)
#include "tst_lanes.moc"
