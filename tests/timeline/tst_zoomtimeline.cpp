// SPDX-License-Identifier: MIT
#include "loggedruler.h"

#include <CorvelGui/Indicator>
#include <CorvelGui/TimelineScroll>
#include <CorvelGui/ZoomTimeline>
#include <CorvelGui/Zoomer>

#include <QSlider>

using namespace CorvelGui;

namespace {

/// An active timeline in UTC that shows the first hour of ten days.
class TestedTimeline : public ZoomTimeline
{
public:
    TestedTimeline()
    {
        resize(1024, minimumSizeHint().height());
        show();
        setTimeZone(u"UTC"_s);
        setOrvaneGuiTheme(true);
        setActive(true, false);
        setTimeLimits(at(0), at(10 * day));
    }

    QSlider* slider() const { return zoomer()->findChild<QSlider*>(); }
    QImage strip() const { return timelineScroll()->grab().toImage(); }
    /// Whether the strip shows the search range at a fraction of its width.
    bool stripIsMarkedAt(double fraction) const
    {
        const QImage image = strip();
        return isMarked(image.pixelColor(int(image.width() * fraction), image.height() - 3));
    }
    bool rulerIsMarked() const { return isMarked(ruler()->grab().toImage().pixelColor(523, 1)); }

private:
    static bool isMarked(const QColor& color) { return color.blue() > color.red() + 20; }
};

class LoggedZoomer : public Zoomer
{
public:
    LoggedZoomer() : Zoomer(8)
    {
        show();
        const auto logged = [this](const QString& direction) {
            return [=, this](int level, double anchor) {
                log << direction + u" %1 %2"_s.arg(level).arg(anchor);
            };
        };
        connect(this, &Zoomer::zoomerIn, this, logged(u"in"_s));
        connect(this, &Zoomer::zoomerOut, this, logged(u"out"_s));
    }

    QSlider* slider() const { return findChild<QSlider*>(); }
    // The buttons stand at the two ends.
    QWidget* button(bool in) const { return childAt(in ? 7 : width() - 7, 7); }
    void clickIn() { QTest::mouseClick(button(true), Qt::LeftButton); }
    void clickOut() { QTest::mouseClick(button(false), Qt::LeftButton); }

    QStringList takeLog() { return std::exchange(log, {}); }

    QStringList log;
};

} // namespace

