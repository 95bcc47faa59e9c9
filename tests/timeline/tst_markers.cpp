// SPDX-License-Identifier: MIT
#include "markermerge.h"
#include "markerstore.h"
#include "markerview.h"
#include "testsupport.h"
#include "times.h"

using namespace CorvelGui;

namespace {

/// The rule as it is said, asked for every marker.
std::vector<MarkerRun> runsByTheRule(const std::vector<MarkerPlace>& places)
{
    std::vector<MarkerRun> runs;
    for (std::size_t i = 0; i < places.size();) {
        MarkerRun run{i, i, i};
        for (std::size_t j = i + 1; j < places.size(); ++j) {
            const MarkerPlace& middle = places[(i + j) / 2];
            if (!places[i].overlaps(middle) || !places[j].overlaps(middle))
                break;
            run.last = j;
            run.representative = (i + j) / 2;
        }
        runs.push_back(run);
        i = run.last + 1;
    }
    return runs;
}

class Places final : public MarkerRow
{
public:
    Places(std::vector<MarkerPlace> sorted, int narrow = 0)
        : places(std::move(sorted)), m_narrow(narrow)
    {}

    std::vector<MarkerRun> merged() const { return mergeMarkers(*this, 0, places.size()); }

    MarkerPlace place(std::size_t marker) const override
    {
        ++asked;
        return places.at(marker);
    }
    std::size_t firstRightOf(int x, std::size_t from) const override
    {
        return first(from, places.size(), [&](const MarkerPlace& p) { return p.x > x; });
    }
    std::size_t firstNarrowerThan(int halfWidth, std::size_t from, std::size_t end) const override
    {
        return first(from, end, [&](const MarkerPlace& p) { return p.halfWidth < halfWidth; });
    }
    int narrowest() const override { return m_narrow; }

    const std::vector<MarkerPlace> places;
    mutable int asked = 0;

private:
    template <typename Wanted>
    std::size_t first(std::size_t from, std::size_t end, Wanted wanted) const
    {
        ++asked;
        const auto begin = places.begin();
        return std::size_t(std::find_if(begin + from, begin + end, wanted) - begin);
    }

    const int m_narrow;
};

/// Every @p rarity-th is narrow, the others wide; a rarity of 0 mixes all widths.
Places randomPlaces(QRandomGenerator& random, int count, int pixels, int rarity)
{
    std::vector<MarkerPlace> places;
    for (int i = 0; i < count; ++i) {
        const int halfWidth = rarity == 0 ? random.bounded(9) : random.bounded(rarity) ? 6 : 3;
        places.push_back({random.bounded(pixels), halfWidth});
    }
    std::sort(places.begin(), places.end(),
              [](const MarkerPlace& a, const MarkerPlace& b) { return a.x < b.x; });
    return Places(std::move(places), rarity == 0 ? 0 : 3);
}

RulerMarker marker(qint64 msecs, const QString& text = {})
{
    return {.time = QDateTime::fromMSecsSinceEpoch(msecs, Qt::UTC), .text = text};
}

void add(MarkerStore& store, const QList<RulerMarker>& markers)
{
    store.add(markers, std::vector<quint32>(std::size_t(markers.size())));
}

} // namespace

