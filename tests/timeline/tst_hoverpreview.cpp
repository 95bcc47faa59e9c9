#include "hoverpreview.h"
#include "testsupport.h"

#include <QTest>

using CorvelGui::HoverPreview;
using namespace std::chrono_literals;

namespace {

/// The test's own clock: nothing here waits.
const HoverPreview::Clock::time_point start{1000s};
constexpr qint64 viewStart = 1'000'000;

HoverPreview started()
{
    HoverPreview hover;
    hover.start(QPoint(100, 5), viewStart, start);
    return hover;
}

} // namespace

class TestHoverPreview : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void firstPreview();
    void visiblePreviewFollows();
    void movingMouseEarnsNothing();
    void startForgetsTheLastPreview();
};

void TestHoverPreview::firstPreview()
{
    const struct
    {
        bool pending, dragging;
        std::chrono::milliseconds rested;
        bool due;
    } cases[] = {{false, false, 300ms, false}, {false, false, 301ms, true},
                 {true, false, 150ms, false},  {true, false, 151ms, true},
                 {false, true, 1000ms, false}, {true, true, 1000ms, false}};
    for (const auto& [pending, dragging, rested, due] : cases) {
        const HoverPreview::Situation situation{
            .dragging = dragging, .pending = pending, .viewStart = viewStart};
        QCOMPARE(started().isDue(situation, start + rested), due);
    }
}

void TestHoverPreview::visiblePreviewFollows()
{
    const struct
    {
        int mouseMove;
        qint64 viewMove;
        bool markerHovered;
        std::chrono::milliseconds rested;
        bool due;
    } cases[] = {
        {0, 0, false, 1000ms, false},  {3, 0, false, 1000ms, false}, {4, 0, false, 101ms, true},
        {-4, 0, false, 101ms, true},   {4, 0, false, 100ms, false},  {0, 500, false, 1000ms, false},
        {0, -501, false, 101ms, true}, {0, 0, true, 101ms, true},    {0, 0, true, 100ms, false}};
    for (const auto& [mouseMove, viewMove, markerHovered, rested, due] : cases) {
        HoverPreview hover = started();
        hover.emitted(viewStart);
        hover.mouseMoved(QPoint(100 + mouseMove, 25), start);
        const HoverPreview::Situation situation{
            .visible = true, .markerHovered = markerHovered, .viewStart = viewStart + viewMove};
        QCOMPARE(hover.isDue(situation, start + rested), due);
    }
}

void TestHoverPreview::movingMouseEarnsNothing()
{
    HoverPreview hover = started();
    for (int i = 1; i <= 50; ++i) {
        hover.mouseMoved(QPoint(100 + i, 5), start + i * 90ms);
        QVERIFY(!hover.isDue({.pending = true, .viewStart = viewStart}, start + i * 90ms + 89ms));
    }
}

void TestHoverPreview::startForgetsTheLastPreview()
{
    HoverPreview hover = started();
    hover.emitted(viewStart);
    QCOMPARE(hover.lastPosition(), QPoint(100, 5));
    hover.start(QPoint(100, 5), viewStart, start + 1s);
    QCOMPARE(hover.lastPosition(), QPoint(-1, -1));
    QVERIFY(hover.isDue({.visible = true, .viewStart = viewStart}, start + 1101ms));
}

QTEST_GUILESS_MAIN(TestHoverPreview)
#include "tst_hoverpreview.moc"
