// SPDX-License-Identifier: MIT
#include "testscale.h"
#include "testsupport.h"
#include "timespans.h"
#include "tracksegments.h"

#include <bitset>

using namespace CorvelGui;

namespace {

using Columns = std::bitset<1020>;

TimeScale wholeScale(qint64 duration)
{
    return scaleOf(duration, TimeScale::wholeRangeLevel);
}

/// Fills the pixel columns of a span or a segment as it is drawn.
void fill(Columns& columns, double start, double end)
{
    const int first = int(std::max(start, 5.0));
    const int last = std::min(std::max(int(end), first + 1), 1015);
    for (int column = first; column < last; ++column)
        columns.set(std::size_t(column));
}

} // namespace

class TestTrackSegments : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void spansAreSetsOfTimes()
    {
        using Times = std::bitset<120>;
        const auto times = [](const TimeSpans& spans) {
            Times result;
            for (const TimeSpan& span : spans)
                for (qint64 time = span.begin; time < span.end; ++time)
                    result.set(std::size_t(time));
            return result;
        };
        // In order, none of them empty, none touching the next.
        const auto isTidy = [](const TimeSpans& spans) {
            qint64 last = -1;
            for (const TimeSpan& span : spans)
                if (span.begin <= std::exchange(last, span.end) || span.begin >= span.end)
                    return false;
            return true;
        };
        QRandomGenerator random(11);
        for (int round = 0; round < 300; ++round) {
            TimeSpans all;
            TimeSpans united;
            const TimeSpans two{{0, 40}, {50, 90}};
            TimeSpans left = two;
            for (int i = 0; i < 8; ++i) {
                const qint64 begin = random.bounded(100);
                all.push_back({begin, begin - 1 + random.bounded(12)}); // some are empty
                unite(united, all.back());
                subtract(left, all.back());
                QCOMPARE(times(united), times(all));
                QVERIFY(isTidy(united) && isTidy(left));
                QCOMPARE(joined(all), united);
                QCOMPARE(times(left), times(two) & ~times(all));
                QCOMPARE(difference(two, united), left);
            }
        }
    }

    void segmentsFillTheColumnsOfTheirSpans()
    {
        const TimeScale scale = wholeScale(14 * day);
        // A few long ones, about a column each, many to a column.
        const std::pair<int, qint64> cases[] = {{10, day}, {800, 30 * minute}, {100'000, second}};
        for (const auto& [count, longest] : cases) {
            QRandomGenerator random(7);
            TimeSpans spans;
            for (int i = 0; i < count; ++i) {
                // Some lie outside the view.
                const qint64 begin = monday - day + qint64(random.bounded(16.0 * day));
                spans.push_back({begin, begin + 1 + qint64(random.bounded(double(longest)))});
            }
            spans = joined(std::move(spans));
            Columns expected;
            for (const TimeSpan& span : spans) {
                const double start = scale.xAt(span.begin);
                const double end = scale.xAt(span.end);
                if (start < 1015 && end > 5)
                    fill(expected, start, end);
            }
            const TrackSegmentList segments = visibleSegments(spans, scale);
            QVERIFY(segments.size() <= expected.size());
            Columns columns;
            double last = 0;
            for (const TrackSegment& segment : segments) {
                QVERIFY(std::floor(segment.start) > std::floor(last));
                last = segment.end;
                fill(columns, segment.start, segment.end);
            }
            QVERIFY(columns == expected);
        }
    }

    void threeStates()
    {
        using Limits = std::numeric_limits<qint64>;
        const TimeScale scale = wholeScale(10 * day);
        QCOMPARE(visibleSegments({{Limits::min(), monday}}, scale), (TrackSegmentList{{5, 10}}));
        QCOMPARE(visibleSegments({{monday, Limits::max()}}, scale), (TrackSegmentList{{10, 1015}}));

        const auto days = [](double from, double to) {
            return TimeSpan{monday + qint64(from * day), monday + qint64(to * day)};
        };
        TrackSegments segments;
        // The second is recorded before its description begins, which extends the description.
        segments.setTracks(
            {{u"a"_s,
              u"Gate"_s,
              monday + day,
              monday + 3 * day,
              {{monday + 2 * day, monday + 2 * day + 1}}},
             {u"b"_s, u"Yard"_s, monday + 2 * day, monday + 4 * day, {days(0.5, 1)}}});
        segments.update(scale);
        QCOMPARE(segments.recorded(), (TrackSegmentList{{60, 110}, {210, 211}}));
        QCOMPARE(segments.gaps(), (TrackSegmentList{{110, 410}}));

        // Recording goes on, beyond what was described.
        QVERIFY(!segments.addRecorded(u"c"_s, {days(0, 1)}));
        QVERIFY(segments.addRecorded(u"b"_s, {days(3, 6)}));
        segments.update(scale);
        QCOMPARE(segments.recorded().back(), (TrackSegment{310, 610}));
        QCOMPARE(segments.gaps().back().end, 310.0);
        QVERIFY(segments.isTrackLimitChanged(scaleOf(7 * day)));
        segments.addRecorded(u"a"_s, {days(0, 7)});
        QVERIFY(!segments.isTrackLimitChanged(scaleOf(7 * day)));
        segments.setTracks({});
        QVERIFY(!segments.isTrackLimitChanged(scaleOf(day)));

        for (const bool late : {false, true}) {
            segments.setTracks({{u"a"_s, u"Gate"_s, monday + late, monday + day, {}}});
            QCOMPARE(segments.isTrackLimitChanged(scaleOf(day)), late);
            QVERIFY(segments.isTrackLimitChanged(scaleOf(day + 1)));
        }
    }
};

QTEST_GUILESS_MAIN(TestTrackSegments)
#include "tst_tracksegments.moc"
