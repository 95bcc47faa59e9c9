#include "testsupport.h"
#include "times.h"
#include "timescale.h"
#include "timespans.h"
#include "tracksegments.h"

#include <QRandomGenerator>
#include <QSet>
#include <QTest>

#include <cmath>
#include <limits>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

namespace {

constexpr int width = 1020;

TimeScale scaleOf(qint64 duration)
{
    TimeScale scale;
    scale.setWidth(width);
    scale.setTimeZone(QTimeZone::utc());
    scale.setTimeLimits(quint64(monday), quint64(monday + duration));
    scale.changeLevel(TimeScale::wholeRangeLevel, 0.0);
    return scale;
}

/// The pixel columns that a span or a segment fills when it is drawn.
void addColumns(QSet<int>& columns, double start, double end)
{
    const int first = int(std::max(start, 5.0));
    const int last = std::min(std::max(int(end), first + 1), width - 5);
    for (int column = first; column < last; ++column)
        columns.insert(column);
}

} // namespace

class TestTrackSegments : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void joining();
    void differences();
    void oneByOneIsLikeAllAtOnce();
    void segmentsFillTheColumnsOfTheirSpans();
    void spansWithoutAnEnd();
    void threeStates();
    void limitsBeyondTracks();
};

void TestTrackSegments::joining()
{
    const std::pair<TimeSpans, TimeSpans> cases[] = {
        {{}, {}},
        {{{5, 6}, {1, 2}}, {{1, 2}, {5, 6}}},
        {{{1, 4}, {3, 6}}, {{1, 6}}},
        {{{1, 3}, {3, 6}}, {{1, 6}}},
        {{{1, 9}, {2, 3}, {8, 10}}, {{1, 10}}},
        {{{4, 4}, {9, 2}, {1, 2}}, {{1, 2}}}, // empty and reversed ones
    };
    for (const auto& [spans, expected] : cases)
        QCOMPARE(joined(spans), expected);
}

void TestTrackSegments::differences()
{
    const struct
    {
        TimeSpans spans, without, expected;
    } cases[] = {{{{1, 9}}, {}, {{1, 9}}},
                 {{{1, 9}}, {{2, 3}, {5, 6}}, {{1, 2}, {3, 5}, {6, 9}}},
                 {{{1, 9}}, {{0, 2}, {8, 12}}, {{2, 8}}},
                 {{{1, 9}}, {{0, 9}}, {}},
                 {{{1, 4}, {6, 9}}, {{3, 7}}, {{1, 3}, {7, 9}}}};
    for (const auto& [spans, without, expected] : cases)
        QCOMPARE(difference(spans, without), expected);
}

void TestTrackSegments::oneByOneIsLikeAllAtOnce()
{
    QRandomGenerator random(11);
    for (int round = 0; round < 300; ++round) {
        TimeSpans all;
        TimeSpans united;
        TimeSpans left{{0, 40}, {50, 90}};
        for (int i = 0; i < 8; ++i) {
            const qint64 begin = random.bounded(100);
            all.push_back({begin, begin - 1 + random.bounded(12)}); // some are empty
            unite(united, all.back());
            subtract(left, all.back());
            QCOMPARE(united, joined(all));
            QCOMPARE(left, difference({{0, 40}, {50, 90}}, united));
        }
    }
}

void TestTrackSegments::segmentsFillTheColumnsOfTheirSpans()
{
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

        const TimeScale scale = scaleOf(14 * day);
        QSet<int> expected;
        for (const TimeSpan& span : spans) {
            const double start = scale.xAt(span.begin);
            const double end = scale.xAt(span.end);
            if (start < width - 5 && end > 5)
                addColumns(expected, start, end);
        }
        const TrackSegmentList segments = visibleSegments(spans, scale);
        QVERIFY(segments.size() <= size_t(width));
        QSet<int> columns;
        double last = 0;
        for (const TrackSegment& segment : segments) {
            QVERIFY(std::floor(segment.start) > std::floor(last));
            last = segment.end;
            addColumns(columns, segment.start, segment.end);
        }
        QCOMPARE(columns, expected);
    }
}

void TestTrackSegments::threeStates()
{
    TrackSegments segments;
    segments.setTracks({{.identifier = u"a"_s,
                         .name = u"Gate"_s,
                         .begin = monday + day,
                         .end = monday + 3 * day,
                         .recorded = {{monday + 2 * day, monday + 2 * day + 1}}},
                        // Recorded before its description begins, which extends the description.
                        {.identifier = u"b"_s,
                         .name = u"Yard"_s,
                         .begin = monday + 2 * day,
                         .end = monday + 4 * day,
                         .recorded = {{monday + 12 * hour, monday + day}}}});
    segments.update(scaleOf(10 * day));

    QCOMPARE(segments.recorded(), (TrackSegmentList{{60, 110}, {210, 211}}));
    QCOMPARE(segments.gaps().size(), size_t(1));
    QCOMPARE(segments.gaps().front().start, 110.0);
    QCOMPARE(segments.gaps().front().end, 410.0);

    // Recording goes on, beyond what was described.
    QVERIFY(!segments.addRecorded(u"c"_s, {{monday, monday + day}}));
    QVERIFY(segments.addRecorded(u"b"_s, {{monday + 3 * day, monday + 6 * day}}));
    segments.update(scaleOf(10 * day));
    QCOMPARE(segments.recorded().back(), (TrackSegment{310, 610}));
    QCOMPARE(segments.gaps().back().end, 310.0);
    QVERIFY(segments.isTrackLimitChanged(scaleOf(7 * day)));
    segments.addRecorded(u"a"_s, {{monday, monday + 7 * day}});
    QVERIFY(!segments.isTrackLimitChanged(scaleOf(7 * day)));
}

void TestTrackSegments::spansWithoutAnEnd()
{
    constexpr qint64 earliest = std::numeric_limits<qint64>::min();
    constexpr qint64 latest = std::numeric_limits<qint64>::max();
    const TimeScale scale = scaleOf(10 * day);
    QCOMPARE(visibleSegments({{earliest, monday}}, scale), (TrackSegmentList{{5, 10}}));
    QCOMPARE(visibleSegments({{monday, latest}}, scale), (TrackSegmentList{{10, 1015}}));
}

void TestTrackSegments::limitsBeyondTracks()
{
    TrackSegments segments;
    QVERIFY(!segments.isTrackLimitChanged(scaleOf(day)));
    segments.setTracks({{u"a"_s, u"Gate"_s, monday, monday + day, {}}});
    QVERIFY(!segments.isTrackLimitChanged(scaleOf(day)));
    QVERIFY(segments.isTrackLimitChanged(scaleOf(day + 1)));
    segments.setTracks({{u"a"_s, u"Gate"_s, monday + 1, monday + day, {}}});
    QVERIFY(segments.isTrackLimitChanged(scaleOf(day)));
}

QTEST_GUILESS_MAIN(TestTrackSegments)
#include "tst_tracksegments.moc"
