// SPDX-License-Identifier: MIT
#include "hoverpreview.h"
#include "rulerscript.h"

using namespace std::chrono_literals;
using CorvelGui::HoverPreview;
using namespace CorvelGui;

namespace {

/// The ruler's timers that run.
int runningTimers(const Ruler& ruler)
{
    int count = 0;
    for (const QTimer* timer : ruler.findChildren<QTimer*>())
        count += timer->isActive();
    return count;
}

/// The test's own clock: nothing here waits.
const HoverPreview::Clock::time_point zero{1000s};
constexpr qint64 viewBegin = 1'000'000;

HoverPreview started()
{
    HoverPreview hover;
    hover.start(QPoint(100, 5), viewBegin, zero);
    return hover;
}

} // namespace

class TestRulerInput : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void hands()
    {
        QApplication::setStartDragDistance(10);
        const QString keys = u"marker 10800; marker 19920; hour 5; place 19800"_s;
        const RulerCase cases[] = {
            // Clicks; the margin is no part of the scale
            {{}, u"press 510; release 510"_s, u"indicator 1800"_s},
            {{}, u"press 10; release 10"_s, {}},
            {{}, u"press 11; release 11"_s, u"indicator 3"_s},
            {{}, u"press 1009; release 1009"_s, u"indicator 3596"_s},
            {{}, u"press 1010; release 1010"_s, {}},
            {{}, u"press-right 510; release-right 510"_s, {}},
            {{}, u"press 510; press-right 510; release-right 510; release 510"_s, {}},
            {{}, u"press 500; drag 509; release 510"_s, u"indicator 1800"_s},
            {u"results"_s, u"press 510; release 510"_s, {}},
            {u"offset 1.5"_s, u"press 510; release 510"_s, {}},
            {u"block"_s,
             u"press 510; release 510; press 510; drag 300; release 300; wheel 120; key Right"_s,
             {}},
            {u"deactivate"_s, u"press 510; release 510; where"_s, u"indicator 1800 | at 1800"_s},
            // Drags of the view, which stays within the limits
            {u"offset 0.5"_s, u"press 600; drag 500; drag 500; drag 605; drag 610; release 610"_s,
             u"no preview | center 0.5004 | view 06 23:35 - 07 00:36 moving | center 0.5 | "
             "view 06 23:28 - 07 00:29 moving | view 06 23:28 - 07 00:29"_s},
            {{}, u"press 100; drag 900; release 900"_s, u"no preview | view 02 00:00 - 02 01:00"_s},
            {u"offset 1.0"_s, u"press 510; drag 500; release 500"_s,
             u"no preview | center 0.9979 | view 11 22:59 - 12 00:00 moving | view 11 22:59 - 12 00:00"_s},
            // Drags of the indicator, which is the user's alone meanwhile
            {u"place 1800"_s,
             u"press indicator 510,5; place 2400; where; drag indicator 610,5; where; drag indicator 1015,5; where; release indicator 1300,5; where"_s,
             u"at 1800 | no preview | at 2160 | no preview | at 2160 | indicator 3600 | at 3600"_s},
            {u"place 1800; reports"_s,
             u"press indicator 510,5; drag indicator 610,5; drag indicator 1010,5; release indicator 0,5; place 2400; where"_s,
             u"indicator 2160 | no preview | no preview | indicator 0 | at 2400"_s},
            {u"place 1800"_s,
             u"drag indicator 610,5; hover indicator 610,5; release indicator 610,5; where"_s,
             u"at 1800"_s},
            {u"place 1800"_s, u"press-right indicator 510,5; drag indicator 610,5; where"_s,
             u"at 1800"_s},
            // A second press counts, however soon it comes
            {{},
             u"press 510; release 510; press-again indicator 510,5; drag indicator 610,5; where"_s,
             u"indicator 1800 | no preview | at 2160"_s},
            {u"hour 5"_s, u"press-again arrow 1017; release arrow 1017; release arrow 1017"_s,
             u"center 0.02326 | view 02 05:04 - 02 06:05 moving | view 02 05:04 - 02 06:05"_s},
            // A release got lost: the next press and its release count
            {u"hour 5; press arrow 1017"_s, u"press arrow 1017; release arrow 1017"_s,
             u"view 02 05:04 - 02 06:05 | center 0.02361 | view 02 05:09 - 02 06:10 moving | view 02 05:09 - 02 06:10"_s},
            {u"hour 5"_s, u"press-right arrow 1017; release-right arrow 1017"_s, {}},
            {u"block"_s, u"press arrow 1017; release arrow 1017"_s, {}},
            {u"deactivate"_s, u"press arrow 1017; release arrow 1017"_s, {}},
            // A last step beyond the limits, then none
            {u"hour 0.04"_s, u"press arrow 2; release arrow 2; press arrow 2; release arrow 2"_s,
             u"center 0.001903 | view 02 00:00 - 02 00:57 moving | view 02 00:00 - 02 00:57 | view 02 00:00 - 02 00:57"_s},
            {u"offset 1.0"_s, u"press arrow 1017; release arrow 1017"_s,
             u"view 11 23:29 - 12 00:30"_s},
            {u"key End"_s, u"press arrow 1017; release arrow 1017"_s,
             u"center 0.9983 | view 11 23:04 - 12 00:05 moving | view 11 23:04 - 12 00:05"_s},
            // Many notches at once are one step of the wheel, less than a degree is none
            {u"offset 0.5"_s, u"wheel 1200"_s,
             u"level 0 | center 0.4993 | view 06 23:39 - 06 23:59 | level 0"_s},
            {u"level 0; offset 0.5"_s, u"wheel 120"_s, u"level 0"_s},
            {u"level 0; offset 0.5"_s, u"wheel -120"_s,
             u"level 1 | center 0.5007 | view 06 23:39 - 07 00:40 | level 1"_s},
            {u"level 8"_s, u"wheel -120"_s, u"level 8"_s},
            {{}, u"wheel 3"_s, {}},
            // Keys: an hour from 5:00 in view, ticks every 5 minutes, the indicator at 5:30
            {keys, u"key Right"_s, u"indicator 19860"_s},
            {keys, u"key Left"_s, u"indicator 19740"_s},
            {keys, u"key Shift+Right"_s, u"indicator 20100"_s},
            {keys, u"key Shift+Left"_s, u"indicator 19500"_s},
            {keys, u"key Home"_s, u"center 0.002083 | view 02 00:00 - 02 01:00 | indicator 0"_s},
            {keys, u"key End"_s, u"center 0.9979 | view 11 22:59 - 12 00:00 | indicator 864000"_s},
            {keys, u"key PgUp"_s, u"center 0.01875 | view 02 03:59 - 02 05:00"_s},
            {keys, u"key PgDown"_s, u"center 0.02708 | view 02 05:59 - 02 07:00"_s},
            {keys, u"key +"_s, u"level 0 | center 0.02291 | view 02 05:19 - 02 05:39"_s},
            {keys, u"key -"_s, u"level 2 | center 0.02292 | view 02 03:58 - 02 07:00"_s},
            {keys, u"key 0; key Ctrl+0"_s, u"level 8 | center 0.5 | view 02 00:00 - 12 00:00"_s},
            {keys, u"key N"_s, u"indicator 19920 | jump 02 05:32"_s},
            {keys, u"key P"_s,
             u"center 0.01458 | view 02 02:59 - 02 04:00 | indicator 10800 | jump 02 03:00"_s},
            {keys, u"key X"_s, {}},
            {{}, u"key Left; key PgUp; key P; key N"_s, {}},
            {u"hour 239"_s, u"key PgDown"_s, {}},
            // Previews are for the upper half, and for a ruler that takes input
            {u"leave; turn; previews"_s, u"hover 510,+1; hover 510,+0; hover 510,+1"_s,
             u"no preview"_s},
            {{}, u"hover 510,5; leave"_s, {}},
            {{}, u"hover 510,5; leave; leave; turn"_s, u"no preview"_s},
            {u"block; previews"_s, u"hover 510,5; block"_s, {}},
            {u"previews; hover 510,5"_s, u"enter arrow 1017; turn"_s, u"no preview"_s},
            {{}, u"line 1800; turn; line 432000; turn"_s, u"line 510,-1 | line 1015,-1"_s},
            // Ranges: by a drag of either direction, not by a click
            {u"select shift"_s, u"shift-press 510; drag 610; release 610"_s,
             u"no preview | started | range 1800 - 2160 | ended"_s},
            {u"select shift"_s, u"press 510; drag 610; release 610"_s,
             u"no preview | view 02 00:00 - 02 01:00"_s},
            {u"select drag"_s, u"press 610; drag 510; drag 610; release 510"_s,
             u"no preview | started | range 1800 - 2160 | no range | range 1800 - 2160 | ended"_s},
            {u"select drag"_s, u"press 510; release 510"_s, u"indicator 1800"_s},
            {u"select drag; offset 0.5"_s, u"shift-press 600; drag 500; release 500"_s,
             u"no preview | center 0.5004 | view 06 23:35 - 07 00:36 moving | view 06 23:35 - 07 00:36"_s},
            {u"select drag; block"_s, u"press 510; drag 610; release 610; key I"_s, {}},
            {{},
             u"shift-press 510; drag 610; release 610; key I; key Esc"_s,
             u"no preview | view 02 00:00 - 02 01:00"_s},
            {u"select drag; range 600 1200"_s,
             u"press 510; drag 610; key Esc; drag 700; release 700; key Esc"_s,
             u"no preview | started | range 1800 - 2160 | range 600 - 1200 | cancelled"_s},
            // They snap to markers and to edges of recordings
            {u"select drag; record 1780 2150"_s,
             u"press 510; drag 610; ctrl-drag 609; release 610"_s,
             u"no preview | started | range 1780 - 2150 | range 1780 - 2156 | range 1780 - 2150 | ended"_s},
            {u"select drag; marker 1821"_s, u"press 510; drag 610; release 610"_s,
             u"no preview | started | range 1821 - 2160 | ended"_s},
            {u"select drag; marker 1823; marker 1777"_s, u"press 510; drag 610; release 610"_s,
             u"no preview | started | range 1800 - 2160 | ended"_s},
            // Handles, which change places and are taken beside their line
            {u"select shift; range 1800 2160"_s, u"press begin 505,20; release begin 505,20"_s,
             u"started | ended"_s},
            {u"select shift; range 1800 2160"_s,
             u"press begin 505,20; drag begin 555,20; drag begin 705,20; release begin 705,20"_s,
             u"started | range 1980 - 2160 | range 2160 - 2520 | ended"_s},
            {u"select shift; range 1800 2160"_s,
             u"press end 615,20; drag end 515,20; key Esc; drag end 555,20"_s,
             u"started | no range | range 1800 - 2160 | cancelled"_s},
            {u"select shift; range 1800 2160; block"_s, u"press end 615,20; drag end 515,20"_s, {}},
            // Keys, at the indicator
            {u"select shift; place 1800"_s, u"key I; place 2400; key O; key I; key Del; key Del"_s,
             u"started | range 1800 - 864000 | ended | started | range 1800 - 2400 | ended | "
             "started | range 2400 - 864000 | ended | started | no range | ended"_s},
            {u"select shift; place 1800"_s, u"key O; key Ctrl+I"_s,
             u"started | range 0 - 1800 | ended"_s},
            {u"select shift; key End; range 1800 2400"_s, u"key I"_s, {}},
            // The limits cut a range; no other range is touched
            {u"range 600 1800"_s, u"range 600 1800; limits 1200 86400; limits 1900 86400"_s,
             u"range 1200 - 1800 | no range"_s},
            {u"range 600 1800"_s, u"empty; range 600 1800"_s, u"no range"_s},
            {u"search 0 1; result 0 1"_s, u"range -5 1800; range 1800 600"_s,
             u"range 0 - 1800 | no range"_s}};
        for (const RulerCase& expected : cases)
            comparePlay(expected);
    }

    void dragFromBesideTheScale()
    {
        LoggedRuler ruler;
        ruler.resize(1017, ruler.height()); // 3610.8 milliseconds a pixel
        play(&ruler, u"offset 0.5"_s);
        const quint64 begin = ruler.beginTime();
        play(&ruler, u"press 5; drag 105; release 105"_s);
        QCOMPARE(begin - ruler.beginTime(), quint64(18'054 + 343'029));
    }

    void lostReleases()
    {
        const std::tuple<QString, QString, QString> gestures[] = {
            {u"press 600"_s, u"drag 500"_s, {}},
            {u"press 600; drag 500"_s, u"drag 400"_s, u"view 06 23:35 - 07 00:36 | "_s},
            {u"press indicator 510,5; drag indicator 610,5"_s, u"drag indicator 710,5"_s,
             u"indicator 432360 | "_s},
            {u"reports; press indicator 510,5; drag indicator 610,5"_s,
             u"drag indicator 710,5"_s,
             {}},
            {u"press arrow 1017"_s, {}, u"view 06 23:34 - 07 00:35 | "_s},
            {u"select drag; press 600; drag 500"_s, u"drag 400"_s, u"ended | "_s},
            {u"select drag; press end 790,20"_s, u"drag end 700,20"_s, u"ended | "_s}};
        // Some of them end the hover preview as well.
        const std::pair<QString, bool> losses[] = {
            {u"hover 300,5"_s, false},      {u"hover indicator 300,5"_s, false},
            {u"hover arrow 1017"_s, false}, {u"hide"_s, true},
            {u"disable"_s, true},           {u"block"_s, true},
            {u"deactivate"_s, true},        {u"modal-window"_s, true},
            {u"other-window"_s, false},     {u"popup"_s, false}};
        for (const auto& [begin, goOn, end] : gestures) {
            for (const auto& [loss, endsPreview] : losses) {
                if (loss == u"hover arrow 1017"_s && begin != u"press arrow 1017"_s)
                    continue;
                LoggedRuler ruler;
                play(&ruler,
                     u"offset 0.5; place 432000; range 432000 433000; previews; hover 510,5"_s);
                connect(&ruler, &Ruler::heldChanged, &ruler, [&ruler](bool held) {
                    ruler.log << (held ? u"held"_s : u"free"_s);
                    QCOMPARE(ruler.isHeld(), held);
                });
                QVERIFY(play(&ruler, begin).startsWith(u"held"_s));
                // A drag of the view has ended the preview at its beginning.
                const bool hasPreview =
                    runningTimers(ruler) > (begin == u"press arrow 1017"_s ? 1 : 0);
                const QString name = begin + u" - "_s + loss + u": "_s;
                QCOMPARE(name + play(&ruler, loss + u"; turn"_s),
                         name + end + u"free"_s +
                             (endsPreview && hasPreview ? u" | no preview"_s : QString()));
                QVERIFY(runningTimers(ruler) <= (endsPreview ? 0 : 1));

                // The hand that goes on moves nothing.
                const quint64 start = ruler.beginTime();
                const quint64 indicator = ruler.getIndicatorMSecs();
                const TimeSpan range = ruler.selectedRange();
                play(&ruler, goOn);
                QCOMPARE(ruler.beginTime(), start);
                QVERIFY(ruler.selectedRange() == range);
                QCOMPARE(ruler.getIndicatorMSecs(), indicator);
                QVERIFY(ruler.setIndicatorPosition(at(5 * day + 10 * minute)));
            }
        }
    }

    void heldArrow()
    {
        LoggedRuler ruler;
        QSignalSpy steps(&ruler, &Ruler::centerPositionChanged);
        play(&ruler, u"offset 0.997; press arrow 1017"_s);
        QTRY_COMPARE(runningTimers(ruler), 0);
        // The last one goes beyond the limit.
        QCOMPARE(steps.size(), 3);
        QVERIFY(ruler.endTime() > at(10 * day));
        QVERIFY(ruler.isHeld());
        // For assistive technology an arrow is a button with a name, which makes a step.
        for (const auto& [x, name] : {std::pair(2, u"Earlier"_s), {1017, u"Later"_s}}) {
            LoggedRuler stepped;
            play(&stepped, u"hour 5"_s);
            QWidget* arrow = stepped.childAt(x, 30);
            QCOMPARE(arrow->accessibleName(), name);
            QVERIFY(stepped.rect().contains(arrow->geometry()));
            pressByAssistiveTechnology(arrow);
            QTRY_COMPARE(stepped.log.size(), 3);
            QVERIFY(!stepped.isHeld());
            QCOMPARE(stepped.beginTime() > at(5 * hour), x > 2);
        }
    }

    void previewComesAndGoes()
    {
        LoggedRuler ruler;
        play(&ruler, u"previews; hover 510,5"_s);
        QTRY_COMPARE(ruler.log, QStringList{u"preview 1800 at 510"_s});
        ruler.takeLog();
        // The column at which a preview was asked for is known.
        QCOMPARE(play(&ruler, u"line 1800; turn"_s), QString());
        ruler.onPreviewVisible(true, false);
        moveMouse(ruler, QPoint(610, 5));
        QTRY_COMPARE(ruler.log, QStringList{u"preview 2160 at 610"_s});
        ruler.takeLog();
        // Not yet while Qt tells of the leaving: a client may not delete anything then.
        QCOMPARE(play(&ruler, u"leave"_s), QString());
        QCOMPARE(play(&ruler, u"turn"_s), u"no preview"_s);
        QCOMPARE(runningTimers(ruler), 0);
    }

    void neighbours()
    {
        // Outside the limits, three at one instant, and on both sides of a range.
        for (const bool onlyInside : {false, true}) {
            LoggedRuler ruler;
            for (const qint64 time : {-hour, hour, hour, hour, 3 * hour, 5 * hour, 11 * day})
                ruler.onAddMarkers({{.time = timeAt(time)}});
            ruler.setResultTimeRange(timeAt(2 * hour), timeAt(4 * hour), false, false, onlyInside,
                                     false);
            ruler.setIndicatorPosition(0);
            for (const Qt::Key key : {Qt::Key_N, Qt::Key_P})
                for (int i = 0; i < 9; ++i)
                    QTest::keyClick(&ruler, key);
            ruler.log.removeIf([](const QString& line) { return !line.startsWith(u"jump"); });
            for (QString& line : ruler.log)
                line = line.right(5);
            QCOMPARE(ruler.takeLog().join(u' '),
                     onlyInside ? u"03:00"_s
                                : u"01:00 01:00 01:00 03:00 05:00 03:00 01:00 01:00 01:00"_s);
        }
    }

    void assistiveTechnology()
    {
        LoggedRuler ruler;
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&ruler);
        QCOMPARE(accessible->role(), QAccessible::Slider);
        QCOMPARE(accessible->text(QAccessible::Name), u"Timeline"_s);
        QAccessibleValueInterface* value = accessible->valueInterface();

        QCOMPARE((QList{value->minimumValue().toDouble(), value->maximumValue().toDouble(),
                        value->minimumStepSize().toDouble()}),
                 (QList{double(at(0)), double(at(10 * day)), double(minute)}));

        ruler.setIndicatorPosition(at(90 * minute));
        QCOMPARE(value->currentValue().toDouble(), double(at(90 * minute)));
        QVERIFY(accessible->text(QAccessible::Value).contains(u"1:30"_s));
        value->setCurrentValue(double(at(100 * minute)));
        QVERIFY(ruler.takeLog().contains(u"indicator 6000"_s));
        ruler.setIndicatorPosition(0);
        QCOMPARE(accessible->text(QAccessible::Value), u"No position"_s);
    }

    void deletionInSignals()
    {
        const QString acts[] = {
            u"limits 24h 216h"_s,
            u"result 24h 48h"_s,
            u"level 3"_s,
            u"place 120h"_s,
            u"marker 60"_s,
            u"press 510; release 510"_s,
            u"wheel -120"_s,
            u"key End"_s,
            u"press arrow 1017; release arrow 1017"_s,
            u"press 600; drag 300; release 300"_s,
            u"place 1800; reports; press indicator 510,5; drag indicator 610,5; release indicator 610,5"_s,
            u"press arrow 1017; hide; turn"_s,
            u"place 1800; press indicator 510,5; drag indicator 610,5; block"_s,
            u"select drag; press 510; drag 610; drag 700; release 510"_s,
            u"select drag; press 510; drag 610; key Esc; key O; key Del"_s,
            u"select drag; range 600 1800; press begin 175,20; drag begin 1300,20; limits 1200 1300"_s,
            u"leave; turn"_s};
        for (const QString& act : acts) {
            // Whatever signal comes first, second and so on deletes the ruler.
            for (int survived = 0; survived < 6; ++survived) {
                QPointer<LoggedRuler> ruler = new LoggedRuler;
                int count = 0;
                ruler->said = [&] {
                    if (count++ == survived)
                        delete ruler;
                };
                connect(ruler, &Ruler::heldChanged, this, ruler->said);
                play(ruler, act);
                QVERIFY(count > 0);
                QCOMPARE(ruler.isNull(), count > survived);
                delete ruler;
            }
        }
    }

    void restEarnsAPreview()
    {
        constexpr auto never = 0ms;
        // The mouse has moved so far since the last preview, and rests.
        const std::tuple<HoverPreview::Situation, int, std::chrono::milliseconds> cases[] = {
            {{}, 0, 301ms},
            {{.pending = true}, 0, 151ms},
            {{.dragging = true}, 0, never},
            {{.visible = true}, 0, never},
            {{.visible = true}, 3, never},
            {{.visible = true}, 4, 101ms},
            {{.visible = true}, -4, 101ms},
            {{.visible = true, .viewStart = 500}, 0, never},
            {{.visible = true, .viewStart = -501}, 0, 101ms},
            {{.visible = true, .markerHovered = true}, 0, 101ms}};
        for (auto [situation, mouseMove, rest] : cases) {
            situation.viewStart += viewBegin;
            HoverPreview hover = started();
            hover.emitted(viewBegin);
            hover.mouseMoved(QPoint(100 + mouseMove, 25), zero);
            QCOMPARE(hover.isDue(situation, zero + (rest == never ? 10s : rest)), rest != never);
            QVERIFY(!hover.isDue(situation, zero + rest - 1ms));
        }
    }

    void movingMouseEarnsNothing()
    {
        HoverPreview hover = started();
        for (int i = 1; i <= 50; ++i) {
            hover.mouseMoved(QPoint(100 + i, 5), zero + i * 90ms);
            QVERIFY(
                !hover.isDue({.pending = true, .viewStart = viewBegin}, zero + i * 90ms + 89ms));
        }
        // A zero forgets the last preview.
        hover.emitted(viewBegin);
        QCOMPARE(hover.lastPosition(), QPoint(150, 5));

        hover.start(QPoint(100, 5), viewBegin, zero + 1s);
        QCOMPARE(hover.lastPosition(), QPoint(-1, -1));
        QVERIFY(hover.isDue({.visible = true, .viewStart = viewBegin}, zero + 1101ms));
    }
};

QTEST_MAIN(TestRulerInput)
#include "tst_rulerinput.moc"
