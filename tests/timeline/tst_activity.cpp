// SPDX-License-Identifier: MIT
#include "activityhistogram.h"
#include "loggedruler.h"
#include "overviewbox.h"

#include <CorvelGui/TimelineScroll>
#include <CorvelGui/ZoomTimeline>
#include <CorvelGui/Zoomer>

using namespace CorvelGui;

namespace {

using Recording = TimelineActivity::Recording;
using Severity = RulerMarker::Severity;

/// An active timeline in UTC that shows the first hour of a day on 1000 pixels.
class BusyTimeline : public ZoomTimeline
{
public:
    BusyTimeline()
    {
        setOrvaneGuiTheme(true);
        setActive(true, false);
        setActivityVisible(true);
        resize(1000 + 20 + zoomer()->width() + 20, sizeHint().height());
        show();
        setTimeZone(u"UTC"_s);
        setTimeLimits(at(0), at(day));
        connect(timelineScroll(), &TimelineScroll::viewAreaResized, this,
                [this](double begin, double end) {
                    wanted = {begin, end};
                });
    }

    /// The column of a time on the strip.
    double stripX(qint64 offset) const
    {
        return OverviewScale(timelineScroll()->width()).xAt(double(offset) / day);
    }
    void press(double x) { QTest::mousePress(timelineScroll(), Qt::LeftButton, {}, point(x)); }
    void moveTo(double x) { moveMouse(*timelineScroll(), point(x), Qt::LeftButton); }
    void release(double x) { QTest::mouseRelease(timelineScroll(), Qt::LeftButton, {}, point(x)); }
    TimeSpan view() const { return {ruler()->view().begin - monday, ruler()->view().end - monday}; }

    OverviewRange wanted{};

private:
    static QPoint point(double x) { return {int(x), 15}; }
};

} // namespace

