#include "testsupport.h"
#include "times.h"
#include "timescale.h"

#include <QTest>

#include <cmath>
#include <limits>

using CorvelGui::TimeScale;
using namespace Qt::StringLiterals;

namespace {

constexpr double width = 1020; // 1000 pixels of scale

TimeScale utcScale(qint64 begin, qint64 end)
{
    TimeScale scale;
    scale.setWidth(width);
    scale.setTimeZone(QTimeZone::utc());
    scale.setTimeLimits(quint64(begin), quint64(end));
    return scale;
}

TimeScale scaleOf(qint64 duration)
{
    return utcScale(monday, monday + duration);
}

QDateTime at(qint64 msecs)
{
    return QDateTime::fromMSecsSinceEpoch(msecs, QTimeZone::utc());
}

} // namespace

class TestTimeScale : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void wholeRangeInterval_data();
    void wholeRangeInterval();
    void effectiveLevels_data();
    void effectiveLevels();
    void levelGeometry_data();
    void levelGeometry();
    void emptyPeriods_data();
    void emptyPeriods();
    void withoutPeriod();
    void extremeInputIsAbsorbed();
    void pixelsAndTimesRoundTrip();
    void relativePositions();
    void zoomKeepsAnchor_data();
    void zoomKeepsAnchor();
    void zoomStaysWithinLimits();
    void unusualZoomRequests();
    void zoomOutIsStrict();
    void levelFromTimeRange_data();
    void levelFromTimeRange();
    void invalidTimeRangesAreIgnored();
    void paging_data();
    void paging();
    void secondsInLabels();
    void storedTimesKeepTheirZone();
};

void TestTimeScale::wholeRangeInterval_data()
{
    QTest::addColumn<qint64>("duration");
    QTest::addColumn<qint64>("interval");

    QTest::newRow("100 ms") << qint64(100) << qint64(5);
    QTest::newRow("up to a second as it is") << 20 * second << second;
    QTest::newRow("whole seconds") << 20 * second + 19 * 20 << second;
    QTest::newRow("20 min") << 20 * minute << minute;
    QTest::newRow("whole minutes") << 45 * minute << 2 * minute;
    QTest::newRow("just less than a day") << day - 1 << 71 * minute;
    QTest::newRow("1 day") << day << hour;
    QTest::newRow("2 days") << 2 * day << 3 * hour;
    QTest::newRow("just less than 4 days") << 4 * day - 1 << 3 * hour;
    QTest::newRow("4 days") << 4 * day << 8 * hour;
    QTest::newRow("7 days") << 7 * day << 8 * hour;
    QTest::newRow("8 days") << 8 * day << 12 * hour;
    QTest::newRow("12 days") << 12 * day << 12 * hour;
    QTest::newRow("13 days") << 13 * day << day;
    QTest::newRow("20 days") << 20 * day << day;
    QTest::newRow("22 days") << 22 * day << day;
    QTest::newRow("23 days") << 23 * day << 2 * day;
    QTest::newRow("30 days") << 30 * day << 2 * day;
    QTest::newRow("three years") << 1096 * day << 73 * day;
}

void TestTimeScale::wholeRangeInterval()
{
    QFETCH(qint64, duration);
    QFETCH(qint64, interval);

    TimeScale scale = scaleOf(duration);
    scale.changeLevel(TimeScale::wholeRangeLevel, 0.5);
    QCOMPARE(scale.millisecondsPerInterval(), interval);
    QCOMPARE(qint64(scale.millisecondsPerLevel()), duration);
}

void TestTimeScale::effectiveLevels_data()
{
    QTest::addColumn<qint64>("duration");
    QTest::addColumn<int>("effectiveRows");

    QTest::newRow("shorter than every row") << 20 * minute - 1 << 0;
    QTest::newRow("exactly the first row") << 20 * minute << 1;
    QTest::newRow("45 min") << 45 * minute << 1;
    QTest::newRow("a week") << 7 * day << 7;
    QTest::newRow("30 days") << 30 * day << 8;
}

