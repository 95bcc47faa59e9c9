#include "markermerge.h"
#include "markerstore.h"
#include "testsupport.h"
#include "times.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

using namespace CorvelGui;

namespace {

/// The rule once more, written down as it is said: every marker of a run gets its role by itself.
std::vector<int> representatives(const std::vector<MarkerPlace>& places)
{
    const auto overlap = [&places](int a, int b) {
        const auto [left, right] = places[a].x < places[b].x ? std::pair(a, b) : std::pair(b, a);
        return places[right].x - places[left].x <= places[left].halfWidth + places[right].halfWidth;
    };
    std::vector<int> result(places.size());
    const int count = int(places.size());
    int i = 0;
    while (i < count) {
        int middle = i;
        int j = i + 1;
        while (j < count && overlap(i, (i + j) / 2) && overlap(j, (i + j) / 2))
            middle = (i + j++) / 2;
        std::fill(result.begin() + i, result.begin() + j, middle);
        i = j;
    }
    return result;
}

RulerMarker markerAt(qint64 msecs, const QString& text = {})
{
    return {.time = QDateTime::fromMSecsSinceEpoch(msecs, Qt::UTC), .text = text};
}

MarkerStore::Entry entry(qint64 msecs, const QString& text = {})
{
    return {.marker = markerAt(msecs, text), .iconKey = -1, .msecs = msecs};
}

QStringList texts(const MarkerStore& store)
{
    QStringList result;
    for (std::size_t i = 0; i < store.size(); ++i)
        result << store.marker(i).text;
    return result;
}

} // namespace

class TestMarkers : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void merging_data();
    void merging();
    void mergingAgreesWithTheRule_data();
    void mergingAgreesWithTheRule();
    void halfWidths_data();
    void halfWidths();
    void storeKeepsTimeOrder();
    void storeRemovesTheFirstOfATime();
    void markersAreSeenOnce();
    void seenMarkersStaySeenWhenOthersCome();
};

void TestMarkers::merging_data()
{
    using Runs = std::vector<MarkerRun>;
    QTest::addColumn<std::vector<MarkerPlace>>("places");
    QTest::addColumn<Runs>("runs");

    QTest::newRow("none") << std::vector<MarkerPlace>() << Runs();
    QTest::newRow("three at one place")
        << std::vector<MarkerPlace>{{50, 6}, {50, 6}, {50, 6}} << Runs{{0, 2, 1}};
    QTest::newRow("touching") << std::vector<MarkerPlace>{{50, 6}, {62, 6}} << Runs{{0, 1, 0}};
    QTest::newRow("a pixel apart")
        << std::vector<MarkerPlace>{{50, 6}, {63, 6}} << Runs{{0, 0, 0}, {1, 1, 1}};
    QTest::newRow("a chain breaks where the middle leaves the first")
        << std::vector<MarkerPlace>{{0, 6}, {10, 6}, {20, 6}, {30, 6}, {40, 6}}
        << Runs{{0, 2, 1}, {3, 4, 3}};
    QTest::newRow("different widths")
        << std::vector<MarkerPlace>{{50, 0}, {58, 8}, {67, 0}} << Runs{{0, 1, 0}, {2, 2, 2}};
}

void TestMarkers::merging()
{
    QFETCH(std::vector<MarkerPlace>, places);
    QFETCH(std::vector<MarkerRun>, runs);
    QVERIFY(mergeMarkers(places) == runs);
}

void TestMarkers::mergingAgreesWithTheRule_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("pixels");

    QTest::newRow("sparse") << 60 << 1900;
    QTest::newRow("touching here and there") << 200 << 1900;
    QTest::newRow("crowded") << 5000 << 1900;
    QTest::newRow("all within a button") << 300 << 10;
}