class TestMarkers : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void mergingAgreesWithTheRule()
    {
        const MarkerPlace place{50, 6};
        QVERIFY(place.overlaps({62, 6}) && !place.overlaps({63, 6})); // touching is enough
        // Sparse, touching here and there, crowded, all within a button.
        for (const auto& [count, pixels] :
             {std::pair(60, 1900), {200, 1900}, {5000, 900}, {300, 10}}) {
            for (quint32 seed = 1; seed <= 60; ++seed) {
                QRandomGenerator random(seed);
                const std::array rarities{0, 1, 2, 20, 300};
                const Places places = randomPlaces(random, count, pixels, rarities[seed % 5]);
                QVERIFY(places.merged() == runsByTheRule(places.places));
            }
        }
    }

    void mergingFollowsTheColumns()
    {
        QRandomGenerator random(1);
        const auto cost = [&](int count) {
            const Places places = randomPlaces(random, count, 1900, 300);
            places.merged();
            return places.asked;
        };
        QVERIFY(cost(100'000) < 2 * cost(3000));
    }

    void halfWidths()
    {
        QCOMPARE(visibleHalfWidth(16, 1.0), 6);
        QCOMPARE(visibleHalfWidth(16, 0.75), 5);
        QCOMPARE(visibleHalfWidth(16, 0.5), 3);
        QCOMPARE(visibleHalfWidth(16, 0.0), 0);
        QCOMPARE(visibleHalfWidth(40, 0.6), 9);
    }

    void storeAgreesWithAList()
    {
        struct Known
        {
            qint64 time;
            QString text;
            quint32 icon;
            bool seen = false, gone = false;
        };
        using Indices = std::vector<std::size_t>;
        QRandomGenerator random(3);
        MarkerStore store;
        QList<Known> list;
        const auto countBefore = [](const QList<Known>& sorted, qint64 time) {
            return std::ranges::count_if(sorted,
                                         [&](const Known& known) { return known.time < time; });
        };
        // None, many, then a few at a time, then few are left. Times come up again and again.
        for (const auto& [added, removed] :
             {std::pair(0, 0), {3000, 0}, {1, 1}, {7, 5}, {600, 3500}, {0, 80}}) {
            const QList<Known> old = list;
            QList<RulerMarker> arriving{RulerMarker()}; // which has no time
            std::vector<quint32> icons{0};
            Indices places;
            for (int i = 0; i < added; ++i) {
                const Known known{random.bounded(300), QString::number(random.generate()),
                                  random.bounded(70U)};
                arriving << marker(known.time, known.text);
                icons.push_back(known.icon);
                places.push_back(std::size_t(countBefore(old, known.time + 1)));
                list.insert(countBefore(list, known.time + 1), known);
            }
            std::ranges::sort(places);
            QCOMPARE(store.add(arriving, icons), places);

            // The first of a time goes first.
            std::vector<qint64> leaving;
            for (int i = 0; i < removed; ++i) {
                leaving.push_back(random.bounded(310));
                const auto found = std::ranges::find_if(list, [&](const Known& known) {
                    return known.time == leaving.back() && !known.gone;
                });
                if (found != list.end())
                    found->gone = true;
            }
            places.clear();
            for (qsizetype i = 0; i < list.size(); ++i)
                if (list[i].gone)
                    places.push_back(std::size_t(i));
            list.removeIf([](const Known& known) { return known.gone; });
            QCOMPARE(store.remove(leaving), places);

            const auto size = std::size_t(list.size());
            QCOMPARE(store.size(), size);
            for (std::size_t i = 0; i < size; ++i) {
                const Known& known = list[qsizetype(i)];
                QCOMPARE(store.marker(i).text, known.text);
                QCOMPARE(store.timeAndIcon(i), std::pair(known.time, known.icon));
            }
            QCOMPARE(store.firstFrom(150), std::size_t(countBefore(list, 150)));

            const std::size_t first = random.bounded(quint32(size));
            const std::size_t last = first + random.bounded(quint32(size - first));
            MarkerStore::Icons icon;
            icon.insert(5);
            std::size_t withIcon = last;
            QList<QDateTime> unseen;
            for (std::size_t i = first; i < last; ++i) {
                Known& known = list[qsizetype(i)];
                if (known.icon == 5)
                    withIcon = std::min(withIcon, i);
                if (!std::exchange(known.seen, true))
                    unseen << marker(known.time).time;
            }
            QCOMPARE(store.firstWithIcon(icon, first, last), withIcon);
            QCOMPARE(store.takeUnseen(first, last), unseen);
        }
    }

    void markersKeepWhatTheyAre()
    {
        const QDateTime night(QDate(2026, 10, 25), QTime(0, 30), Qt::UTC); // of the clock change
        for (const QDateTime& time : {night, night.toLocalTime(), night.toOffsetFromUtc(5400),
                                      night.toTimeZone(QTimeZone("Europe/Berlin")),
                                      night.toTimeZone(QTimeZone("Asia/Tokyo"))}) {
            const RulerMarker known{QUuid::createUuid(), time, 3, 7, u"Gate"_s, nullptr};
            MarkerStore store;
            add(store, {marker(1), known, marker(2)});
            const RulerMarker stored = store.marker(2);
            QCOMPARE(stored.identifier, known.identifier);
            QCOMPARE(stored.time.timeSpec(), time.timeSpec());
            QCOMPARE(stored.time.toString(Qt::ISODate), time.toString(Qt::ISODate));
            QCOMPARE(std::pair(stored.kind, stored.iconIndex), std::pair(3, 7));
        }
    }

    void viewAgreesWithALoop()
    {
        constexpr int width = 400;
        for (quint32 seed = 1; seed <= 60; ++seed) {
            QRandomGenerator random(seed);
            QList<RulerMarker> markers;
            const int count = 1 << random.bounded(1, 12);
            for (int i = 0; i < count; ++i)
                markers << marker(random.bounded(16'000));
            MarkerStore store;
            add(store, markers);
            // A pixel is ten milliseconds; the view begins in the middle.
            const MarkerView view(store, {8000, 0.1, width}, {16, {6}}, {});
            std::vector<MarkerPlace> places;
            for (std::size_t i = 0; i < store.size(); ++i)
                places.push_back({int(10 + 0.1 * double(store.time(i) - 8000)), 6});

            // From the first marker that does not touch the one before it, at most a view's width
            // away.
            std::size_t start = view.shown().first;
            while (start > 0 && start < places.size() && places[start - 1].x >= 5 - width &&
                   places[start].x - places[start - 1].x <= 16)
                --start;
            std::vector<MarkerRun> expected;
            for (const MarkerRun& run :
                 runsByTheRule({places.begin() + qsizetype(start), places.end()})) {
                const int x = places[start + run.representative].x;
                if (x >= 5 && x <= width - 5)
                    expected.push_back(
                        {start + run.first, start + run.last, start + run.representative});
            }
            QVERIFY(view.runs() == expected);

            const int mouse = random.bounded(width);
            std::optional<std::size_t> nearest;
            for (std::size_t i = 0; i < places.size(); ++i) {
                const int distance = std::abs(places[i].x - mouse);
                if (distance <= 8 && (!nearest || distance < std::abs(places[*nearest].x - mouse)))
                    nearest = i;
            }
            QVERIFY(view.nearest(mouse, 8) == nearest);
        }
    }
};

QTEST_GUILESS_MAIN(TestMarkers)
#include "tst_markers.moc"