class TestZoomTimeline : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void layout()
    {
        TestedTimeline timeline;
        QVERIFY(QTest::qWaitForWindowExposed(&timeline));
        QTRY_VERIFY(timeline.zoomer()->y() > timeline.ruler()->geometry().bottom());
        // Tab goes from left to right and downwards.
        QList<QPoint> tabbed;
        QWidget* widget = timeline.ruler();
        do {
            if (widget->isVisible() && widget->focusPolicy() & Qt::TabFocus)
                tabbed << widget->mapTo(&timeline, widget->rect().bottomLeft());
            widget = widget->nextInFocusChain();
        } while (widget != timeline.ruler());
        QCOMPARE(tabbed.size(), 5);
        QVERIFY(std::is_sorted(tabbed.begin() + 1, tabbed.end(),
                               [](QPoint a, QPoint b) { return a.x() < b.x(); }));

        ZoomTimeline::setZoomerEnabled(false);
        TestedTimeline without;
        ZoomTimeline::setZoomerEnabled(true);
        QVERIFY(!without.zoomer());
        without.ruler()->changeLevel(4, 0.5);
        QCOMPARE(without.timelineScroll()->viewArea(), 0.1);
    }

    void limitsReportOnce()
    {
        TestedTimeline timeline;
        QSignalSpy view(timeline.ruler(), &Ruler::timeLineViewChanged);
        // Less than a pixel of 3600 ms changes nothing.
        timeline.setTimeLimits(at(3599), at(10 * day + 3599));
        QCOMPARE(timeline.ruler()->getTimeLimits(), std::pair(at(0), at(10 * day)));
        timeline.setTimeLimits(at(0), at(10 * day + 3600));
        QCOMPARE(timeline.ruler()->getTimeLimits(), std::pair(at(0), at(10 * day + 3600)));
        QCOMPARE(view.count(), 0);
        for (int i = 0; i < 2; ++i) {
            timeline.setTimeLimitsAndIndicatorPosition(at(2 * day), at(12 * day), at(5 * day));
            QCOMPARE(view.count(), 1);
        }
        QCOMPARE(view.front().at(4).toBool(), false);
        QCOMPARE(timeline.ruler()->getIndicatorMSecs(), at(5 * day));
    }

    void stripAndRulerFollowEachOther()
    {
        TestedTimeline timeline;
        TimelineScroll* scroll = timeline.timelineScroll();
        timeline.ruler()->changeLevel(4, 0.0);
        QCOMPARE(scroll->viewArea(), 0.1);
        QCOMPARE(scroll->centerPosition(), 0.05);
        QSignalSpy center(timeline.ruler(), &Ruler::centerPositionChanged);
        QTest::mouseClick(scroll, Qt::LeftButton, {}, QPoint(scroll->width() - 10, 5));
        QVERIFY(timeline.ruler()->beginTime() > at(20 * hour));
        QVERIFY(timeline.ruler()->beginTime() < at(28 * hour));
        QCOMPARE(center.count(), 0);

        timeline.setIndicatorPosition(at(5 * day));
        QCOMPARE(scroll->centerPosition(), 0.45);
        // The same view is another part of a longer period.
        timeline.setTimeLimits(at(0), at(20 * day));
        QCOMPARE(scroll->viewArea(), 0.05);
        QCOMPARE(scroll->centerPosition(), 0.225);

        timeline.setSearchTimeRange(timeAt(0), timeAt(20 * day), false);
        timeline.ruler()->changeLevel(5, 0.5);
        timeline.resetTimeline();
        QCOMPARE(scroll->viewArea(), 0.0);
        QCOMPARE(timeline.slider()->value(), 1);
        QVERIFY(!timeline.stripIsMarkedAt(0.5));
        // There is nothing that could move.
        QTest::keyClick(scroll, Qt::Key_End);
        timeline.setTimeLimits(at(day), at(10 * day));
        QCOMPARE(timeline.ruler()->beginTime(), at(day));
        QVERIFY(timeline.stripIsMarkedAt(0.5));
    }

    void zoomerAndRulerFollowEachOther()
    {
        TestedTimeline timeline;
        QSignalSpy levels(timeline.ruler(), &Ruler::changeSliderZoom);
        QSignalSpy requests(timeline.zoomer(), &Zoomer::zoomerOut);
        timeline.ruler()->changeLevel(4, 0.5);
        QCOMPARE(timeline.slider()->value(), 4);
        // Two requests, one change.
        timeline.zoomer()->onZoomOutClicked(false);
        QCOMPARE(requests.count(), 2);
        QCOMPARE(levels, (QList<QVariantList>{{4}, {5}}));
        timeline.slider()->setValue(2);
        QCOMPARE(timeline.ruler()->level(), 2);
        QCOMPARE(timeline.timelineScroll()->viewArea(), 3.0 * hour / (10 * day));
    }

    void operations()
    {
        const std::tuple<int, bool, bool, bool> cases[] = {
            {0, false, false, false}, {1, false, true, true},  {1, true, true, false},
            {5, false, false, true},  {5, true, false, false}, {6, false, false, true},
            {7, true, false, false},  {8, false, false, false}};
        for (const auto& [code, flagB, searchShown, zooms] : cases) {
            TestedTimeline timeline;
            timeline.ruler()->changeLevel(8, 0.5);
            const auto shownAfter = [&, flag = flagB](int asked) {
                timeline.onZoomTimeLineOperation(
                    {.code = asked, .from = timeAt(4 * day), .to = timeAt(6 * day), .flagB = flag});
                return std::pair(timeline.stripIsMarkedAt(0.5), timeline.rulerIsMarked());
            };
            const std::pair nowhere(false, false);
            const std::pair shown(searchShown, searchShown);
            QCOMPARE(shownAfter(code), shown);
            QCOMPARE(timeline.ruler()->level(), zooms ? 5 : 8);
            QCOMPARE(shownAfter(4), nowhere);
            QCOMPARE(shownAfter(3), shown);
            QCOMPARE(shownAfter(2), nowhere);
            QCOMPARE(shownAfter(3), nowhere);
        }
    }

    void searchRangeOnTheStrip()
    {
        TestedTimeline timeline;
        timeline.ruler()->changeLevel(8, 0.5);
        timeline.setIndicatorPosition(at(day));
        for (const bool on : {true, false}) {
            timeline.setSearchTimeRange(timeAt(4 * day), timeAt(6 * day), false);
            timeline.setResultMode(on);
            QCOMPARE(timeline.stripIsMarkedAt(0.5), !on);
            QCOMPARE(timeline.rulerIsMarked(), !on);
            QCOMPARE(timeline.findChild<Indicator*>()->isVisible(), !on);
        }
    }

    void activity()
    {
        for (const bool active : {true, false}) {
            for (const bool blocked : {true, false}) {
                TestedTimeline timeline;
                timeline.setActive(active, blocked);
                const bool usable = active && !blocked;
                QCOMPARE(timeline.isEnabled(), active);
                QCOMPARE(timeline.zoomer()->isEnabled(), usable);
                QCOMPARE(timeline.timelineScroll()->isEnabled(), usable);
                QSignalSpy clicks(timeline.ruler(), &Ruler::indicatorPositionChanged);
                if (active)
                    QTest::mouseClick(timeline.ruler(), Qt::LeftButton, {}, QPoint(500, 40));
                QCOMPARE(clicks.count(), usable ? 1 : 0);
            }
        }
    }

    void zoneKeepsTheView()
    {
        TestedTimeline timeline;
        timeline.ruler()->changeLevel(4, 0.5);
        timeline.setIndicatorPosition(at(4 * day));
        QSignalSpy view(timeline.ruler(), &Ruler::timeLineViewChanged);
        // Wherever the view is.
        for (const qint64 limit : {qint64(0), 5 * day, -10 * day}) {
            timeline.ruler()->setTimeLimits(at(limit), at(limit + 10 * day));
            timeline.ruler()->onTimelineOffsetChanged((4.0 * day - limit) / (10 * day));
            const quint64 begin = timeline.ruler()->beginTime();
            timeline.setTimeZone(u"UTC"_s);
            view.clear();
            timeline.setTimeZone(u"Asia/Kathmandu"_s);
            QCOMPARE(timeline.ruler()->beginTime(), begin);
            QCOMPARE(view.count(), 1);
            QCOMPARE(view.front().at(3).toDateTime().offsetFromUtc(), 20'700);
        }
    }

    void handAndMouseReachTheParts()
    {
        TestedTimeline timeline;
        for (QWidget* part : QList<QWidget*>{timeline.ruler(), timeline.timelineScroll()}) {
            QSignalSpy held(&timeline, &ZoomTimeline::heldChanged);
            QTest::mousePress(part, Qt::LeftButton, {}, {200, 5});
            QVERIFY(timeline.isHeld());
            QTest::mouseRelease(part, Qt::LeftButton, {}, {200, 5});
            QVERIFY(!timeline.isHeld());
            QCOMPARE(held.count(), 2);
        }
        timeline.ruler()->changeLevel(4, 0.0);
        const auto boxColor = [&] {
            return timeline.strip().pixelColor(40, timeline.strip().height() / 2);
        };
        leaveMouse(*timeline.ruler());
        const QColor idle = boxColor();
        enterMouse(*timeline.ruler());
        QVERIFY(boxColor() != idle);
        leaveMouse(*timeline.ruler());
        QCOMPARE(boxColor(), idle);
    }

    void deletionInSignals()
    {
        using T = TestedTimeline;
        for (const auto& act : std::initializer_list<std::function<void(T&)>>{
                 [](T& t) { t.setTimeLimits(at(day), at(5 * day)); },
                 [](T& t) { t.setIndicatorPosition(at(4 * day)); },
                 [](T& t) {
                     t.setTimeLimitsAndIndicatorPosition(at(day), at(5 * day), at(3 * day));
                 },
                 [](T& t) { t.setTimeZone(u"Asia/Tokyo"_s); },
                 [](T& t) { t.zoomer()->onZoomOutClicked(false); },
                 [](T& t) { t.slider()->setValue(4); },
                 [](T& t) {
                     QTest::mouseClick(t.timelineScroll(), Qt::LeftButton, {}, QPoint(700, 5));
                 },
                 [](T& t) { t.setSearchTimeRange(timeAt(day), timeAt(2 * day), true); },
                 [](T& t) { QTest::mouseClick(t.ruler(), Qt::LeftButton, {}, QPoint(500, 40)); },
             }) {
            QPointer<TestedTimeline> timeline = new TestedTimeline;
            timeline->ruler()->changeLevel(2, 0.0); // which the slider shows
            QObject context;
            connect(timeline->ruler(), &Ruler::timeLineViewChanged, &context,
                    [&] { delete timeline; });
            connect(timeline->ruler(), &Ruler::indicatorPositionChanged, &context,
                    [&] { delete timeline; });
            act(*timeline);
            QVERIFY(!timeline);
        }
    }

    void zoomerParts()
    {
        LoggedZoomer zoomer;
        const std::pair<QWidget*, QString> parts[] = {{zoomer.button(true), u"Zoom in"_s},
                                                      {zoomer.slider(), u"Zoom level"_s},
                                                      {zoomer.button(false), u"Zoom out"_s}};
        for (const auto& [part, name] : parts) {
            QCOMPARE(part->cursor().shape(), Qt::PointingHandCursor);
            QCOMPARE(part->toolTip(), name);
            QCOMPARE(part->accessibleName(), name);
        }
    }

    void zoomerLevels()
    {
        LoggedZoomer zoomer;
        zoomer.onChangeSliderPosition(1);
        QCOMPARE(zoomer.slider()->value(), 0);
        // There is no level below. Level 1 is current already, so only the button reports.
        zoomer.clickIn();
        zoomer.clickOut();
        QCOMPARE(zoomer.takeLog(), QStringList{u"out 1 0.5"_s});
        for (const auto& [level, shown] : {std::pair(2, 2), {99, 8}, {-3, 0}}) {
            zoomer.onChangeSliderPosition(level);
            QCOMPARE(zoomer.slider()->value(), shown);
        }
        for (const Qt::Key key : {Qt::Key_End, Qt::Key_PageDown, Qt::Key_Left, Qt::Key_Home})
            QTest::keyClick(zoomer.slider(), key);
        QCOMPARE(zoomer.takeLog(),
                 (QStringList{u"out 8 0.5"_s, u"in 7 0.5"_s, u"in 6 0.5"_s, u"in 0 0.5"_s}));

        // Buttons report twice.
        zoomer.onChangeSliderPosition(7);
        zoomer.clickOut();
        zoomer.clickOut(); // there is no level 9
        zoomer.clickIn();
        // Also when the receiver refuses at once.
        connect(&zoomer, &Zoomer::zoomerOut, &zoomer, [&] { zoomer.onChangeSliderPosition(7); });
        zoomer.clickOut();
        QCOMPARE(zoomer.takeLog(), (QStringList{u"out 8 0.5"_s, u"out 8 0.5"_s, u"in 7 0.5"_s,
                                                u"in 7 0.5"_s, u"out 8 0.5"_s, u"out 8 0.5"_s}));
        QCOMPARE(zoomer.slider()->value(), 7);
    }

    void zoomerDeletion()
    {
        // Both emissions of a click, a press on the groove, and a key; at once and later.
        for (int i = 0; i < 8; ++i) {
            const int way = 1 + i % 4;
            QPointer<LoggedZoomer> zoomer = new LoggedZoomer;
            zoomer->onChangeSliderPosition(2);
            const QPointer<QSlider> slider = zoomer->slider();
            bool outlives = false;
            int left = way == 2 ? 2 : 1;
            connect(zoomer.data(), &Zoomer::zoomerOut, this, [&] {
                if (--left == 0) {
                    deleteWithin(zoomer, i >= 4);
                    outlives = slider;
                }
            });
            if (way <= 2)
                zoomer->clickOut();
            else if (way == 3)
                QTest::mousePress(slider, Qt::LeftButton, {}, slider->rect().center());
            else
                QTest::keyPress(slider, Qt::Key_End);
            QVERIFY(!zoomer && outlives);
        }
    }
};

QTEST_MAIN(TestZoomTimeline)
#include "tst_zoomtimeline.moc"
