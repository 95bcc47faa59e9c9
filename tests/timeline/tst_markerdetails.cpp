// SPDX-License-Identifier: MIT
#include "loggedruler.h"
#include "markerbadge.h"
#include "markerbars.h"
#include "markerstore.h"
#include "testsupport.h"
#include "timescale.h"

#include <CorvelGui/RulerMarkerButton>

using namespace CorvelGui;

namespace {

using Severity = RulerMarker::Severity;

QList<RulerMarker> lasting(int count)
{
    QRandomGenerator random(3);
    QList<RulerMarker> markers;
    for (int i = 0; i < count; ++i)
        markers.append({.time = timeAt(random.bounded(int(2 * hour))),
                        .duration = random.bounded(3) == 0 ? random.bounded(int(minute)) : 0,
                        .severity = Severity(random.bounded(2) * 3)});
    return markers;
}

/// Shows markers of three instants within a pixel, and one far away.
class DetailedRuler : public LoggedRuler
{
public:
    DetailedRuler()
    {
        setMarkerDetails(true);
        onAddMarkers({{.time = ::timeAt(30 * minute), .text = u"first"_s},
                      {.identifier = QUuid(2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0),
                       .time = ::timeAt(30 * minute + second),
                       .text = u"<b>second"_s,
                       .severity = Severity::Alarm},
                      {.time = ::timeAt(30 * minute + 2 * second)},
                      {.time = ::timeAt(10 * minute),
                       .duration = 5 * minute,
                       .severity = Severity::Warning}});
    }

    RulerMarkerButton* merged() const
    {
        for (auto* button : findChildren<RulerMarkerButton*>()) {
            if (button->isVisible() && button->merge() == RulerMarkerButton::Merge::Representative)
                return button;
        }
        return nullptr;
    }
    QListWidget* list() const { return findChild<QListWidget*>(); }
    void click() const { QTest::mouseClick(merged(), Qt::LeftButton); }
};

} // namespace