void TestTimeScale::effectiveLevels()
{
    QFETCH(qint64, duration);
    QFETCH(int, effectiveRows);

    TimeScale scale = scaleOf(duration);
    for (int level = 0; level <= TimeScale::wholeRangeLevel; ++level) {
        scale.changeLevel(level, 0.0);
        const bool effective = level < effectiveRows;
        QCOMPARE(scale.millisecondsPerLevel(),
                 effective ? TimeScale::zoomLevels()[level].millisecondsPerLevel
                           : quint64(duration));
        QCOMPARE(scale.getSubIntervalNumber(level),
                 effective ? TimeScale::zoomLevels()[level].subIntervalCount : 2);
    }
}

void TestTimeScale::levelGeometry_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<qint64>("interval");
    QTest::addColumn<double>("intervalLength");
    QTest::addColumn<int>("subIntervals");

    QTest::newRow("20 min") << 0 << 2 * minute << 100.0 << 8;
    QTest::newRow("1 h") << 1 << 5 * minute << 83.0 << 5;
    QTest::newRow("3 h") << 2 << 10 * minute << 55.0 << 5;
    QTest::newRow("12 h") << 3 << 30 * minute << 41.0 << 3;
    QTest::newRow("1 day") << 4 << hour << 41.0 << 5;
    QTest::newRow("3 days") << 5 << 3 * hour << 41.0 << 3;
    QTest::newRow("7 days") << 6 << 8 * hour << 47.0 << 2;
    QTest::newRow("14 days") << 7 << day << 71.0 << 2;
    QTest::newRow("whole range") << 8 << 2 * day << 66.0 << 2;
}

void TestTimeScale::levelGeometry()
{
    QFETCH(int, level);
    QFETCH(qint64, interval);

    TimeScale scale = scaleOf(30 * day);
    scale.changeLevel(level, 0.0);
    QCOMPARE(scale.millisecondsPerInterval(), interval);
    QTEST(scale.getIntervalLength(level), "intervalLength");
    QTEST(scale.getSubIntervalNumber(level), "subIntervals");
}

void TestTimeScale::emptyPeriods_data()
{
    QTest::addColumn<qint64>("end");

    QTest::newRow("no length") << monday;
    QTest::newRow("too short for a tick") << monday + 19;
    QTest::newRow("reversed") << monday - day;
}

void TestTimeScale::emptyPeriods()
{
    QFETCH(qint64, end);

    TimeScale scale = scaleOf(30 * day);
    scale.changeLevel(4, 0.5);
    scale.setTimeLimits(quint64(monday), quint64(end));
    QCOMPARE(scale.level(), 1);
    QCOMPARE(qint64(scale.totalDuration()), hour);
    QCOMPARE(scale.millisecondsPerInterval(), 5 * minute);
    QVERIFY(!scale.hasView());
    QCOMPARE(scale.beginLimitMs(), monday);
    QCOMPARE(scale.endLimitMs(), end);

    scale.setTimeLimits(quint64(monday), quint64(monday + day));
    QCOMPARE(scale.viewStartMs(), monday);
}

void TestTimeScale::withoutPeriod()
{
    TimeScale scale;
    scale.setWidth(width);
    QVERIFY(std::isinf(scale.lengthPerMillisecond()));
    QCOMPARE(scale.getPosition(monday), 0.0);
    QCOMPARE(scale.getCurrentCenterPosition(), 0.0);
    QVERIFY(!scale.getDateTime(500).isValid());
    scale.changeLevel(3, 0.5);
    QVERIFY(!scale.hasView());
    QVERIFY(!scale.pageTo(at(monday)));
    QVERIFY(!scale.setLevelFromTimeRange(at(monday), at(monday + hour)));
}

void TestTimeScale::extremeInputIsAbsorbed()
{
    TimeScale scale;
    scale.setTimeLimits(0, std::numeric_limits<quint64>::max());
    QVERIFY(scale.hasView());
    QVERIFY(scale.endLimit().isValid());
    for (const double pixels : {0.0, 20.0, 21.0, 1e6}) {
        scale.setWidth(pixels);
        for (const double anchor : {-1e300, -1.0, 2.0, 1e300, std::nan("")}) {
            scale.changeLevel(0, anchor);
            scale.changeLevel(TimeScale::wholeRangeLevel, anchor);
            scale.centerOn(anchor);
            QVERIFY(scale.getDateTime(pixels).isValid());
        }
    }
}

