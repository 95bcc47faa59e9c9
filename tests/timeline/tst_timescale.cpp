// SPDX-License-Identifier: MIT
#include "testscale.h"
#include "testsupport.h"

using CorvelGui::TimeScale;

namespace {

constexpr qint64 earliest = std::numeric_limits<qint64>::min();
constexpr qint64 latest = std::numeric_limits<qint64>::max();

QDateTime at(qint64 msecs)
{
    return QDateTime::fromMSecsSinceEpoch(msecs, QTimeZone::utc());
}

} // namespace

class TestTimeScale : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void levels()
    {
        const struct
        {
            qint64 span, interval;
            double intervalLength;
            int divisions;
        } rows[] = {{20 * minute, 2 * minute, 100, 8},
                    {hour, 5 * minute, 83, 5},
                    {3 * hour, 10 * minute, 55, 5},
                    {12 * hour, 30 * minute, 41, 3},
                    {day, hour, 41, 5},
                    {3 * day, 3 * hour, 41, 3},
                    {7 * day, 8 * hour, 47, 2},
                    {14 * day, day, 71, 2}};
        // Periods and the intervals in which they show as a whole.
        const std::pair<qint64, qint64> periods[] = {{100, 5},
                                                     {20 * second, second},
                                                     {20 * minute - 1, 59 * second},
                                                     {20 * minute, minute},
                                                     {day - 1, 71 * minute},
                                                     {day, hour},
                                                     {2 * day, 3 * hour},
                                                     {4 * day - 1, 3 * hour},
                                                     {4 * day, 8 * hour},
                                                     {7 * day, 8 * hour},
                                                     {8 * day, 12 * hour},
                                                     {13 * day, day},
                                                     {22 * day, day},
                                                     {23 * day, 2 * day},
                                                     {1096 * day, 73 * day}};
        for (const auto& [duration, interval] : periods) {
            TimeScale scale = scaleOf(duration);
            for (int level = 0; level <= TimeScale::wholeRangeLevel; ++level) {
                scale.changeLevel(level, 0.5);
                const bool isRow = level < TimeScale::levelCount && rows[level].span <= duration;
                QCOMPARE(qint64(scale.millisecondsPerLevel()), isRow ? rows[level].span : duration);
                QCOMPARE(scale.millisecondsPerInterval(), isRow ? rows[level].interval : interval);
                QCOMPARE(scale.getIntervalLength(level),
                         isRow ? rows[level].intervalLength : double(1000 * interval / duration));
                QCOMPARE(scale.getSubIntervalNumber(level), isRow ? rows[level].divisions : 2);
                QCOMPARE(scale.canZoomOut(), isRow && rows[level].span < duration);
            }
        }
    }

    void emptyPeriods()
    {
        // No length, too short for a tick, reversed.
        for (const qint64 end : {monday, monday + 19, monday - day}) {
            TimeScale scale = scaleOf(30 * day, 4);
            scale.setTimeLimits(quint64(monday), quint64(end));
            QCOMPARE(scale.level(), 1);
            QCOMPARE(qint64(scale.totalDuration()), hour);
            QCOMPARE(scale.millisecondsPerInterval(), 5 * minute);
            QCOMPARE(std::pair(scale.beginLimitMs(), scale.endLimitMs()), std::pair(monday, end));
            // Without a period there is no view to move.
            scale.changeLevel(0, 0.5);
            scale.changeLevel(TimeScale::wholeRangeLevel, 0.5);
            QVERIFY(!scale.centerOnPosition(0.5) && !scale.pageTo(at(monday)));
            QVERIFY(!scale.setLevelFromTimeRange(at(monday), at(monday + hour)));
            QVERIFY(!scale.hasView());
            scale.setTimeLimits(quint64(monday), quint64(monday + day));
            QCOMPARE(scale.viewStartMs(), monday);
        }
        TimeScale scale;
        scale.setWidth(1020);
        QVERIFY(std::isinf(scale.lengthPerMillisecond()));
        QCOMPARE(scale.getPosition(monday), 0.0);
        QCOMPARE(scale.getCurrentCenterPosition(), 0.0);
        QVERIFY(!scale.getDateTime(500).isValid());
    }

    void extremeInputIsAbsorbed()
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
        for (const qint64 to : {earliest + hour, latest}) {
            QVERIFY(scale.setLevelFromTimeRange(at(earliest), at(to)));
            QCOMPARE(scale.viewStartMs(), monday);
        }
        QVERIFY(scale.setLevelFromTimeRange(at(latest - 1), at(latest)));
        QVERIFY(scale.viewEndMs() > scale.viewStartMs());
        for (const auto& [msecs, sign] : {std::pair(earliest, -1.0), {latest, 1.0}})
            QVERIFY(scale.xAt(msecs) * sign > 0 && scale.getPosition(msecs) * sign > 0);
    }

    void pixelsTimesAndPositions()
    {
        TimeScale scale = scaleOf(10 * day);
        for (int level = 0; level <= TimeScale::wholeRangeLevel; ++level) {
            scale.changeLevel(level, 0.3);
            for (double x = 0; x <= scale.width(); x += 7)
                QVERIFY(qAbs(scale.xAt(scale.msecsAt(x)) - x) < 0.01);
        }
        QCOMPARE(scale.xAt(monday + 5 * day), 510.0);
        QCOMPARE(scale.getPosition(monday - day), -0.1);
        QCOMPARE(scale.getPosition(monday + 11 * day), 1.1);
        scale.changeLevel(4, 0.0);
        QCOMPARE(scale.getCurrentCenterPosition(), 0.05);
        scale.centerOnPosition(0.5);
        QCOMPARE(scale.viewStartMs(), monday + 5 * day - 12 * hour);
        // A centre before the begin limit is far away, never negative.
        scale.centerOnPosition(-0.5);
        QVERIFY(scale.getCurrentCenterPosition() > 1e9);

        // Towards zero on both sides of the margin.
        scale = scaleOf(1500, TimeScale::wholeRangeLevel);
        QCOMPARE(scale.msecsAt(11) - monday, qint64(1));
        QCOMPARE(scale.msecsAt(9) - monday, qint64(-1));
    }

    void zoomKeepsAnchor()
    {
        QRandomGenerator random(6);
        for (int i = 0; i < 500; ++i) {
            const qint64 duration = hour + qint64(random.bounded(60.0 * day));
            TimeScale scale = scaleOf(duration, random.bounded(9));
            scale.setViewStart(
                at(scale.startAround(monday + qint64(random.bounded(double(duration))))));
            const int level = random.bounded(-1, 10);
            const double anchor = random.bounded(2.0) - 0.5;
            const TimeScale before = scale;
            scale.changeLevel(level, anchor);
            QCOMPARE(scale.level(), level < 0 ? TimeScale::wholeRangeLevel : std::min(level, 8));

            const qint64 span = scale.viewEndMs() - scale.viewStartMs();
            qint64 expected = monday;
            if (scale.level() == before.level()) {
                expected = before.viewStartMs();
            } else if (scale.level() < 8 && span < duration) {
                // The last pixel of the scale stands for its end.
                const int column = int(999 * std::clamp(anchor, 0.0, 1.0));
                expected = std::clamp(before.msecsAt(10 + column) - span * column / 999, monday,
                                      monday + duration - span);
            }
            QVERIFY(qAbs(scale.viewStartMs() - expected) <= 1);
        }
    }

    void levelFromTimeRange()
    {
        const std::tuple<qint64, qint64, int, qint64> cases[] = {
            {10 * day, 10 * day + hour, 1, 10 * day}, // exactly a row
            {10 * day, 10 * day + hour + 1, 2, 10 * day - hour + 1},
            {minute, 2 * minute, 0, 0},
            {60 * day - minute, 60 * day, 0, 60 * day - 630 * second}, // past the end
            {3 * day, 50 * day, 8, 3 * day},
            {-100 * day, 100 * day, 8, 0}};
        TimeScale scale = scaleOf(60 * day);
        for (const auto& [from, to, level, viewStart] : cases) {
            QVERIFY(scale.setLevelFromTimeRange(at(monday + from), at(monday + to)));
            QCOMPARE(scale.level(), level);
            QCOMPARE(scale.viewStartMs() - monday, viewStart);
        }
        const QDateTime noTime;
        for (const auto& [from, to] :
             {std::pair(noTime, at(monday)), {at(monday), noTime}, {at(monday), at(monday)}})
            QVERIFY(!scale.setLevelFromTimeRange(from, to));
        QCOMPARE(scale.level(), 8);
    }

    void viewsOnRequest()
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
            // The closest level that holds the range, in its middle as far as the limits allow.
            const auto& rows = TimeScale::zoomLevels();
            int level = 0;
            while (level < TimeScale::levelCount &&
                   qint64(rows[level].millisecondsPerLevel) < to - from)
                ++level;
            const qint64 span =
                level < TimeScale::levelCount ? qint64(rows[level].millisecondsPerLevel) : duration;
            QCOMPARE(scale.level(), span <= duration ? level : TimeScale::wholeRangeLevel);
            const qint64 centered = (from + to - std::min(span, duration)) / 2;
            QVERIFY(qAbs(scale.viewStartMs() -
                         std::clamp(centered, monday,
                                    std::max(monday, monday + duration - span))) <= 1);

            TimeScale again = scaleOf(duration, TimeScale::wholeRangeLevel);
            QVERIFY(again.setView(scale.viewStartMs(), scale.viewEndMs()));
            QCOMPARE(again.viewStartMs(), scale.viewStartMs());
            QCOMPARE(again.level(), scale.level());
        }
    }

    void labels()
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
};

QTEST_GUILESS_MAIN(TestTimeScale)
#include "tst_timescale.moc"
