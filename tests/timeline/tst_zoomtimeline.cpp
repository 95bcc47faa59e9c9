#include "loggedruler.h"
#include "testsupport.h"

#include <CorvelGui/TimelineScroll>
#include <CorvelGui/ZoomTimeline>
#include <CorvelGui/Zoomer>

#include <QAbstractButton>
#include <QApplication>
#include <QPointer>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>

#include <memory>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

class TestZoomTimeline : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void layout();
    void limitsOfLessThanAPixelChangeNothing();
    void limitsAndIndicatorReportOnce();
    void stripFollowsRuler();
    void rulerFollowsStrip();
    void zoomerAndRulerFollowEachOther();
    void operations_data();
    void operations();
    void searchRangeOnTheStrip();
    void resultModeHidesTheSearchRange();
    void withoutZoomer();
    void activity_data();
    void activity();
    void zoneKeepsTheView();
    void hoverReachesTheStrip();
    void deletionInSignals();

private:
    QImage strip() const { return m_timeline->timelineScroll()->grab().toImage(); }
    /// Whether the strip shows the search range at a fraction of its width.
    bool stripIsMarkedAt(double fraction) const;
    /// Whether the ruler shows the search range on a column.
    bool rulerIsMarkedAt(int x) const;

    std::unique_ptr<ZoomTimeline> m_timeline;
};

void TestZoomTimeline::init()
{
    WarningFreeTest::init();
    m_timeline = std::make_unique<ZoomTimeline>();
    m_timeline->resize(1024, m_timeline->minimumSizeHint().height());
    m_timeline->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_timeline.get()));
    m_timeline->setTimeZone(u"UTC"_s);
    m_timeline->setOrvaneGuiTheme(true);
    m_timeline->setActive(true, false);
    m_timeline->setTimeLimits(at(0), at(10 * day));
}

void TestZoomTimeline::cleanup()
{
    m_timeline.reset();
    ZoomTimeline::setZoomerEnabled(true);
}

bool TestZoomTimeline::stripIsMarkedAt(double fraction) const
{
    const QImage image = strip();
    const QColor color = image.pixelColor(int(image.width() * fraction), image.height() - 3);
    return color.blue() > color.red() + 20;
}

bool TestZoomTimeline::rulerIsMarkedAt(int x) const
{
    const QColor color = m_timeline->ruler()->grab().toImage().pixelColor(x, 1);
    return color.blue() > color.red() + 20;
}

void TestZoomTimeline::layout()
{
    const QRect ruler = m_timeline->ruler()->geometry();
    const QRect zoomer = m_timeline->zoomer()->geometry();
    const QRect scroll = m_timeline->timelineScroll()->geometry();
    QCOMPARE(ruler.topLeft(), QPoint(2, 2));
    QCOMPARE(ruler.right(), m_timeline->width() - 3);
    QCOMPARE(zoomer.width(), 150);
    QVERIFY(zoomer.top() > ruler.bottom() && zoomer.right() < scroll.left());
    QCOMPARE(scroll.right(), ruler.right());
    QCOMPARE(m_timeline->zoomer()->findChild<QSlider*>()->maximum(), 8);
}

void TestZoomTimeline::limitsOfLessThanAPixelChangeNothing()
{
    // An hour on 1000 pixels: one is 3600 ms.
    QSignalSpy view(m_timeline->ruler(), &Ruler::timeLineViewChanged);
    m_timeline->setTimeLimits(at(3599), at(10 * day + 3599));
    QCOMPARE(m_timeline->ruler()->getTimeLimits(), std::pair(at(0), at(10 * day)));
    m_timeline->setTimeLimits(at(0), at(10 * day + 3600));
    QCOMPARE(m_timeline->ruler()->getTimeLimits(), std::pair(at(0), at(10 * day + 3600)));
    QCOMPARE(view.count(), 0);
}

void TestZoomTimeline::limitsAndIndicatorReportOnce()
{
    QSignalSpy view(m_timeline->ruler(), &Ruler::timeLineViewChanged);
    m_timeline->setTimeLimitsAndIndicatorPosition(at(2 * day), at(12 * day), at(5 * day));
    QCOMPARE(view.count(), 1);
    QCOMPARE(view.front().at(4).toBool(), false);
    QCOMPARE(m_timeline->ruler()->getIndicatorMSecs(), at(5 * day));
    m_timeline->setTimeLimitsAndIndicatorPosition(at(2 * day), at(12 * day), at(5 * day));
    QCOMPARE(view.count(), 1);
}

void TestZoomTimeline::stripFollowsRuler()
{
    const TimelineScroll* scroll = m_timeline->timelineScroll();
    m_timeline->ruler()->changeLevel(4, 0.0);
    QCOMPARE(scroll->viewArea(), 0.1);
    QCOMPARE(scroll->centerPosition(), 0.05);
    m_timeline->setIndicatorPosition(at(5 * day));
    QCOMPARE(scroll->centerPosition(), 0.45);
    // The same view is another part of a longer period.
    m_timeline->setTimeLimits(at(0), at(20 * day));
    QCOMPARE(scroll->viewArea(), 0.05);
    QCOMPARE(scroll->centerPosition(), 0.225);
    m_timeline->resetTimeline();
    QCOMPARE(scroll->viewArea(), 0.0);
}

