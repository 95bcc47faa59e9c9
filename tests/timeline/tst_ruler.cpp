#include "indicator.h"
#include "loggedruler.h"
#include "testsupport.h"
#include "times.h"
#include "timescale.h"

#include <Hueloft/POrvGuiTheme>

#include <QAbstractButton>
#include <QSignalSpy>
#include <QTest>

using namespace CorvelGui;
using Hueloft::POrvGuiTheme;
using namespace Qt::StringLiterals;

class TestRuler : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void firstLimits();
    void laterLimits();
    void limitsBeyondTheTracks();
    void emptyLimits();
    void zooming();
    void refusedZoomRequests();
    void searchRangeZooms();
    void offsetCenters();
    void indicatorMovesByAPixelAtLeast();
    void viewPagesAfterTheIndicator();
    void indicatorIsSeenInTheView();
    void blockedViewChanges();
    void viewSettingsOnRequest();
    void themeIsOneWay();
    void indicatorColors_data();
    void indicatorColors();
    void fontSizeGivesTheHeight();
    void arrowsStepAndRepeat();
    void arrowsNeedAnActiveRuler();
};

void TestRuler::firstLimits()
{
    LoggedRuler ruler;
    ruler.setTimeLimits(at(0), at(10 * day));
    QCOMPARE(ruler.takeLog(), (QStringList{u"center 0.002083"_s, u"view 02 00:00 - 02 01:00"_s}));
    QCOMPARE(ruler.getTimeLimits(), std::pair(at(0), at(10 * day)));
    QCOMPARE(ruler.beginTime(), at(0));
    QCOMPARE(ruler.endTime(), at(hour));
    QCOMPARE(ruler.getIndicatorMSecs(), at(0));
}

void TestRuler::laterLimits()
{
    LoggedRuler ruler;
    ruler.setTimeLimits(at(0), at(10 * day));
    ruler.takeLog();

    // The view stays, even outside the new limits; the indicator comes in and takes the view along.
    ruler.setTimeLimits(at(0), at(12 * day));
    QCOMPARE(ruler.takeLog(), QStringList());
    ruler.setTimeLimits(at(day), at(12 * day));
    QCOMPARE(ruler.getIndicatorMSecs(), at(day));
    QCOMPARE(ruler.takeLog(),
             (QStringList{u"view 03 00:00 - 03 00:00"_s, u"view 03 00:00 - 03 00:00"_s}));
}

void TestRuler::limitsBeyondTheTracks()
{
    LoggedRuler ruler;
    ruler.setTrackDescriptions({{u"a"_s, u"Gate"_s, monday, monday + day, {}}});
    ruler.setTimeLimits(at(0), at(day));
    ruler.takeLog();
    ruler.setTimeLimits(at(0), at(2 * day));
    QCOMPARE(ruler.takeLog(), QStringList{u"view 02 00:00 - 02 01:00"_s});
}

void TestRuler::emptyLimits()
{
    LoggedRuler ruler;
    ruler.setTimeLimits(at(0), at(10 * day));
    ruler.changeLevel(5, 0.5);
    ruler.setTimeLimits(0, 0);
    QCOMPARE(ruler.level(), 1);
    QCOMPARE(qint64(ruler.getTotalDuration()), hour);
    QCOMPARE(ruler.beginTime(), quint64(0));
    QCOMPARE(ruler.getIndicatorMSecs(), quint64(0));
}

void TestRuler::zooming()
{
    LoggedRuler ruler;
    ruler.setTimeLimits(at(0), at(10 * day));
    ruler.takeLog();
    ruler.onZoomerOut(4, 0.5);
    const QStringList sequence{u"level 4"_s, u"center 0.05"_s, u"view 02 00:00 - 03 00:00"_s};
    QCOMPARE(ruler.takeLog(), sequence);
    // The same level again still reports, because a caller asked for it.
    ruler.changeLevel(4, 0.5);
    QCOMPARE(ruler.takeLog(), sequence);
    ruler.onZoomerIn(3, 1.0);
    QCOMPARE(ruler.takeLog(),
             (QStringList{u"level 3"_s, u"center 0.0749"_s, u"view 02 11:51 - 02 23:58"_s}));
}

void TestRuler::refusedZoomRequests()
{
    LoggedRuler ruler;
    ruler.setTimeLimits(at(0), at(day));
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
    ruler.setTimeLimits(at(0), at(10 * day));
    ruler.takeLog();
    const QDateTime from = QDateTime::fromMSecsSinceEpoch(monday + 5 * day, QTimeZone::utc());
    ruler.setSearchTimeRange(from, from.addSecs(3600), false);
    QCOMPARE(ruler.takeLog(), QStringList());
    ruler.setSearchTimeRange(from, from.addSecs(7200), true);
    QCOMPARE(ruler.takeLog(),
             (QStringList{u"level 2"_s, u"center 0.5042"_s, u"view 06 23:28 - 07 02:30"_s}));
    ruler.setSearchTimeRange(from, from, true);
    QCOMPARE(ruler.takeLog(), QStringList());
}

void TestRuler::offsetCenters()
{
    LoggedRuler ruler;
    ruler.setTimeLimits(at(0), at(10 * day));
    ruler.changeLevel(4, 0.5);
    ruler.takeLog();
    ruler.onTimelineOffsetChanged(0.5);
    QCOMPARE(ruler.beginTime(), at(4 * day + 12 * hour));
    // Whoever sent the position knows it: it is not sent back.
    QCOMPARE(ruler.takeLog(), QStringList{u"view 06 11:45 - 07 12:00"_s});
}

