#include "testsupport.h"
#include "times.h"
#include "timescale.h"

#include <QRandomGenerator>
#include <QTest>

#include <cmath>
#include <limits>

using CorvelGui::TimeScale;
using namespace Qt::StringLiterals;

namespace {

constexpr double width = 1020; // 1000 pixels of scale

/// A scale of a period that begins on Monday, in UTC.
TimeScale scaleOf(qint64 duration)
{
    TimeScale scale;
    scale.setWidth(width);
    scale.setTimeZone(QTimeZone::utc());
    scale.setTimeLimits(quint64(monday), quint64(monday + duration));
    return scale;
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
    void wholeRangeInterval();
    void levels();
    void levelGeometry();
    void emptyPeriods();
    void extremeInputIsAbsorbed();
    void pixelsAndTimesRoundTrip();
    void relativePositions();
    void zoomKeepsAnchor();
    void zoomStaysWithinLimits();
    void levelFromTimeRange();
    void viewsOnRequest();
    void paging();
    void labels();
};

void TestTimeScale::wholeRangeInterval()
{
    const std::pair<qint64, qint64> cases[] = {
        {100, 5},
        {20 * second, second}, // up to a second as it is
        {20 * second + 19 * 20, second},
        {20 * minute, minute},
        {45 * minute, 2 * minute},
        {day - 1, 71 * minute},
        {day, hour},
        {2 * day, 3 * hour},
        {4 * day - 1, 3 * hour},
        {4 * day, 8 * hour},
        {7 * day, 8 * hour},
        {8 * day, 12 * hour},
        {12 * day, 12 * hour},
        {13 * day, day},
        {22 * day, day},
        {23 * day, 2 * day},
        {1096 * day, 73 * day},
    };
    for (const auto& [duration, interval] : cases) {
        TimeScale scale = scaleOf(duration);
        scale.changeLevel(TimeScale::wholeRangeLevel, 0.5);
        QCOMPARE(scale.millisecondsPerInterval(), interval);
        QCOMPARE(qint64(scale.millisecondsPerLevel()), duration);
    }
}

void TestTimeScale::levels()
{
    // So many rows of the table are not longer than the period.
    const std::pair<qint64, int> cases[] = {
        {20 * minute - 1, 0}, {20 * minute, 1}, {45 * minute, 1}, {7 * day, 7}, {30 * day, 8}};
    for (const auto& [duration, effectiveRows] : cases) {
        TimeScale scale = scaleOf(duration);
        for (int level = 0; level <= TimeScale::wholeRangeLevel; ++level) {
            scale.changeLevel(level, 0.0);
            QCOMPARE(scale.millisecondsPerLevel(),
                     level < effectiveRows ? TimeScale::zoomLevels()[level].millisecondsPerLevel
                                           : quint64(duration));
        }
        QCOMPARE(scale.getSubIntervalNumber(effectiveRows), 2);
    }
    // Zooming out needs a row that is shorter than the period.
    for (const auto& [duration, canZoomOut] :
         {std::pair(12 * hour + 1, true), {12 * hour, false}}) {
        TimeScale scale = scaleOf(duration);
        scale.changeLevel(3, 0.0);
        QCOMPARE(scale.canZoomOut(), canZoomOut);
        scale.changeLevel(TimeScale::wholeRangeLevel, 0.0);
        QVERIFY(!scale.canZoomOut());
    }
}

void TestTimeScale::levelGeometry()
{
    const struct
    {
        qint64 interval;
        double intervalLength;
        int subIntervals;
    } levels[] = {{2 * minute, 100, 8}, {5 * minute, 83, 5}, {10 * minute, 55, 5},
                  {30 * minute, 41, 3}, {hour, 41, 5},       {3 * hour, 41, 3},
                  {8 * hour, 47, 2},    {day, 71, 2},        {2 * day, 66, 2}};
    TimeScale scale = scaleOf(30 * day);
    for (int level = 0; level <= TimeScale::wholeRangeLevel; ++level) {
        scale.changeLevel(level, 0.0);
        QCOMPARE(scale.millisecondsPerInterval(), levels[level].interval);
        QCOMPARE(scale.getIntervalLength(level), levels[level].intervalLength);
        QCOMPARE(scale.getSubIntervalNumber(level), levels[level].subIntervals);
    }
}

void TestTimeScale::emptyPeriods()
{
    // No length, too short for a tick, reversed.
    for (const qint64 end : {monday, monday + 19, monday - day}) {
        TimeScale scale = scaleOf(30 * day);
        scale.changeLevel(4, 0.5);
        scale.setTimeLimits(quint64(monday), quint64(end));
        QCOMPARE(scale.level(), 1);
        QCOMPARE(qint64(scale.totalDuration()), hour);
        QCOMPARE(scale.millisecondsPerInterval(), 5 * minute);
        QVERIFY(!scale.hasView());
        QCOMPARE(scale.beginLimitMs(), monday);
        QCOMPARE(scale.endLimitMs(), end);
        // Without a period there is no view to move.
        scale.changeLevel(0, 0.5);
        scale.changeLevel(TimeScale::wholeRangeLevel, 0.5);
        QVERIFY(!scale.centerOnPosition(0.5));
        QVERIFY(!scale.setLevelFromTimeRange(at(monday), at(monday + hour)));
        QVERIFY(!scale.hasView());
        scale.setTimeLimits(quint64(monday), quint64(monday + day));
        QCOMPARE(scale.viewStartMs(), monday);
    }
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
    QVERIFY(scale.hasView() && scale.endLimit().isValid());
    for (const double pixels : {0.0, 20.0, 21.0, 1e6}) {
        scale.setWidth(pixels);
        for (const double anchor : {-1e300, -1.0, 2.0, 1e300, std::nan("")}) {
            scale.changeLevel(0, anchor);
            scale.changeLevel(TimeScale::wholeRangeLevel, anchor);
            scale.centerOnPosition(anchor);
            QVERIFY(scale.getDateTime(pixels).isValid());
            scale.msecsAt(anchor);
        }
    }
    scale = scaleOf(60 * day);
    constexpr qint64 earliest = std::numeric_limits<qint64>::min();
    constexpr qint64 latest = std::numeric_limits<qint64>::max();
    for (const auto& [from, to, start] :
         {std::tuple(earliest, earliest + hour, monday), {earliest, latest, monday}}) {
        QVERIFY(scale.setLevelFromTimeRange(at(from), at(to)));
        QCOMPARE(scale.viewStartMs(), start);
    }
    QVERIFY(scale.setLevelFromTimeRange(at(latest - 1), at(latest)));
    QVERIFY(scale.viewEndMs() > scale.viewStartMs());
    for (const auto& [msecs, sign] : {std::pair(earliest, -1.0), {latest, 1.0}}) {
        QVERIFY(scale.xAt(msecs) * sign > 0);
        QVERIFY(scale.getPosition(msecs) * sign > 0);
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
    QCOMPARE(scale.getPosition(monday - day), -0.1);
    QCOMPARE(scale.getPosition(monday + 11 * day), 1.1);
    scale.changeLevel(4, 0.0);
    QCOMPARE(scale.getCurrentCenterPosition(), 0.05);
    scale.centerOnPosition(0.5);
    QCOMPARE(scale.viewStartMs(), monday + 5 * day - 12 * hour);
    // A centre before the begin limit is far away, never negative.
    scale.centerOnPosition(-0.5);
    QVERIFY(scale.getCurrentCenterPosition() > 1e9);
}

void TestTimeScale::zoomKeepsAnchor()
{
    for (const double anchor : {0.0, 0.25, 0.5, 0.8, 1.0}) {
        TimeScale scale = scaleOf(60 * day);
        scale.setViewStart(at(monday + 30 * day));
        const int anchorX = int(TimeScale::margin() + 999 * anchor);
        for (const int level : {7, 5, 3, 0, 2, 4, 6}) {
            const qint64 before = scale.msecsAt(anchorX);
            scale.changeLevel(level, anchor);
            // The last pixel of the scale stands for the whole span: up to one pixel is lost.
            const double pixel = 1.0 / scale.lengthPerMillisecond();
            QVERIFY(qAbs(scale.msecsAt(anchorX) - before) <= pixel + 1);
        }
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

    scale.setViewStart(at(monday + 30 * day));
    scale.changeLevel(7, 0.5);
    QCOMPARE(scale.viewStartMs(), monday + 30 * day);
    for (const int level : {-1, 8, 9, std::numeric_limits<int>::max()}) {
        scale.changeLevel(4, 0.5);
        scale.changeLevel(level, 0.7);
        QCOMPARE(scale.level(), TimeScale::wholeRangeLevel);
        QCOMPARE(scale.viewStartMs(), monday);
    }
}

void TestTimeScale::levelFromTimeRange()
{
    const struct
    {
        qint64 from, to;
        int level;
        qint64 viewStart;
    } cases[] = {
        {10 * day, 10 * day + hour, 1, 10 * day}, // exactly a row
        {10 * day, 10 * day + hour + 1, 2, 10 * day - hour + 1},
        {10 * day, 10 * day + 10 * minute, 0, 10 * day - 5 * minute},
        {minute, 2 * minute, 0, 0},
        {60 * day - minute, 60 * day, 0, 60 * day - 10 * minute - 30 * second}, // past the end
        {3 * day, 50 * day, 8, 3 * day},
        {-100 * day, 100 * day, 8, 0},
    };
    TimeScale scale;
    for (const auto& range : cases) {
        scale = scaleOf(60 * day);
        QVERIFY(scale.setLevelFromTimeRange(at(monday + range.from), at(monday + range.to)));
        QCOMPARE(scale.level(), range.level);
        QCOMPARE(scale.viewStartMs() - monday, range.viewStart);
    }
    QVERIFY(!scale.setLevelFromTimeRange(QDateTime(), at(monday + hour)));
    QVERIFY(!scale.setLevelFromTimeRange(at(monday), QDateTime()));
    QVERIFY(!scale.setLevelFromTimeRange(at(monday), at(monday)));
    QVERIFY(!scale.setLevelFromTimeRange(at(monday + 1), at(monday)));
    QCOMPARE(scale.level(), 8);
}

void TestTimeScale::viewsOnRequest()
{
    QRandomGenerator random(5);
    const auto anyTime = [&](qint64 length) {
        return qint64(random.bounded(double(length)));
    };
    for (int i = 0; i < 300; ++i) {
        const qint64 duration = second + anyTime(i % 2 ? hour : 60 * day);
        TimeScale scale = scaleOf(duration);
        const qint64 from = monday + anyTime(duration) - duration / 10;
        const qint64 to = from + 1 + anyTime(std::min<qint64>(duration, 20 * day));
        QVERIFY(scale.setView(from, to));
        // All of the range that the limits allow, at the closest level, and as central as they do.
        const qint64 begin = std::max(from, monday);
        const qint64 end = std::min(to, monday + duration);
        QVERIFY(begin >= end || (scale.viewStartMs() <= begin && end <= scale.viewEndMs()));
        const int closer = scale.level() - 1;
        QVERIFY(closer < 0 ||
                qint64(TimeScale::zoomLevels()[closer].millisecondsPerLevel) < to - from ||
                TimeScale::zoomLevels()[closer].millisecondsPerLevel > quint64(duration));
        QVERIFY(scale.viewStartMs() >= monday && scale.viewEndMs() <= monday + duration);
        const qint64 offset = scale.viewStartMs() + scale.viewEndMs() - from - to;
        QVERIFY(qAbs(offset) <= 2 || scale.viewStartMs() == monday ||
                scale.viewEndMs() == monday + duration);

        TimeScale again = scale;
        again.changeLevel(TimeScale::wholeRangeLevel, 0.0);
        QVERIFY(again.setView(scale.viewStartMs(), scale.viewEndMs()));
        QCOMPARE(again.viewStartMs(), scale.viewStartMs());
        QCOMPARE(again.level(), scale.level());
    }
}

void TestTimeScale::paging()
{
    // The view shows an hour from 5:00.
    const std::pair<qint64, qint64> cases[] = {{5 * hour + 30 * minute, 5 * hour},
                                               {6 * hour, 5 * hour},
                                               {6 * hour + 1, 5 * hour + 1},
                                               {4 * hour, 4 * hour},
                                               {30 * hour, 23 * hour}};
    for (const auto& [target, viewStart] : cases) {
        TimeScale scale = scaleOf(day);
        scale.setViewStart(at(monday + 5 * hour));
        QCOMPARE(scale.pageTo(at(monday + target)), viewStart != 5 * hour);
        QCOMPARE(scale.viewStartMs() - monday, viewStart);
    }
}

void TestTimeScale::labels()
{
    QCOMPARE(scaleOf(30 * minute - 1).getTickerString(61 * second), u"00:01:01"_s);
    QCOMPARE(scaleOf(30 * minute).getTickerString(61 * second), u"00:01"_s);

    // What is stored keeps its zone.
    TimeScale scale = scaleOf(day);
    scale.setTimeZone(QTimeZone((5 * 60 + 45) * 60));
    QCOMPARE(scale.getTickerString(0), u"00:00"_s);
    QCOMPARE(scale.inZone(monday).time(), QTime(5, 45));
    // A view that is computed from new limits is on their clock.
    scale.setTimeLimits(quint64(monday), quint64(monday + day));
    QCOMPARE(scale.getTickerString(0), u"00:00"_s);
    scale.centerOnPosition(0.5);
    QCOMPARE(scale.getTickerString(-qint64(scale.viewStartMs() - monday)), u"05:45"_s);
    // So is one that shows a range, whatever the zone of the range.
    QVERIFY(scale.setLevelFromTimeRange(at(monday), at(monday + hour)));
    QCOMPARE(scale.getTickerString(0), u"05:45"_s);
}

QTEST_GUILESS_MAIN(TestTimeScale)
#include "tst_timescale.moc"
