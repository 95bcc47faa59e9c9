#include "indicator.h"
#include "loggedruler.h"
#include "testsupport.h"

#include <Hueloft/POrvGuiTheme>

#include <QAbstractButton>

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
