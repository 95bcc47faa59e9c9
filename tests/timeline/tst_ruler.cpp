#include "indicator.h"
#include "loggedruler.h"
#include "testsupport.h"

#include <Hueloft/POrvGuiTheme>

#include <QAbstractButton>

#include <functional>

using namespace CorvelGui;
using Hueloft::POrvGuiTheme;
using namespace Qt::StringLiterals;

class TestRuler : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void limits();
    void zooming();
    void refusedZoomRequests();
    void searchRangeZooms();
    void viewForClients();
    void following();
    void indicatorMovesByAPixelAtLeast();
    void indicatorIsSeenInTheView();
    void viewChangesOnRequest();
    void themeIsOneWay();
    void fontSizeGivesTheHeight();
    void arrowsStepAndRepeat();
};

void TestRuler::limits()
{
    LoggedRuler ruler(0);
    ruler.setTimeLimits(at(0), at(10 * day));
    QCOMPARE(ruler.takeLog(), (QStringList{u"center 0.002083"_s, u"view 02 00:00 - 02 01:00"_s}));
    QCOMPARE(ruler.getTimeLimits(), std::pair(at(0), at(10 * day)));
    QCOMPARE(ruler.endTime(), at(hour));
    QCOMPARE(ruler.getIndicatorMSecs(), at(0));

    // The view stays, even outside the new limits; the indicator comes in and takes the view along.
    ruler.setTimeLimits(at(0), at(12 * day));
    QCOMPARE(ruler.takeLog(), QStringList());
    ruler.setTimeLimits(at(day), at(12 * day));
    QCOMPARE(ruler.getIndicatorMSecs(), at(day));
    QCOMPARE(ruler.takeLog(),
             (QStringList{u"view 03 00:00 - 03 00:00"_s, u"view 03 00:00 - 03 00:00"_s}));

    ruler.changeLevel(5, 0.5);
    ruler.setTimeLimits(0, 0);
    QCOMPARE(ruler.level(), 1);
    QCOMPARE(ruler.beginTime(), quint64(0));
    QCOMPARE(ruler.getIndicatorMSecs(), quint64(0));

    // New limits beyond those of the tracks are reported.
    LoggedRuler tracks(day);
    tracks.setTrackDescriptions({{u"a"_s, u"Gate"_s, monday, monday + day, {}}});
    tracks.takeLog();
    tracks.setTimeLimits(at(0), at(2 * day));
    QCOMPARE(tracks.takeLog(), QStringList{u"view 02 00:00 - 02 01:00"_s});
}

void TestRuler::zooming()
{
    LoggedRuler ruler;
    ruler.onZoomerOut(4, 0.5);
    const QStringList sequence{u"level 4"_s, u"center 0.05"_s, u"view 02 00:00 - 03 00:00"_s};
    QCOMPARE(ruler.takeLog(), sequence);
    // The same level again still reports, because a caller asked for it.
    ruler.changeLevel(4, 0.5);
    QCOMPARE(ruler.takeLog(), sequence);
    ruler.onZoomerIn(3, 1.0);
    QCOMPARE(ruler.takeLog(),
             (QStringList{u"level 3"_s, u"center 0.0749"_s, u"view 02 11:51 - 02 23:58"_s}));

    // Whoever sent the position knows it: it is not sent back.
    ruler.onTimelineOffsetChanged(0.5);
    QCOMPARE(ruler.beginTime(), at(4 * day + 18 * hour));
    QCOMPARE(ruler.takeLog(), QStringList{u"view 06 17:52 - 07 06:00"_s});
}

void TestRuler::refusedZoomRequests()
{
    LoggedRuler ruler(day);
    ruler.changeLevel(4, 0.5);
    ruler.takeLog();
    ruler.onZoomerOut(5, 0.5);
    QCOMPARE(ruler.takeLog(), QStringList{u"level 4"_s});
    ruler.onZoomerOut(4, 0.5);
    ruler.onZoomerOut(9, 0.5);
    ruler.onZoomerIn(4, 0.5);
    ruler.onZoomerIn(-1, 0.5);
    QCOMPARE(ruler.takeLog(), QStringList());
    QCOMPARE(ruler.level(), 4);
}

void TestRuler::searchRangeZooms()
{
    LoggedRuler ruler;
    const QDateTime from = timeAt(5 * day);
    ruler.setSearchTimeRange(from, from.addSecs(3600), false);
    QCOMPARE(ruler.takeLog(), QStringList());
    ruler.setSearchTimeRange(from, from.addSecs(7200), true);
    QCOMPARE(ruler.takeLog(),
             (QStringList{u"level 2"_s, u"center 0.5042"_s, u"view 06 23:28 - 07 02:30"_s}));
    ruler.setSearchTimeRange(from, from, true);
    QCOMPARE(ruler.takeLog(), QStringList());
}