class TestMarkerDetails : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void barsAreThoseOfALoop()
    {
        const QList<RulerMarker> markers = lasting(3'000);
        MarkerStore store;
        store.add(markers, std::vector<quint32>(std::size_t(markers.size()), 0));
        QCOMPARE(int(store.worstSeverity(0, store.size())), 3);
        TimeScale scale;
        scale.setTimeZone(QTimeZone::utc());
        scale.setWidth(1020);
        scale.setTimeLimits(at(0), at(10 * day));
        for (const int level : {0, 4, TimeScale::wholeRangeLevel}) {
            scale.changeLevel(level, 0.0);
            std::array<TimeSpans, 4> expected;
            for (const RulerMarker& marker : markers) {
                const qint64 begin = marker.time.toMSecsSinceEpoch();
                expected[std::size_t(marker.severity)].push_back({begin, begin + marker.duration});
            }
            const MarkerBars bars = markerBars(store, scale, {});
            for (std::size_t severity = 0; severity < bars.size(); ++severity) {
                const auto covers = [&](const TimeSpans& spans, double x, double slack) {
                    return std::any_of(spans.begin(), spans.end(), [&](const TimeSpan& span) {
                        return scale.xAt(span.begin) - slack <= x &&
                               x < scale.xAt(span.end) + slack;
                    });
                };
                const TimeSpans all = joined(expected[severity]);
                for (double x = 5; x < 1015; x += 1) {
                    QVERIFY(!covers(all, x, 0) || covers(bars[severity], x, 1));
                    QVERIFY(!covers(bars[severity], x, 0) || covers(all, x, 1));
                }
            }
        }
    }

    void badges()
    {
        const std::pair<qsizetype, QString> cases[] = {
            {1, {}},          {2, u"2"_s},          {999, u"999"_s},
            {1'000, u"1k"_s}, {999'999, u"999k"_s}, {2'500'000, u"2M"_s}};
        for (const auto& [count, text] : cases)
            QCOMPARE(MarkerBadge{count}.text(), text);
        QVERIFY(MarkerBadge{1}.isNull());
        QVERIFY((!MarkerBadge{1, Severity::Warning}.isNull()));
    }

    void symbolsSayHowManyTheyAre()
    {
        DetailedRuler ruler;
        QVERIFY(ruler.merged()->accessibleDescription().contains(u"3"));
        ruler.setMarkerDetails(false);
        QVERIFY(ruler.merged()->accessibleDescription().isEmpty());
    }

    void listOfASymbol()
    {
        DetailedRuler ruler;
        QSignalSpy jumps(&ruler, &Ruler::jumpToTime);
        ruler.click();
        QCOMPARE(jumps.size(), 1); // as without all this
        QVERIFY(!ruler.list());

        ruler.setMergedClick(Ruler::MergedClick::List);
        QSignalSpy activated(&ruler, &Ruler::mergedMarkersActivated);
        ruler.click();
        QCOMPARE(activated.size(), 1);
        QCOMPARE(activated[0][0].toDateTime(), timeAt(30 * minute));
        QCOMPARE(activated[0][1].toDateTime(), timeAt(30 * minute + 2 * second));
        QCOMPARE(activated[0][2].toInt(), 3);
        QCOMPARE(jumps.size(), 1);
        QCOMPARE(ruler.list()->count(), 3);
        QVERIFY(ruler.list()->item(1)->text().contains(u"00:30:01   <b>second"));
        QTest::keyClick(ruler.list(), Qt::Key_Down);
        QTest::keyClick(ruler.list(), Qt::Key_Return);
        QCOMPARE(jumps.size(), 2);
        QCOMPARE(jumps[1][1].toUuid().data1, 2U);
        QTRY_VERIFY(!ruler.list());

        // By the keyboard, at the indicator.
        ruler.setIndicatorPosition(at(30 * minute));
        QTest::keyClick(&ruler, Qt::Key_Return);
        QVERIFY(ruler.list());
        QTest::keyClick(ruler.list(), Qt::Key_Escape);
        QTRY_VERIFY(!ruler.list());
        ruler.setIndicatorPosition(at(10 * minute));
        QTest::keyClick(&ruler, Qt::Key_Return);
        QVERIFY(!ruler.list());
        QCOMPARE(activated.size(), 2);

        ruler.setMergedClick(Ruler::MergedClick::Zoom);
        ruler.click();
        QCOMPARE(ruler.level(), 0);
        QVERIFY(!ruler.list());
        // The closest view shows no more.
        pressByAssistiveTechnology(ruler.merged());
        QTRY_VERIFY(ruler.list());
    }

    void hoursThatComeTwiceInTheList()
    {
        DetailedRuler ruler;
        ruler.setTimeZone(u"Europe/Brussels"_s);
        const QDateTime change({2026, 10, 25}, {1, 0}, Qt::UTC);
        const qint64 instant = change.toMSecsSinceEpoch();
        ruler.setTimeLimits(quint64(instant - 60 * day), quint64(instant + 60 * day));
        ruler.setView(instant - 50 * day, instant + 50 * day);
        ruler.onAddMarkers({{.time = change.addSecs(-1'800)}, {.time = change.addSecs(1'800)}});
        ruler.setMergedClick(Ruler::MergedClick::List);
        for (const bool tells : {false, true}) {
            ruler.setCalendarTicks(tells);
            ruler.click();
            QCOMPARE(ruler.list()->item(0)->text().endsWith(u"02:30:00 +02"), tells);
            QCOMPARE(ruler.list()->item(1)->text().endsWith(u"02:30:00 +01"), tells);
            const QRect last = ruler.list()->visualItemRect(ruler.list()->item(1));
            QVERIFY(ruler.list()->height() - last.bottom() < last.height());
            QTest::keyClick(ruler.list(), Qt::Key_Escape);
            QTRY_VERIFY(!ruler.list());
        }
    }

    void deletionInSignals()
    {
        for (const auto action : {Ruler::MergedClick::List, Ruler::MergedClick::Zoom}) {
            auto* ruler = new DetailedRuler;
            ruler->setMergedClick(action);
            connect(ruler, &Ruler::mergedMarkersActivated, ruler, [ruler] { delete ruler; });
            QTest::keyClick(ruler, Qt::Key_Return);
            const QPointer<Ruler> alive(ruler);
            ruler->setIndicatorPosition(at(30 * minute));
            QTest::keyClick(ruler, Qt::Key_Return);
            QVERIFY(!alive);
        }
    }
};

QTEST_MAIN(TestMarkerDetails)
#include "tst_markerdetails.moc"
