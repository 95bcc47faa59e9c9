// SPDX-License-Identifier: MIT
#include "rulerscript.h"
#include "testsupport.h"

using namespace CorvelGui;

class TestRuler : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void calls()
    {
        const RulerCase cases[] = {
            // Limits: the first period shows its begin, a view stays even outside the next; the
            // indicator comes in and takes the view along
            {u"empty"_s, u"limits 0 240h; where"_s,
             u"center 0.002083 | view 02 00:00 - 02 01:00 | at 0"_s},
            {{}, u"limits 0 288h"_s, {}},
            {{},
             u"limits 24h 288h; where"_s,
             u"view 03 00:00 - 03 00:00 | view 03 00:00 - 03 00:00 | at 86400"_s},
            {u"place 200h"_s, u"limits 0 180h; where"_s,
             u"view 09 10:59 - 09 12:00 | view 09 10:59 - 09 12:00 | at 648000"_s},
            {u"limits 0 24h; track 0 24h"_s, u"limits 0 48h"_s, u"view 02 00:00 - 02 01:00"_s},
            // Zooming: the same level again still reports, because a caller asked for it
            {{}, u"out 4"_s, u"level 4 | center 0.05 | view 02 00:00 - 03 00:00"_s},
            {u"level 4"_s, u"level 4"_s, u"level 4 | center 0.05 | view 02 00:00 - 03 00:00"_s},
            {u"level 4"_s, u"in 3 1.0"_s, u"level 3 | center 0.0749 | view 02 11:51 - 02 23:58"_s},
            {u"limits 0 24h; level 4"_s, u"out 5; out 4; out 9; in 4; in -1"_s, u"level 4"_s},
            // Whoever sends a position knows it
            {u"level 3"_s, u"offset 0.5"_s, u"view 06 17:52 - 07 06:00"_s},
            {{}, u"search 120h 121h; search 120h 120h and-zoom"_s, {}},
            {{},
             u"search 120h 122h and-zoom"_s,
             u"level 2 | center 0.5042 | view 06 23:28 - 07 02:30"_s},
            {{}, u"view 48h 72h"_s, u"level 4 | center 0.25 | view 03 23:45 - 05 00:00"_s},
            {u"view 48h 72h"_s, u"view 48h 72h; view 72h 48h; center 60h"_s, {}},
            {u"view 48h 72h"_s, u"center 239h"_s, u"center 0.95 | view 10 23:45 - 12 00:00"_s},
            {u"empty"_s, u"view 0 24h; center 0"_s, {}}};
        for (const RulerCase& expected : cases)
            comparePlay(expected);
    }

    void viewForClients()
    {
        LoggedRuler ruler;
        ruler.setView(monday + 2 * day, monday + 3 * day);
        QCOMPARE(ruler.view(), (TimeSpan{monday + 2 * day, monday + 3 * day}));
        QCOMPARE(ruler.timeAt(510), monday + 2 * day + 12 * hour);
        QCOMPARE(ruler.xAt(monday + 2 * day + 12 * hour), 510.0);
        play(&ruler, u"level 5; empty"_s);
        QCOMPARE(ruler.level(), 1);
        QCOMPARE(ruler.beginTime(), quint64(0));
        QCOMPARE(ruler.getIndicatorMSecs(), quint64(0));
        QCOMPARE(ruler.view(), TimeSpan());
        QCOMPARE(ruler.timeAt(510), 0);
        QCOMPARE(ruler.xAt(monday), 0.0);
    }

    void following()
    {
        using Mode = Ruler::FollowMode;
        const QString drag = u"press 600; drag 500; release 500"_s;
        const QString keys = QStringList(6, u"key Right"_s).join(u"; "_s); // a minute each
        // An hour from 5:00 is in view, with the indicator in the middle of it. The view begins at
        // an hour then, and follows or not.
        const std::tuple<Mode, QString, double, bool> cases[] = {
            {Mode::Off, u"place 7h"_s, 6, false},
            {Mode::Off, u"hour 9; resume"_s, 9, false},
            {Mode::Pages, u"place 6h"_s, 5, true},
            {Mode::Pages, u"place 6.1h"_s, 6, true},
            {Mode::Pages, u"place 8.5h"_s, 8, true},
            {Mode::Pages, u"place 4.9h"_s, 4, true},
            {Mode::Pages, u"place 239.99h"_s, 239, true},
            {Mode::Pages, u"hour 5.2; place 6.3h"_s, 6.2, true}, // still in view
            {Mode::Pages, u"hour 9; place 6h"_s, 9, false},
            {Mode::Pages, u"hour 9; place 6h; resume"_s, 6, true},
            {Mode::Pages, u"hour 9; place 9.5h; place 10.5h"_s, 10, true},
            {Mode::Pages, u"hour 9; hour 5; place 6.5h"_s, 6, true},
            {Mode::Pages, u"take-away; hour 9; place 6.5h"_s, 6, true}, // nothing to look away from
            {Mode::Pages, u"press 500; place 6.5h"_s, 5, true},
            {Mode::Pages, u"press 500; place 6.5h; release 2000; place 6.6h"_s, 6, true},
            {Mode::Pages, drag + u"; place 6.5h"_s, 6.1, true},
            {Mode::Pages, u"level 0 0.0"_s, 5, false},
            {Mode::Pages, u"place 5.1h; in 0"_s, 5, true},
            {Mode::Centered, u"place 6h"_s, 5.5, true},
            {Mode::Centered, u"place 0.2h"_s, 0, true},
            {Mode::Centered, drag + u"; place 7h"_s, 5.1, false},
            {Mode::Centered, drag + u"; place 7h; resume"_s, 6.5, true},
            {Mode::Centered, keys, 5.1, true},
            {Mode::Centered, drag + u"; "_s + keys, 5.1, false},
            {Mode::Centered, u"level 0 0.0"_s, 5.5 - 1.0 / 6, true}};
        for (const auto& [mode, script, begin, follows] : cases) {
            LoggedRuler ruler;
            play(&ruler, u"hour 5; place 5.5h"_s);
            ruler.setFollowMode(mode);
            bool following = ruler.isFollowing();
            connect(&ruler, &Ruler::followingChanged, &ruler, [&](bool on) { following = on; });
            play(&ruler, script);
            const double shown = double(qint64(ruler.beginTime()) - monday) / hour;
            QVERIFY2(qAbs(shown - begin) < 0.02, qPrintable(script + u": %1"_s.arg(shown)));
            QCOMPARE(ruler.isFollowing(), follows);
            QCOMPARE(following, follows);
        }
    }

    void indicatorMovesByAPixelAtLeast()
    {
        LoggedRuler ruler;
        QVERIFY(ruler.setIndicatorPosition(at(30 * minute)));
        QVERIFY(!ruler.setIndicatorPosition(at(30 * minute + 3599)));
        QCOMPARE(ruler.getIndicatorMSecs(), at(30 * minute));
        QCOMPARE(ruler.findChild<Indicator*>()->text(), u"00:30:03"_s);
        QVERIFY(ruler.setIndicatorPosition(at(30 * minute + 3600)));
        QCOMPARE(ruler.getIndicatorPosition(), (30 * minute + 3600) / double(10 * day));

        // What is less counts for the keys at once, and for the rest with the next view.
        QVERIFY(!ruler.setIndicatorPosition(at(30 * minute + 5000)));
        QCOMPARE(ruler.exactIndicatorMSecs(), at(30 * minute + 5000));
        ruler.updateChildren(false);
        QCOMPARE(ruler.findChild<Indicator*>()->text(), u"00:30:05"_s);
        ruler.onAddMarkers({{.time = timeAt(30 * minute + 4000)}});
        QTest::keyClick(&ruler, Qt::Key_N);
        QVERIFY(!ruler.takeLog().contains(u"jump 02 00:30"_s));
        ruler.changeLevel(0, 0.5);
        QCOMPARE(ruler.getIndicatorMSecs(), at(30 * minute + 5000));
        ruler.changeLevel(1, 0.5);
        ruler.takeLog();
        // The view pages after it.
        QCOMPARE(play(&ruler, u"place 2h; place 1.5h"_s), u"view 02 00:59 - 02 02:00"_s);
    }

    void viewChangesOnRequest()
    {
        LoggedRuler ruler;
        ruler.blockSignalTimeLineViewChanged(true);
        ruler.onTimelineOffsetChanged(0.25);
        ruler.onTimelineOffsetChanged(0.5);
        ruler.blockSignalTimeLineViewChanged(false);
        QCOMPARE(ruler.takeLog(), QStringList());
        ruler.processTimeLineViewChanges();
        ruler.processTimeLineViewChanges();
        QCOMPARE(ruler.takeLog(), QStringList{u"view 06 23:29 - 07 00:30"_s});
        ruler.onTimeLineViewSettingsNeeded();
        QCOMPARE(ruler.log, QStringList());
        QTRY_COMPARE(ruler.log, QStringList{u"view 06 23:29 - 07 00:30"_s});
        ruler.takeLog();
        ruler.setTimeZone(u"Asia/Tokyo"_s);
        ruler.applyTimeZone();
        QCOMPARE(ruler.takeLog(), QStringList{u"view 07 08:29 - 07 09:30"_s});
    }
};

QTEST_MAIN(TestRuler)
#include "tst_ruler.moc"