void TestTimeScale::pixelsAndTimesRoundTrip()
{
    TimeScale scale = scaleOf(30 * day);
    for (int level = 0; level <= TimeScale::wholeRangeLevel; ++level) {
        scale.changeLevel(level, 0.3);
        for (double x = 0; x <= width; x += 7)
            QVERIFY(qAbs(scale.xAt(scale.msecsAt(x)) - x) < 0.01);
    }
    // Towards zero on both sides of the margin.
    scale.changeLevel(TimeScale::wholeRangeLevel, 0.0);
    scale.setTimeLimits(quint64(monday), quint64(monday + 1500));
    QCOMPARE(scale.msecsAt(11) - monday, qint64(1));
    QCOMPARE(scale.msecsAt(9) - monday, qint64(-1));
}

void TestTimeScale::relativePositions()
{
    TimeScale scale = scaleOf(10 * day);
    QCOMPARE(scale.getPosition(monday + 5 * day), 0.5);
    QCOMPARE(scale.getPosition(monday - day), -0.1);
    QCOMPARE(scale.getPosition(monday + 11 * day), 1.1);

    scale.changeLevel(4, 0.0);
    QCOMPARE(scale.getCurrentCenterPosition(), 0.05);
    scale.centerOn(0.5);
    QCOMPARE(scale.viewStartMs(), monday + 5 * day - 12 * hour);
    // A centre before the begin limit is far away, never negative.
    scale.centerOn(-0.5);
    QVERIFY(scale.getCurrentCenterPosition() > 1e9);
}

void TestTimeScale::zoomKeepsAnchor_data()
{
    QTest::addColumn<double>("anchor");

    for (const double anchor : {0.0, 0.25, 0.5, 0.8, 1.0})
        QTest::addRow("%.2f", anchor) << anchor;
}

void TestTimeScale::zoomKeepsAnchor()
{
    QFETCH(double, anchor);

    TimeScale scale = scaleOf(60 * day);
    scale.setViewStart(at(monday + 30 * day));
    const int anchorX = int(TimeScale::margin() + 999 * anchor);
    for (const int level : {7, 5, 3, 0, 2, 4, 6}) {
        const qint64 before = scale.msecsAt(anchorX);
        scale.changeLevel(level, anchor);
        // The last pixel of the scale stands for the whole span, so up to one pixel of it is lost.
        const double pixel = 1.0 / scale.lengthPerMillisecond();
        QVERIFY(qAbs(scale.msecsAt(anchorX) - before) <= pixel + 1);
    }
}

void TestTimeScale::zoomStaysWithinLimits()
{
    TimeScale scale = scaleOf(60 * day);
    scale.changeLevel(0, 0.0);
    scale.changeLevel(7, 1.0);
    QCOMPARE(scale.viewStartMs(), monday);

    scale.setViewStart(at(monday + 60 * day - 20 * minute));
    scale.changeLevel(0, 0.0);
    scale.changeLevel(7, 0.0);
    QCOMPARE(scale.viewEndMs(), monday + 60 * day);

    scale.changeLevel(TimeScale::wholeRangeLevel, 0.7);
    QCOMPARE(scale.viewStartMs(), monday);
}

void TestTimeScale::unusualZoomRequests()
{
    TimeScale scale = scaleOf(60 * day);
    scale.setViewStart(at(monday + 30 * day));
    scale.changeLevel(scale.level(), 0.5);
    QCOMPARE(scale.viewStartMs(), monday + 30 * day);
    for (const int level : {-1, 9, std::numeric_limits<int>::max()}) {
        scale.changeLevel(4, 0.5);
        scale.changeLevel(level, 0.5);
        QCOMPARE(scale.level(), TimeScale::wholeRangeLevel);
        QCOMPARE(scale.viewStartMs(), monday);
    }
}

void TestTimeScale::zoomOutIsStrict()
{
    TimeScale scale = scaleOf(12 * hour + 1);
    scale.changeLevel(3, 0.0);
    QVERIFY(scale.canZoomOut());
    scale = scaleOf(12 * hour);
    scale.changeLevel(3, 0.0);
    QVERIFY(!scale.canZoomOut());
    scale.changeLevel(TimeScale::wholeRangeLevel, 0.0);
    QVERIFY(!scale.canZoomOut());
}