void TestMarkers::mergingAgreesWithTheRule()
{
    QFETCH(int, count);
    QFETCH(int, pixels);

    for (quint32 seed = 1; seed <= 30; ++seed) {
        QRandomGenerator random(seed);
        std::vector<MarkerPlace> places;
        for (int i = 0; i < count; ++i)
            places.push_back({int(random.bounded(pixels)), int(random.bounded(9))});
        std::sort(places.begin(), places.end(),
                  [](const MarkerPlace& a, const MarkerPlace& b) { return a.x < b.x; });

        const std::vector<int> expected = representatives(places);
        std::size_t next = 0;
        for (const MarkerRun& run : mergeMarkers(places)) {
            QCOMPARE(run.first, next);
            for (; next <= run.last; ++next)
                QCOMPARE(int(run.representative), expected[next]);
        }
        QCOMPARE(next, places.size());
    }
}

void TestMarkers::halfWidths_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<double>("fraction");
    QTest::addColumn<int>("halfWidth");

    QTest::newRow("filled") << 16 << 1.0 << 6;
    QTest::newRow("three quarters") << 16 << 0.75 << 5;
    QTest::newRow("a half") << 16 << 0.5 << 3;
    QTest::newRow("nothing visible") << 16 << 0.0 << 0;
    QTest::newRow("larger") << 40 << 0.6 << 9;
}

void TestMarkers::halfWidths()
{
    QFETCH(int, width);
    QFETCH(double, fraction);
    QTEST(visibleHalfWidth(width, fraction), "halfWidth");
}

void TestMarkers::storeKeepsTimeOrder()
{
    MarkerStore store;
    store.add({entry(30, QStringLiteral("c")), entry(10, QStringLiteral("a"))});
    store.add({entry(20, QStringLiteral("b")), entry(10, QStringLiteral("a2")),
               entry(40, QStringLiteral("d"))});
    QCOMPARE(texts(store).join(u' '), QStringLiteral("a a2 b c d"));
    QCOMPARE(store.firstFrom(10), std::size_t(0));
    QCOMPARE(store.firstFrom(11), std::size_t(2));
    QCOMPARE(store.firstFrom(41), store.size());
}

void TestMarkers::storeRemovesTheFirstOfATime()
{
    MarkerStore store;
    store.add({entry(10, QStringLiteral("a1")), entry(10, QStringLiteral("a2")),
               entry(10, QStringLiteral("a3")), entry(20, QStringLiteral("b")),
               entry(30, QStringLiteral("c"))});
    store.remove({30, 15, 10});
    QCOMPARE(texts(store).join(u' '), QStringLiteral("a2 a3 b"));
    store.remove({10, 10, 10, 10});
    QCOMPARE(texts(store).join(u' '), QStringLiteral("b"));
    store.remove({99});
    QCOMPARE(store.size(), std::size_t(1));
}

void TestMarkers::markersAreSeenOnce()
{
    MarkerStore store;
    QVERIFY(store.takeUnseen(0, 0).empty());
    std::vector<MarkerStore::Entry> entries;
    for (int i = 0; i < 100; ++i)
        entries.push_back(entry(i));
    store.add(std::move(entries));

    QRandomGenerator random(3);
    std::vector<bool> seen(100, false);
    for (int round = 0; round < 200; ++round) {
        const std::size_t first = random.bounded(100U);
        const std::size_t last = first + random.bounded(quint32(101 - first));
        std::vector<std::size_t> expected;
        for (std::size_t i = first; i < last; ++i) {
            if (!seen[i])
                expected.push_back(i);
            seen[i] = true;
        }
        QVERIFY(store.takeUnseen(first, last) == expected);
    }
}

void TestMarkers::seenMarkersStaySeenWhenOthersCome()
{
    MarkerStore store;
    store.add({entry(10), entry(30)});
    store.takeUnseen(0, 2);
    store.add({entry(20)});
    QVERIFY(store.takeUnseen(0, 3) == std::vector<std::size_t>{1});
    store.remove({10});
    QVERIFY(store.takeUnseen(0, 2).empty());
}

QTEST_GUILESS_MAIN(TestMarkers)
#include "tst_markers.moc"
