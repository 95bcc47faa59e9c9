#include "testsupport.h"
#include "times.h"
#include "timescale.h"
#include "timespans.h"
#include "tracksegments.h"

#include <QRandomGenerator>
#include <QSet>
#include <QTest>

#include <cmath>

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
    void joining_data();
    void joining();
    void differences_data();
    void differences();
    void segmentsFillTheColumnsOfTheirSpans_data();
    void segmentsFillTheColumnsOfTheirSpans();
    void threeStates();
    void limitsBeyondTracks();
};

void TestTrackSegments::joining_data()
{
    QTest::addColumn<TimeSpans>("spans");
    QTest::addColumn<TimeSpans>("expected");

    QTest::newRow("none") << TimeSpans() << TimeSpans();
    QTest::newRow("unsorted") << TimeSpans{{5, 6}, {1, 2}} << TimeSpans{{1, 2}, {5, 6}};
    QTest::newRow("overlapping") << TimeSpans{{1, 4}, {3, 6}} << TimeSpans{{1, 6}};
    QTest::newRow("touching") << TimeSpans{{1, 3}, {3, 6}} << TimeSpans{{1, 6}};
    QTest::newRow("one inside another") << TimeSpans{{1, 9}, {2, 3}, {8, 10}} << TimeSpans{{1, 10}};
    QTest::newRow("empty and reversed") << TimeSpans{{4, 4}, {9, 2}, {1, 2}} << TimeSpans{{1, 2}};
}

void TestTrackSegments::joining()
{
    QFETCH(TimeSpans, spans);
    QTEST(joined(spans), "expected");
}

void TestTrackSegments::differences_data()
{
    QTest::addColumn<TimeSpans>("spans");
    QTest::addColumn<TimeSpans>("without");
    QTest::addColumn<TimeSpans>("expected");

    QTest::newRow("nothing taken") << TimeSpans{{1, 9}} << TimeSpans() << TimeSpans{{1, 9}};
    QTest::newRow("holes") << TimeSpans{{1, 9}} << TimeSpans{{2, 3}, {5, 6}}
                           << TimeSpans{{1, 2}, {3, 5}, {6, 9}};
    QTest::newRow("over the ends")
        << TimeSpans{{1, 9}} << TimeSpans{{0, 2}, {8, 12}} << TimeSpans{{2, 8}};
    QTest::newRow("everything") << TimeSpans{{1, 9}} << TimeSpans{{0, 9}} << TimeSpans();
    QTest::newRow("one hole across two spans")
        << TimeSpans{{1, 4}, {6, 9}} << TimeSpans{{3, 7}} << TimeSpans{{1, 3}, {7, 9}};
}

void TestTrackSegments::differences()
{
    QFETCH(TimeSpans, spans);
    QFETCH(TimeSpans, without);
    QTEST(difference(spans, without), "expected");
}

void TestTrackSegments::segmentsFillTheColumnsOfTheirSpans_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<qint64>("longest");

    QTest::newRow("a few long ones") << 10 << day;
    QTest::newRow("about a column each") << 800 << 30 * minute;
    QTest::newRow("many to a column") << 100'000 << second;
}

void TestTrackSegments::segmentsFillTheColumnsOfTheirSpans()
{
    QFETCH(int, count);
    QFETCH(qint64, longest);

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