void TestRuler::viewForClients()
{
    LoggedRuler ruler;
    ruler.setView(monday + 2 * day, monday + 3 * day);
    QCOMPARE(ruler.takeLog(),
             (QStringList{u"level 4"_s, u"center 0.25"_s, u"view 03 23:45 - 05 00:00"_s}));
    QCOMPARE(ruler.timeAt(510), monday + 2 * day + 12 * hour);
    QCOMPARE(ruler.xAt(monday + 2 * day + 12 * hour), 510.0);
    const TimeSpan view = ruler.view();
    ruler.setView(view.begin, view.end);
    ruler.setView(view.end, view.begin);
    ruler.centerOn(view.begin + 12 * hour);
    QCOMPARE(ruler.takeLog(), QStringList());
    ruler.centerOn(monday + 10 * day - hour);
    QCOMPARE(ruler.takeLog(), (QStringList{u"center 0.95"_s, u"view 10 23:45 - 12 00:00"_s}));

    LoggedRuler empty(0);
    empty.setView(monday, monday + day);
    empty.centerOn(monday);
    QCOMPARE(empty.view(), TimeSpan());
    QCOMPARE(empty.timeAt(510), 0);
    QCOMPARE(empty.xAt(monday), 0.0);
    QCOMPARE(empty.takeLog(), QStringList());
}

void TestRuler::following()
{
    using Mode = Ruler::FollowMode;
    using Act = std::function<void(LoggedRuler&)>;
    const auto show = [](double hours) -> Act {
        return [=](LoggedRuler& r) {
            r.onTimelineOffsetChanged((hours + 0.5) / 240);
        };
    };
    const auto play = [](double hours) -> Act {
        return [=](LoggedRuler& r) {
            r.setIndicatorPosition(at(qint64(hours * hour)));
        };
    };
    const Act clear = [](LoggedRuler& r) {
        r.setIndicatorPosition(0);
    };
    const Act resume = [](LoggedRuler& r) {
        r.resumeFollowing();
    };
    const Act press = [](LoggedRuler& r) {
        r.press(500);
    };
    const Act release = [](LoggedRuler& r) {
        r.release(2000);
    };
    const Act drag = [](LoggedRuler& r) {
        r.press(600), r.dragTo(500), r.release(500);
    };
    const Act keys = [](LoggedRuler& r) {
        for (int i = 0; i < 6; ++i)
            QTest::keyClick(&r, Qt::Key_Right); // a minute each
    };
    const auto zoomAt = [](double anchor) -> Act {
        return [=](LoggedRuler& r) {
            r.changeLevel(0, anchor);
        };
    };
    const Act zoomIn = [](LoggedRuler& r) {
        r.onZoomerIn(0, 0.5);
    };
    // An hour from 5:00 is in view, with the indicator in the middle of it.
    const struct
    {
        Mode mode;
        QList<Act> acts;
        double begin; ///< of the view, in hours
        bool follows;
    } cases[] = {
        {Mode::Off, {play(7)}, 6, false},
        {Mode::Off, {show(9), resume}, 9, false},
        {Mode::Pages, {play(6)}, 5, true},
        {Mode::Pages, {play(6.1)}, 6, true},
        {Mode::Pages, {play(8.5)}, 8, true},
        {Mode::Pages, {play(4.9)}, 4, true},
        {Mode::Pages, {play(239.99)}, 239, true},
        {Mode::Pages, {show(5.2), play(6.3)}, 6.2, true}, // still in view
        {Mode::Pages, {show(9), play(6)}, 9, false},
        {Mode::Pages, {show(9), play(6), resume}, 6, true},
        {Mode::Pages, {show(9), play(9.5), play(10.5)}, 10, true},
        {Mode::Pages, {show(9), show(5), play(6.5)}, 6, true},
        {Mode::Pages, {clear, show(9), play(6.5)}, 6, true}, // nothing to look away from
        {Mode::Pages, {press, play(6.5)}, 5, true},
        {Mode::Pages, {press, play(6.5), release, play(6.6)}, 6, true},
        {Mode::Pages, {drag, play(6.5)}, 6.1, true},
        {Mode::Pages, {zoomAt(0)}, 5, false},
        {Mode::Pages, {play(5.1), zoomIn}, 5, true},
        {Mode::Centered, {play(6)}, 5.5, true},
        {Mode::Centered, {play(0.2)}, 0, true},
        {Mode::Centered, {drag, play(7)}, 5.1, false},
        {Mode::Centered, {drag, play(7), resume}, 6.5, true},
        {Mode::Centered, {keys}, 5.1, true},
        {Mode::Centered, {drag, keys}, 5.1, false},
        {Mode::Centered, {zoomAt(0)}, 5.5 - 1.0 / 6, true},
    };
    for (const auto& [mode, acts, begin, follows] : cases) {
        LoggedRuler ruler;
        show(5)(ruler);
        play(5.5)(ruler);
        ruler.setFollowMode(mode);
        bool following = ruler.isFollowing();
        connect(&ruler, &Ruler::followingChanged, &ruler, [&](bool on) { following = on; });
        for (const Act& act : acts)
            act(ruler);
        const double shown = double(qint64(ruler.beginTime()) - monday) / hour;
        QVERIFY2(qAbs(shown - begin) < 0.02, qPrintable(QString::number(shown)));
        QCOMPARE(ruler.isFollowing(), follows);
        QCOMPARE(following, follows);
    }
}