class TestActivity : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void histogramCountsAsALoopDoes()
    {
        QRandomGenerator random(7);
        for (const qint64 duration : {qint64(1), qint64(7), qint64(1'000), 10 * day}) {
            for (const int columns : {1, 3, 640}) {
                const TimeSpan period{monday, monday + duration};
                ActivityHistogram histogram(period, columns);
                TimelineActivity expected{
                    .columns = std::vector<TimelineActivity::Column>(std::size_t(columns))};
                const auto columnOf = [&](qint64 msecs) {
                    int column = 0;
                    while (column + 1 < columns &&
                           (msecs - monday) * columns >= (column + 1) * duration)
                        ++column;
                    return std::size_t(column);
                };
                for (int i = 0; i < 200; ++i) {
                    const qint64 time = monday - 2 + random.bounded(duration + 5);
                    const auto severity = random.bounded(4);
                    histogram.add(time, Severity(severity));
                    if (time >= period.begin && time <= period.end)
                        ++expected.columns[columnOf(time)].events[std::size_t(severity)];
                }
                const TimeSpan span{monday + duration / 3, monday + duration / 2 + 1};
                histogram.cover({{monday - 5, monday + duration + 5}}, Recording::Gap);
                histogram.cover({span}, Recording::Recorded);
                for (std::size_t i = 0; i < expected.columns.size(); ++i)
                    expected.columns[i].recording =
                        qint64(i) * duration < (span.end - monday) * columns &&
                                qint64(i + 1) * duration > (span.begin - monday) * columns
                            ? Recording::Recorded
                            : Recording::Gap;
                QVERIFY(histogram.take().columns == expected.columns);
            }
        }
    }

    void rulerKnowsWhatHappens()
    {
        LoggedRuler ruler;
        QCOMPARE(Ruler().activity(4).columns.size(), 0U);
        ruler.setTimeLimits(at(0), at(4 * hour));
        QSignalSpy changes(&ruler, &Ruler::activityChanged);
        ruler.setTrackDescriptions({{u"a"_s, {}, monday, monday + 3 * hour, {}}});
        ruler.addRecordedSpans(u"a"_s, {{monday + hour, monday + 2 * hour}});
        const RulerMarker alarm{.time = timeAt(hour), .severity = Severity::Alarm};
        ruler.onAddMarkers({alarm, {.time = timeAt(4 * hour)}});
        const TimelineActivity activity = ruler.activity(4);
        QCOMPARE(activity.columns.size(), 4U);
        QVERIFY(activity.columns[0] == TimelineActivity::Column{Recording::Gap});
        QVERIFY(activity.columns[1] ==
                (TimelineActivity::Column{Recording::Recorded, {0, 0, 0, 1}}));
        QVERIFY(activity.columns[3] ==
                (TimelineActivity::Column{Recording::Unknown, {1, 0, 0, 0}}));
        QCOMPARE(changes.size(), 3);
        ruler.onRemoveMarkers({alarm});
        ruler.onClearMarkers();
        ruler.setTimeLimits(at(0), at(hour));
        QCOMPARE(changes.size(), 6);
    }

    void boxShowsWhatThereIsOfTheView()
    {
        const OverviewScale scale(120); // 100 pixels from 10 on
        const std::tuple<OverviewRange, double, double> cases[] = {
            {{0.2, 0.5}, 30, 60}, {{0.0, 1.0}, 10, 110},  {{-9.0, 9.0}, 1, 119},
            {{-3.0, -2.0}, 1, 6}, {{2.0, 3.0}, 114, 119}, {{0.5, 0.5}, 57.5, 62.5},
            {{NAN, NAN}, 1, 6}};
        for (const auto& [view, left, right] : cases) {
            const OverviewBox box(scale, view);
            QCOMPARE(box.left(), left);
            QCOMPARE(box.right(), right);
        }
        using Part = OverviewBox::Part;
        const OverviewBox box(scale, {0.2, 0.5});
        const std::pair<int, Part> places[] = {
            {25, Part::Outside}, {26, Part::Begin}, {34, Part::Begin}, {35, Part::Inside},
            {55, Part::Inside},  {56, Part::End},   {64, Part::End},   {65, Part::Outside}};
        for (const auto& [x, part] : places)
            QCOMPARE(box.partAt(x), part);
    }

    void edgesResizeTheView()
    {
        BusyTimeline timeline;
        timeline.ruler()->setView(monday, monday + 12 * hour);
        QCOMPARE(timeline.view(), (TimeSpan{0, 12 * hour}));

        // The box is what the user wants of it, and the view what the levels allow.
        timeline.press(timeline.stripX(12 * hour));
        QVERIFY(timeline.isHeld());
        timeline.moveTo(timeline.stripX(6 * hour));
        QVERIFY(std::abs(timeline.wanted.end - 0.25) < 0.002);
        QCOMPARE(timeline.wanted.begin, 0.0);
        QCOMPARE(timeline.view().end, 12 * hour);
        timeline.moveTo(timeline.stripX(3 * hour) - 1);
        QCOMPARE(timeline.view().end - timeline.view().begin, 3 * hour);
        timeline.moveTo(0);
        QVERIFY(timeline.wanted.length() > 0);
        timeline.release(0);
        QVERIFY(!timeline.isHeld());

        // Shift holds the end and Ctrl the begin, step by step.
        timeline.ruler()->setView(monday, monday + 12 * hour);
        const auto press = [&](int key, Qt::KeyboardModifiers modifiers, int times) {
            for (int i = 0; i < times; ++i)
                QTest::keyPress(timeline.timelineScroll(), Qt::Key(key), modifiers);
        };
        press(Qt::Key_Right, Qt::ShiftModifier, 1);
        QCOMPARE(timeline.wanted, (OverviewRange{0.0, 0.55}));
        QCOMPARE(timeline.view().end - timeline.view().begin, day);
        QTest::keyRelease(timeline.timelineScroll(), Qt::Key_Shift);
        press(Qt::Key_Right, Qt::ControlModifier, 3);
        QVERIFY(std::abs(timeline.wanted.begin - (1 - 0.9 * 0.9 * 0.9)) < 1e-9);
        QCOMPARE(timeline.wanted.end, 1.0);
    }

    void wheelZoomsTheRuler()
    {
        BusyTimeline timeline;
        timeline.ruler()->setView(monday, monday + day);

        turnWheel(timeline.timelineScroll(), {timeline.stripX(6 * hour), 5}, {0, 120});

        QCOMPARE(timeline.view().end - timeline.view().begin, 12 * hour);
        QVERIFY(std::abs(timeline.view().begin - 3 * hour) < 10 * minute);

        // A view before the period shows at its begin.
        timeline.setActivityVisible(false);
        timeline.ruler()->setView(monday, monday + hour);
        timeline.ruler()->onTimelineOffsetChanged(-1.0);
        timeline.setActivityVisible(true);
        QVERIFY(std::abs(timeline.timelineScroll()->centerPosition() + 1.0) < 1e-6);
    }
};

QTEST_MAIN(TestActivity)
#include "tst_activity.moc"