void TestZoomTimeline::rulerFollowsStrip()
{
    m_timeline->ruler()->changeLevel(4, 0.0);
    QSignalSpy center(m_timeline->ruler(), &Ruler::centerPositionChanged);
    TimelineScroll* scroll = m_timeline->timelineScroll();
    QTest::mouseClick(scroll, Qt::LeftButton, {}, QPoint(scroll->width() - 10, 5));
    QVERIFY(m_timeline->ruler()->beginTime() > at(20 * hour));
    QVERIFY(m_timeline->ruler()->beginTime() < at(28 * hour));
    QCOMPARE(center.count(), 0);
}

void TestZoomTimeline::zoomerAndRulerFollowEachOther()
{
    auto* slider = m_timeline->zoomer()->findChild<QSlider*>();
    QSignalSpy levels(m_timeline->ruler(), &Ruler::changeSliderZoom);
    QSignalSpy requests(m_timeline->zoomer(), &Zoomer::zoomerOut);

    m_timeline->ruler()->changeLevel(4, 0.5);
    QCOMPARE(slider->value(), 4);
    QCOMPARE(requests.count(), 0);
    // Two requests, one change.
    m_timeline->zoomer()->onZoomOutClicked(false);
    QCOMPARE(requests.count(), 2);
    QCOMPARE(m_timeline->ruler()->level(), 5);
    QCOMPARE(levels.count(), 2);
    // There is nothing wider than ten days, so the slider snaps back from where it was dragged.
    m_timeline->ruler()->changeLevel(8, 0.5);
    slider->setValue(2);
    QCOMPARE(m_timeline->ruler()->level(), 2);
    QCOMPARE(m_timeline->timelineScroll()->viewArea(), 3.0 * hour / (10 * day));
}

void TestZoomTimeline::operations_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("flagB");
    QTest::addColumn<bool>("searchShown");
    QTest::addColumn<bool>("zooms");

    QTest::newRow("unknown") << 0 << false << false << false;
    QTest::newRow("search range") << 1 << false << true << true;
    QTest::newRow("search range without zoom") << 1 << true << true << false;
    QTest::newRow("result range") << 5 << false << false << true;
    QTest::newRow("result range without zoom") << 5 << true << false << false;
    QTest::newRow("marked result range") << 6 << false << false << true;
    QTest::newRow("begin-marked result range") << 7 << true << false << false;
    QTest::newRow("beyond") << 8 << false << false << false;
}

void TestZoomTimeline::operations()
{
    QFETCH(int, code);
    QFETCH(bool, flagB);
    QFETCH(bool, searchShown);
    QFETCH(bool, zooms);

    m_timeline->ruler()->changeLevel(8, 0.5);
    const auto perform = [&](int operation) {
        m_timeline->onZoomTimeLineOperation(
            {.code = operation, .from = timeAt(4 * day), .to = timeAt(6 * day), .flagB = flagB});
    };
    perform(code);
    QCOMPARE(m_timeline->ruler()->level(), zooms ? 5 : 8);
    QCOMPARE(stripIsMarkedAt(0.5), searchShown);
    QCOMPARE(rulerIsMarkedAt(523), searchShown);
    perform(4);
    QVERIFY(!stripIsMarkedAt(0.5) && !rulerIsMarkedAt(523));
    perform(3);
    QCOMPARE(stripIsMarkedAt(0.5), searchShown);
    perform(2);
    perform(3);
    QVERIFY(!stripIsMarkedAt(0.5) && !rulerIsMarkedAt(523));
}

void TestZoomTimeline::searchRangeOnTheStrip()
{
    m_timeline->setSearchTimeRange(timeAt(4 * day), timeAt(6 * day), false);
    QVERIFY(!stripIsMarkedAt(0.35) && stripIsMarkedAt(0.45) && stripIsMarkedAt(0.55) &&
            !stripIsMarkedAt(0.65));
    m_timeline->setTimeLimits(at(0), at(20 * day));
    QVERIFY(stripIsMarkedAt(0.25) && !stripIsMarkedAt(0.45));
}

void TestZoomTimeline::resultModeHidesTheSearchRange()
{
    m_timeline->setResultMode(true);
    m_timeline->setSearchTimeRange(timeAt(4 * day), timeAt(6 * day), false);
    QVERIFY(!stripIsMarkedAt(0.5));
    m_timeline->setResultMode(false);
    m_timeline->showSearchTimeRange();
    QVERIFY(stripIsMarkedAt(0.5));
}