void TestTimeScale::levelFromTimeRange_data()
{
    QTest::addColumn<qint64>("from");
    QTest::addColumn<qint64>("to");
    QTest::addColumn<int>("level");
    QTest::addColumn<qint64>("viewStart");

    QTest::newRow("exactly a row") << 10 * day << 10 * day + hour << 1 << 10 * day;
    QTest::newRow("a little more than a row")
        << 10 * day << 10 * day + hour + 1 << 2 << 10 * day - hour + 1;
    QTest::newRow("in the middle")
        << 10 * day << 10 * day + 10 * minute << 0 << 10 * day - 5 * minute;
    QTest::newRow("close to the begin") << minute << 2 * minute << 0 << qint64(0);
    QTest::newRow("close to the end runs past it")
        << 60 * day - minute << 60 * day << 0 << 60 * day - minute - 9 * minute - 30 * second;
    QTest::newRow("whole range starts at its begin") << 3 * day << 50 * day << 8 << 3 * day;
    QTest::newRow("longer than the period") << -100 * day << 100 * day << 8 << qint64(0);
}

void TestTimeScale::levelFromTimeRange()
{
    QFETCH(qint64, from);
    QFETCH(qint64, to);
    QFETCH(qint64, viewStart);

    TimeScale scale = scaleOf(60 * day);
    QVERIFY(scale.setLevelFromTimeRange(at(monday + from), at(monday + to)));
    QTEST(scale.level(), "level");
    QCOMPARE(scale.viewStartMs() - monday, viewStart);
}

void TestTimeScale::invalidTimeRangesAreIgnored()
{
    TimeScale scale = scaleOf(60 * day);
    QVERIFY(!scale.setLevelFromTimeRange(QDateTime(), at(monday + hour)));
    QVERIFY(!scale.setLevelFromTimeRange(at(monday), QDateTime()));
    QVERIFY(!scale.setLevelFromTimeRange(at(monday), at(monday)));
    QVERIFY(!scale.setLevelFromTimeRange(at(monday + 1), at(monday)));
    QCOMPARE(scale.level(), 1);
    QCOMPARE(scale.viewStartMs(), monday);
}

void TestTimeScale::paging_data()
{
    QTest::addColumn<qint64>("target");
    QTest::addColumn<qint64>("viewStart");

    // The view shows an hour from 5:00.
    QTest::newRow("in view") << 5 * hour + 30 * minute << 5 * hour;
    QTest::newRow("at the end of the view") << 6 * hour << 5 * hour;
    QTest::newRow("behind the view") << 6 * hour + 1 << 5 * hour + 1;
    QTest::newRow("before the view") << 4 * hour << 4 * hour;
    QTest::newRow("far behind the end limit") << 30 * hour << 23 * hour;
}

void TestTimeScale::paging()
{
    QFETCH(qint64, target);
    QFETCH(qint64, viewStart);

    TimeScale scale = scaleOf(day);
    scale.setViewStart(at(monday + 5 * hour));
    QCOMPARE(scale.pageTo(at(monday + target)), viewStart != 5 * hour);
    QCOMPARE(scale.viewStartMs() - monday, viewStart);
}

void TestTimeScale::secondsInLabels()
{
    QCOMPARE(scaleOf(30 * minute - 1).getTickerString(61 * second), u"00:01:01"_s);
    QCOMPARE(scaleOf(30 * minute).getTickerString(61 * second), u"00:01"_s);
}

void TestTimeScale::storedTimesKeepTheirZone()
{
    TimeScale scale = scaleOf(day);
    scale.setTimeZone(QTimeZone((5 * 60 + 45) * 60));
    QCOMPARE(scale.getTickerString(0), u"00:00"_s);
    QCOMPARE(scale.inZone(monday).time(), QTime(5, 45));

    // A view that is computed from new limits is on their clock.
    scale.setTimeLimits(quint64(monday), quint64(monday + day));
    QCOMPARE(scale.getTickerString(0), u"00:00"_s);
    scale.centerOn(0.5);
    QCOMPARE(scale.getTickerString(-qint64(scale.viewStartMs() - monday)), u"05:45"_s);
    // So is one that shows a range, whatever the zone of the range.
    QVERIFY(scale.setLevelFromTimeRange(at(monday), at(monday + hour)));
    QCOMPARE(scale.getTickerString(0), u"05:45"_s);
}

QTEST_GUILESS_MAIN(TestTimeScale)
#include "tst_timescale.moc"
