#include "hoverpreview.h"
#include "testsupport.h"

#include <QTest>

using CorvelGui::HoverPreview;
using namespace std::chrono_literals;

namespace {

/// The test's own clock: nothing here waits.
const HoverPreview::Clock::time_point start{1000s};
constexpr qint64 viewStart = 1'000'000;

} // namespace

class TestHoverPreview : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void firstPreview_data();
    void firstPreview();
    void visiblePreviewFollows_data();
    void visiblePreviewFollows();
    void movingMouseEarnsNothing();
    void startForgetsTheLastPreview();
};

void TestHoverPreview::firstPreview_data()
{
    QTest::addColumn<bool>("pending");
    QTest::addColumn<bool>("dragging");
    QTest::addColumn<int>("restedMsecs");
    QTest::addColumn<bool>("due");

    QTest::newRow("not yet") << false << false << 300 << false;
    QTest::newRow("now") << false << false << 301 << true;
    QTest::newRow("pending, not yet") << true << false << 150 << false;
    QTest::newRow("pending, now") << true << false << 151 << true;
    QTest::newRow("dragging") << false << true << 1000 << false;
    QTest::newRow("pending and dragging") << true << true << 1000 << false;
}

void TestHoverPreview::firstPreview()
{
    QFETCH(bool, pending);
    QFETCH(bool, dragging);
    QFETCH(int, restedMsecs);

    HoverPreview hover;
    hover.start(QPoint(100, 5), viewStart, start);
    const HoverPreview::Situation situation{
        .dragging = dragging, .pending = pending, .viewStart = viewStart};
    QTEST(hover.isDue(situation, start + std::chrono::milliseconds(restedMsecs)), "due");
}

void TestHoverPreview::visiblePreviewFollows_data()
{
    QTest::addColumn<int>("mouseMove");
    QTest::addColumn<qint64>("viewMove");
    QTest::addColumn<bool>("markerHovered");
    QTest::addColumn<int>("restedMsecs");
    QTest::addColumn<bool>("due");

    QTest::newRow("nothing moved") << 0 << qint64(0) << false << 1000 << false;
    QTest::newRow("3 pixels") << 3 << qint64(0) << false << 1000 << false;
    QTest::newRow("4 pixels") << 4 << qint64(0) << false << 101 << true;
    QTest::newRow("4 pixels back") << -4 << qint64(0) << false << 101 << true;
    QTest::newRow("4 pixels, too soon") << 4 << qint64(0) << false << 100 << false;
    QTest::newRow("view by 500 ms") << 0 << qint64(500) << false << 1000 << false;
    QTest::newRow("view by 501 ms") << 0 << qint64(-501) << false << 101 << true;
    QTest::newRow("on a marker") << 0 << qint64(0) << true << 101 << true;
    QTest::newRow("on a marker, too soon") << 0 << qint64(0) << true << 100 << false;
}

void TestHoverPreview::visiblePreviewFollows()
{
    QFETCH(int, mouseMove);
    QFETCH(qint64, viewMove);
    QFETCH(bool, markerHovered);
    QFETCH(int, restedMsecs);

    HoverPreview hover;
    hover.start(QPoint(100, 5), viewStart, start);
    hover.emitted(viewStart);
    hover.mouseMoved(QPoint(100 + mouseMove, 25), start);
    const HoverPreview::Situation situation{
        .visible = true, .markerHovered = markerHovered, .viewStart = viewStart + viewMove};
    QTEST(hover.isDue(situation, start + std::chrono::milliseconds(restedMsecs)), "due");
}

void TestHoverPreview::movingMouseEarnsNothing()
{
    HoverPreview hover;
    hover.start(QPoint(100, 5), viewStart, start);
    for (int i = 1; i <= 50; ++i) {
        hover.mouseMoved(QPoint(100 + i, 5), start + i * 90ms);
        QVERIFY(!hover.isDue({.pending = true, .viewStart = viewStart}, start + i * 90ms + 89ms));
    }
}

void TestHoverPreview::startForgetsTheLastPreview()
{
    HoverPreview hover;
    hover.start(QPoint(100, 5), viewStart, start);
    hover.emitted(viewStart);
    QCOMPARE(hover.lastPosition(), QPoint(100, 5));
    hover.start(QPoint(100, 5), viewStart, start + 1s);
    QCOMPARE(hover.lastPosition(), QPoint(-1, -1));
    QVERIFY(hover.isDue({.visible = true, .viewStart = viewStart}, start + 1101ms));
}

QTEST_GUILESS_MAIN(TestHoverPreview)
#include "tst_hoverpreview.moc"