void TestRuler::indicatorMovesByAPixelAtLeast()
{
    LoggedRuler ruler;
    ruler.setTimeLimits(at(0), at(10 * day));
    QVERIFY(ruler.setIndicatorPosition(at(30 * minute)));
    // A pixel is 3.6 seconds.
    QVERIFY(!ruler.setIndicatorPosition(at(30 * minute + 3599)));
    QCOMPARE(ruler.getIndicatorMSecs(), at(30 * minute));
    QCOMPARE(ruler.findChild<Indicator*>()->text(), u"00:30:03"_s);
    QVERIFY(ruler.setIndicatorPosition(at(30 * minute + 3600)));
    QCOMPARE(ruler.getIndicatorPosition(), (30 * minute + 3600) / double(10 * day));
}

void TestRuler::viewPagesAfterTheIndicator()
{
    LoggedRuler ruler;
    ruler.setTimeLimits(at(0), at(10 * day));
    ruler.takeLog();
    QVERIFY(ruler.setIndicatorPosition(at(2 * hour)));
    QCOMPARE(ruler.beginTime(), at(hour));
    QCOMPARE(ruler.takeLog(), QStringList{u"view 02 00:59 - 02 02:00"_s});
    QVERIFY(ruler.setIndicatorPosition(at(90 * minute)));
    QCOMPARE(ruler.takeLog(), QStringList());
}

void TestRuler::indicatorIsSeenInTheView()
{
    LoggedRuler ruler;
    auto* indicator = ruler.findChild<Indicator*>();
    ruler.setTimeLimits(at(0), at(10 * day));
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

void TestRuler::blockedViewChanges()
{
    LoggedRuler ruler;
    ruler.setTimeLimits(at(0), at(10 * day));
    ruler.takeLog();
    ruler.blockSignalTimeLineViewChanged(true);
    ruler.onTimelineOffsetChanged(0.25);
    ruler.onTimelineOffsetChanged(0.5);
    ruler.blockSignalTimeLineViewChanged(false);
    QCOMPARE(ruler.takeLog(), QStringList());
    ruler.processTimeLineViewChanges();
    ruler.processTimeLineViewChanges();
    QCOMPARE(ruler.takeLog(), QStringList{u"view 06 23:29 - 07 00:30"_s});
}

void TestRuler::viewSettingsOnRequest()
{
    LoggedRuler ruler;
    ruler.setTimeLimits(at(0), at(10 * day));
    ruler.takeLog();
    ruler.onTimeLineViewSettingsNeeded();
    QCOMPARE(ruler.log, QStringList());
    QTRY_COMPARE(ruler.log, QStringList{u"view 02 00:00 - 02 01:00"_s});
}

void TestRuler::themeIsOneWay()
{
    LoggedRuler ruler;
    ruler.resize(800, ruler.height());
    const auto body = [&ruler] {
        const QImage picture = ruler.grab().toImage();
        return picture.pixelColor(500, picture.height() - 5);
    };
    QCOMPARE(body(), POrvGuiTheme::colorShark);
    ruler.setOrvaneGuiTheme(false);
    QCOMPARE(body(), POrvGuiTheme::colorShark);
    ruler.setBodyColor(Qt::darkGreen);
    QCOMPARE(body(), QColor(Qt::darkGreen));
    ruler.setOrvaneGuiTheme(true);
    QCOMPARE(body(), POrvGuiTheme::colorShark);
}

void TestRuler::indicatorColors_data()
{
    QTest::addColumn<bool>("theme");
    QTest::addColumn<bool>("playMode");
    QTest::addColumn<QColor>("color");

    QTest::newRow("theme, playing") << true << true << POrvGuiTheme::colorYellow;
    QTest::newRow("theme") << true << false << POrvGuiTheme::colorGreen;
    QTest::newRow("playing") << false << true << POrvGuiTheme::colorBlue;
    QTest::newRow("neither") << false << false << POrvGuiTheme::colorGreen;
}

void TestRuler::indicatorColors()
{
    QFETCH(bool, theme);
    QFETCH(bool, playMode);
    LoggedRuler ruler;
    ruler.setPlayMode(playMode);
    ruler.setOrvaneGuiTheme(theme);
    QTEST(ruler.findChild<Indicator*>()->color(), "color");
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
    ruler.setTimeLimits(at(0), at(10 * day));
    ruler.onTimelineOffsetChanged((32.5 * minute + 0.5) / (10 * day));
    QCOMPARE(ruler.beginTime(), at(150 * second));
    ruler.takeLog();

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
    QVERIFY(log[0].startsWith(u"center"_s));
    QVERIFY(log[1].endsWith(u"moving"_s));
    QVERIFY(!log.last().endsWith(u"moving"_s));
}

void TestRuler::arrowsNeedAnActiveRuler()
{
    LoggedRuler ruler;
    ruler.setTimeLimits(at(0), at(10 * day));
    for (const auto& [active, blocked] : {std::pair(false, false), std::pair(true, true)}) {
        ruler.setActive(active, blocked);
        ruler.takeLog();
        QTest::mouseClick(ruler.childAt(1017, 30), Qt::LeftButton);
        QCOMPARE(ruler.takeLog(), QStringList());
    }
}

QTEST_MAIN(TestRuler)
#include "tst_ruler.moc"
