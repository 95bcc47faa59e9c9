#include "markermerge.h"
#include "markerstore.h"
#include "testsupport.h"
#include "times.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

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

MarkerStore::Entry entry(qint64 msecs, const QString& text = {})
{
    return {.marker = {.time = QDateTime::fromMSecsSinceEpoch(msecs, Qt::UTC), .text = text},
            .iconKey = -1,
            .msecs = msecs};
}

QString texts(const MarkerStore& store)
{
    QStringList result;
    for (std::size_t i = 0; i < store.size(); ++i)
        result << store.marker(i).text;
    return result.join(u' ');
}

} // namespace

class TestMarkers : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void merging();
    void mergingAgreesWithTheRule();
    void halfWidths();
    void storeKeepsTimeOrder();
    void markersAreSeenOnce();
};

void TestMarkers::merging()
{
    const struct
    {
        std::vector<MarkerPlace> places;
        std::vector<MarkerRun> runs;
    } cases[] = {
        {{}, {}},
        {{{50, 6}, {50, 6}, {50, 6}}, {{0, 2, 1}}},
        {{{50, 6}, {62, 6}}, {{0, 1, 0}}}, // touching
        {{{50, 6}, {63, 6}}, {{0, 0, 0}, {1, 1, 1}}},
        // A chain breaks where the middle leaves the first.
        {{{0, 6}, {10, 6}, {20, 6}, {30, 6}, {40, 6}}, {{0, 2, 1}, {3, 4, 3}}},
        {{{50, 0}, {58, 8}, {67, 0}}, {{0, 1, 0}, {2, 2, 2}}},
    };
    for (const auto& [places, runs] : cases)
        QVERIFY(mergeMarkers(places) == runs);
}

void TestMarkers::mergingAgreesWithTheRule()
{
    // Sparse, touching here and there, crowded, all within a button.
    for (const auto& [count, pixels] :
         {std::pair(60, 1900), {200, 1900}, {5000, 1900}, {300, 10}}) {
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
}

void TestMarkers::halfWidths()
{
    QCOMPARE(visibleHalfWidth(16, 1.0), 6);
    QCOMPARE(visibleHalfWidth(16, 0.75), 5);
    QCOMPARE(visibleHalfWidth(16, 0.5), 3);
    QCOMPARE(visibleHalfWidth(16, 0.0), 0);
    QCOMPARE(visibleHalfWidth(40, 0.6), 9);
}

void TestMarkers::storeKeepsTimeOrder()
{
    MarkerStore store;
    store.add({entry(30, u"c"_s), entry(10, u"a"_s)});
    store.add({entry(20, u"b"_s), entry(10, u"a2"_s), entry(10, u"a3"_s), entry(40, u"d"_s)});
    QCOMPARE(texts(store), u"a a2 a3 b c d"_s);
    QCOMPARE(store.firstFrom(10), std::size_t(0));
    QCOMPARE(store.firstFrom(11), std::size_t(3));
    QCOMPARE(store.firstFrom(41), store.size());
    // The first of a time goes first.
    store.remove({30, 15, 10});
    QCOMPARE(texts(store), u"a2 a3 b d"_s);
    store.remove({10, 10, 10, 10, 99});
    QCOMPARE(texts(store), u"b d"_s);
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

    // They stay seen when others come and go.
    MarkerStore changing;
    changing.add({entry(10), entry(30)});
    changing.takeUnseen(0, 2);
    changing.add({entry(20)});
    QVERIFY(changing.takeUnseen(0, 3) == std::vector<std::size_t>{1});
    changing.remove({10});
    QVERIFY(changing.takeUnseen(0, 2).empty());
}

QTEST_GUILESS_MAIN(TestMarkers)
#include "tst_markers.moc"