void TestRuler::indicatorMovesByAPixelAtLeast()
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
    QVERIFY(ruler.setIndicatorPosition(at(2 * hour)));
    QCOMPARE(ruler.takeLog(), QStringList{u"view 02 00:59 - 02 02:00"_s});
    QVERIFY(ruler.setIndicatorPosition(at(90 * minute)));
    QCOMPARE(ruler.takeLog(), QStringList());
}

void TestRuler::indicatorIsSeenInTheView()
{
    LoggedRuler ruler;
    auto* indicator = ruler.findChild<Indicator*>();
    ruler.setIndicatorPosition(at(30 * minute));
    QVERIFY(indicator->isVisibleTo(&ruler));
    QCOMPARE(indicator->x() + indicator->hotSpot(), 510);
    ruler.onTimelineOffsetChanged(0.5);
    QVERIFY(!indicator->isVisibleTo(&ruler));
    ruler.setIndicatorPosition(at(5 * day));
    QVERIFY(indicator->isVisibleTo(&ruler));
    ruler.setIndicatorPosition(0);
    QVERIFY(!indicator->isVisibleTo(&ruler));
    ruler.setIndicatorPosition(at(5 * day));
    ruler.setActive(false, false);
    QVERIFY(!indicator->isVisibleTo(&ruler));
}

void TestRuler::viewChangesOnRequest()
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
}

void TestRuler::themeIsOneWay()
{
    const Ruler untouched;
    QCOMPARE(untouched.minimumHeight(), 60);
    LoggedRuler plain(0);
    const auto body = [&plain] {
        const QImage picture = plain.grab().toImage();
        return picture.pixelColor(500, picture.height() - 5);
    };
    QCOMPARE(body(), QColor(60, 60, 60));
    plain.setOrvaneGuiTheme(true);
    plain.setOrvaneGuiTheme(false);
    QCOMPARE(body(), POrvGuiTheme::colorShark);
    plain.setBodyColor(Qt::darkGreen);
    QCOMPARE(body(), QColor(Qt::darkGreen));
    plain.setOrvaneGuiTheme(true);
    QCOMPARE(body(), POrvGuiTheme::colorShark);

    const struct
    {
        bool theme, playMode;
        QColor indicator;
    } cases[] = {{true, true, POrvGuiTheme::colorYellow},
                 {true, false, POrvGuiTheme::colorGreen},
                 {false, true, POrvGuiTheme::colorBlue},
                 {false, false, POrvGuiTheme::colorGreen}};
    for (const auto& look : cases) {
        LoggedRuler ruler;
        ruler.setPlayMode(look.playMode);
        ruler.setOrvaneGuiTheme(look.theme);
        QCOMPARE(ruler.findChild<Indicator*>()->color(), look.indicator);
    }
}

void TestRuler::fontSizeGivesTheHeight()
{
    LoggedRuler ruler;
    const auto* indicator = ruler.findChild<Indicator*>();
    const int before = ruler.maximumHeight();
    QCOMPARE(before, 4 * indicator->labelHeight());
    ruler.setFontSize(16);
    ruler.grab();
    QVERIFY(ruler.maximumHeight() > before * 3 / 2);
    QCOMPARE(ruler.maximumHeight(), 4 * indicator->labelHeight());
    QCOMPARE(ruler.minimumHeight(), ruler.maximumHeight());
}

void TestRuler::arrowsStepAndRepeat()
{
    LoggedRuler ruler;
    ruler.onTimelineOffsetChanged((32.5 * minute + 0.5) / (10 * day));
    QCOMPARE(ruler.beginTime(), at(150 * second));
    // Half an interval after the begin: one step, a little past the limit, and no repetition.
    auto* left = ruler.childAt(2, 30);
    QVERIFY(qobject_cast<QAbstractButton*>(left));
    QTest::mousePress(left, Qt::LeftButton);
    QCOMPARE(ruler.beginTime(), at(-150 * second));
    QTest::mouseRelease(left, Qt::LeftButton);
    ruler.takeLog();
    QTest::mouseClick(left, Qt::LeftButton);
    QCOMPARE(ruler.takeLog().size(), 1);

    auto* right = ruler.childAt(1017, 30);
    QVERIFY(qobject_cast<QAbstractButton*>(right) && right != left);
    QTest::mousePress(right, Qt::LeftButton);
    QTRY_VERIFY(ruler.beginTime() >= at(-150 * second + 3 * 5 * minute));
    QTest::mouseRelease(right, Qt::LeftButton);
    const QStringList log = ruler.takeLog();
    QVERIFY(log[0].startsWith(u"center"_s) && log[1].endsWith(u"moving"_s));
    QVERIFY(!log.last().endsWith(u"moving"_s));

    for (const auto& [active, blocked] : {std::pair(false, false), std::pair(true, true)}) {
        ruler.setActive(active, blocked);
        ruler.takeLog();
        QTest::mouseClick(right, Qt::LeftButton);
        QCOMPARE(ruler.takeLog(), QStringList());
    }
}

QTEST_MAIN(TestRuler)
#include "tst_ruler.moc"
