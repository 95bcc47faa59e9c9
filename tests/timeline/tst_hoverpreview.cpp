#include "hoverpreview.h"
#include "testsupport.h"

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
    void restEarnsAPreview()
    {
        constexpr auto never = 0ms;
        // The mouse has moved so far since the last preview, and rests.
        const std::tuple<HoverPreview::Situation, int, std::chrono::milliseconds> cases[] = {
            {{}, 0, 301ms},
            {{.pending = true}, 0, 151ms},
            {{.dragging = true}, 0, never},
            {{.visible = true}, 0, never},
            {{.visible = true}, 3, never},
            {{.visible = true}, 4, 101ms},
            {{.visible = true}, -4, 101ms},
            {{.visible = true, .viewStart = 500}, 0, never},
            {{.visible = true, .viewStart = -501}, 0, 101ms},
            {{.visible = true, .markerHovered = true}, 0, 101ms}};
        for (auto [situation, mouseMove, rest] : cases) {
            situation.viewStart += viewStart;
            HoverPreview hover = started();
            hover.emitted(viewStart);
            hover.mouseMoved(QPoint(100 + mouseMove, 25), start);
            QCOMPARE(hover.isDue(situation, start + (rest == never ? 10s : rest)), rest != never);
            QVERIFY(!hover.isDue(situation, start + rest - 1ms));
        }
    }

    void movingMouseEarnsNothing()
    {
        HoverPreview hover = started();
        for (int i = 1; i <= 50; ++i) {
            hover.mouseMoved(QPoint(100 + i, 5), start + i * 90ms);
            QVERIFY(
                !hover.isDue({.pending = true, .viewStart = viewStart}, start + i * 90ms + 89ms));
        }
        // A start forgets the last preview.
        hover.emitted(viewStart);
        QCOMPARE(hover.lastPosition(), QPoint(150, 5));

        hover.start(QPoint(100, 5), viewStart, start + 1s);
        QCOMPARE(hover.lastPosition(), QPoint(-1, -1));
        QVERIFY(hover.isDue({.visible = true, .viewStart = viewStart}, start + 1101ms));
    }
};

QTEST_GUILESS_MAIN(TestHoverPreview)
#include "tst_hoverpreview.moc"