void TestZoomTimeline::withoutZoomer()
{
    ZoomTimeline::setZoomerEnabled(false);
    ZoomTimeline timeline;
    QVERIFY(!timeline.zoomer());
    timeline.setActive(true, false);
    timeline.setTimeLimits(at(0), at(10 * day));
    timeline.ruler()->changeLevel(4, 0.5);
    QCOMPARE(timeline.timelineScroll()->viewArea(), 0.1);
}

void TestZoomTimeline::activity_data()
{
    QTest::addColumn<bool>("active");
    QTest::addColumn<bool>("blocked");

    QTest::newRow("active") << true << false;
    QTest::newRow("blocked") << true << true;
    QTest::newRow("inactive") << false << false;
    QTest::newRow("inactive and blocked") << false << true;
}

void TestZoomTimeline::activity()
{
    QFETCH(bool, active);
    QFETCH(bool, blocked);
    m_timeline->setActive(active, blocked);
    const bool usable = active && !blocked;
    QCOMPARE(m_timeline->isEnabled(), active);
    QCOMPARE(m_timeline->zoomer()->isEnabled(), usable);
    QCOMPARE(m_timeline->timelineScroll()->isEnabled(), usable);
    QSignalSpy clicks(m_timeline->ruler(), &Ruler::indicatorPositionChanged);
    if (active)
        QTest::mouseClick(m_timeline->ruler(), Qt::LeftButton, {}, QPoint(500, 40));
    QCOMPARE(clicks.count(), usable ? 1 : 0);
}

void TestZoomTimeline::zoneKeepsTheView()
{
    m_timeline->ruler()->changeLevel(4, 0.5);
    m_timeline->ruler()->onTimelineOffsetChanged(0.4);
    m_timeline->setIndicatorPosition(at(4 * day));
    const quint64 begin = m_timeline->ruler()->beginTime();
    QSignalSpy view(m_timeline->ruler(), &Ruler::timeLineViewChanged);

    m_timeline->setTimeZone(u"Asia/Kathmandu"_s);
    QCOMPARE(m_timeline->ruler()->getIndicatorMSecs(), at(4 * day));
    QVERIFY(qAbs(qint64(m_timeline->ruler()->beginTime()) - qint64(begin)) <= 1);
    QCOMPARE(view.count(), 1);
    const QDateTime viewBegin = view.front().at(3).toDateTime();
    QCOMPARE(viewBegin.offsetFromUtc(), 20'700);
}

void TestZoomTimeline::hoverReachesTheStrip()
{
    m_timeline->ruler()->changeLevel(4, 0.0);
    const auto boxColor = [this] {
        return strip().pixelColor(40, strip().height() / 2);
    };
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(m_timeline->ruler(), &leave);
    const QColor idle = boxColor();
    QEnterEvent enter({5, 5}, {5, 5}, {5, 5});
    QApplication::sendEvent(m_timeline->ruler(), &enter);
    QVERIFY(boxColor() != idle);
    QApplication::sendEvent(m_timeline->ruler(), &leave);
    QCOMPARE(boxColor(), idle);
}

void TestZoomTimeline::deletionInSignals()
{
    const std::vector<std::function<void(ZoomTimeline&)>> acts{
        [](ZoomTimeline& t) { t.setTimeLimits(at(day), at(5 * day)); },
        [](ZoomTimeline& t) { t.setIndicatorPosition(at(4 * day)); },
        [](ZoomTimeline& t) {
            t.setTimeLimitsAndIndicatorPosition(at(day), at(5 * day), at(3 * day));
        },
        [](ZoomTimeline& t) { t.setTimeZone(u"Asia/Tokyo"_s); },
        [](ZoomTimeline& t) {
            // The first click brings the slider to the level that is current already.
            const QPointer<Zoomer> zoomer = t.zoomer();
            for (int click = 0; click < 2 && zoomer; ++click)
                zoomer->onZoomOutClicked(false);
        },
        [](ZoomTimeline& t) { t.zoomer()->findChild<QSlider*>()->setValue(4); },
        [](ZoomTimeline& t) {
            QTest::mouseClick(t.timelineScroll(), Qt::LeftButton, {}, QPoint(700, 5));
        },
        [](ZoomTimeline& t) { t.setSearchTimeRange(timeAt(day), timeAt(2 * day), true); },
        [](ZoomTimeline& t) { QTest::mouseClick(t.ruler(), Qt::LeftButton, {}, QPoint(500, 40)); },
    };
    for (const auto& act : acts) {
        QPointer<ZoomTimeline> timeline = new ZoomTimeline;
        timeline->resize(1024, 80);
        timeline->show();
        timeline->setActive(true, false);
        timeline->setTimeLimits(at(0), at(10 * day));
        QObject context;
        const auto remove = [&] {
            delete timeline;
        };
        connect(timeline->ruler(), &Ruler::timeLineViewChanged, &context, remove);
        connect(timeline->ruler(), &Ruler::indicatorPositionChanged, &context, remove);
        act(*timeline);
        QVERIFY(!timeline);
    }
}

QTEST_MAIN(TestZoomTimeline)
#include "tst_zoomtimeline.moc"
