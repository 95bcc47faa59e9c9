// SPDX-License-Identifier: MIT
// One user's way over the whole timeline, as its window hears of mouse and keys.

#include "indicator.h"
#include "loggedruler.h"
#include "testsupport.h"

#include <CorvelGui/RulerMarkerButton>
#include <CorvelGui/TimelineScroll>
#include <CorvelGui/ZoomTimeline>

#include <QWindow>

using namespace CorvelGui;

namespace {

/// Qt finds the widget under it, and the one that holds the mouse.
class Hand
{
public:
    void moveTo(const QWidget* widget, QPoint position)
    {
        m_window = widget->window()->windowHandle();
        m_position = widget->mapTo(widget->window(), position);
        QTest::mouseMove(m_window, m_position);
    }
    void press() const { QTest::mousePress(m_window, Qt::LeftButton, {}, m_position); }
    void release() const { QTest::mouseRelease(m_window, Qt::LeftButton, {}, m_position); }
    void click() const { QTest::mouseClick(m_window, Qt::LeftButton, {}, m_position); }
    void doubleClick() const { QTest::mouseDClick(m_window, Qt::LeftButton, {}, m_position); }
    void strike(Qt::Key key) const { QTest::keyClick(m_window, key); }

private:
    QWindow* m_window = nullptr;
    QPoint m_position;
};

} // namespace

class TestTimelineJourney : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void journey()
    {
        ZoomTimeline timeline;
        Ruler* ruler = timeline.ruler();
        timeline.resize(1024, timeline.minimumSizeHint().height());
        timeline.move(50, 50);
        timeline.show();
        QVERIFY(QTest::qWaitForWindowExposed(&timeline));
        timeline.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&timeline));
        timeline.setTimeZone(u"UTC"_s);
        timeline.setActive(true, false);
        timeline.setTimeLimits(at(0), at(10 * day));
        ruler->changeLevel(4, 0.0);
        ruler->setIndicatorDragEnabled(true);
        ruler->setPreviewEnabled(true);
        ruler->onAddMarkers({{.time = timeAt(15 * hour)}});

        QSignalSpy placed(ruler, &Ruler::indicatorPositionChanged);
        QSignalSpy jumped(ruler, &Ruler::jumpToTime);
        QSignalSpy previewed(ruler, &Ruler::previewPositionChanged);
        Hand hand;
        const auto timeAtX = [ruler](int x) {
            return qint64(ruler->beginTime()) + qint64((x - 10) / ruler->lengthPerMillisecond());
        };
        const int pixel = int(day / 1000);

        // Zoom in at the pointer: what is under it stays close, as the anchor is a fraction of the
        // whole width.
        const QPoint anchor(600, 40);
        const qint64 underAnchor = timeAtX(anchor.x());
        hand.moveTo(ruler, anchor);
        turnWheel(ruler, anchor, {0, 120});
        QTRY_COMPARE(ruler->level(), 3);
        QVERIFY(qAbs(timeAtX(anchor.x()) - underAnchor) <= 5 * pixel);

        // Drag the view: the time under the hand follows it.
        const qint64 underHand = timeAtX(anchor.x());
        hand.press();
        hand.moveTo(ruler, QPoint(560, 40));
        hand.moveTo(ruler, QPoint(500, 40));
        hand.release();
        QTRY_VERIFY(qAbs(timeAtX(500) - underHand) <= pixel);
        QCOMPARE(placed.count(), 0);

        // A click places the indicator and gives the ruler the keyboard.
        hand.moveTo(ruler, QPoint(400, 40));
        hand.click();
        QTRY_COMPARE(placed.count(), 1);
        QTRY_VERIFY(ruler->hasFocus());
        const quint64 clicked = ruler->getIndicatorMSecs();
        QVERIFY(qAbs(qint64(clicked) - timeAtX(400)) <= pixel);

        // A minor division is 10 minutes here.
        hand.strike(Qt::Key_Right);
        QTRY_COMPARE(ruler->getIndicatorMSecs(), clicked + quint64(10 * minute));

        // Drag the indicator by its label.
        auto* indicator = ruler->findChild<Indicator*>();
        hand.moveTo(indicator, QPoint(indicator->hotSpot(), 5));
        hand.press();
        const int target = indicator->x() + indicator->hotSpot() + 120;
        hand.moveTo(ruler, QPoint(target - 40, 5));
        hand.moveTo(ruler, QPoint(target, 5));
        hand.release();
        QTRY_VERIFY(qAbs(qint64(ruler->getIndicatorMSecs()) - timeAtX(target)) <= pixel);
        QVERIFY(placed.count() >= 3);

        // Rest on the header: a preview is asked for.
        previewed.clear();
        hand.moveTo(ruler, QPoint(300, 5));
        hand.moveTo(ruler, QPoint(302, 5));
        QTRY_VERIFY(!previewed.isEmpty() && previewed.last().at(0).toULongLong() != 0);

        // Hold the right arrow: steps come by themselves, and end with the release.
        const quint64 before = ruler->beginTime();
        hand.moveTo(ruler->childAt(ruler->width() - 3, 30), QPoint(2, 10));
        hand.press();
        QTRY_VERIFY(ruler->beginTime() >= before + 3 * 30 * minute);
        hand.release();
        QTRY_VERIFY(!ruler->isHeld());

        // Click a marker.
        hand.strike(Qt::Key_Home);
        QTRY_COMPARE(ruler->beginTime(), at(0));
        ruler->changeLevel(4, 0.0);
        auto* marker = ruler->findChild<RulerMarkerButton*>();
        QVERIFY(marker && marker->isVisible());
        hand.moveTo(marker, marker->rect().center());
        jumped.clear();
        hand.click();
        QTRY_COMPARE(jumped.count(), 1);
        QCOMPARE(jumped.front().front().toDateTime(), timeAt(15 * hour));

        // Double-click it, while the client lets the indicator follow the first click.
        QSignalSpy jumpedOnTrack(ruler, &Ruler::jumpToTrackTime);
        connect(ruler, &Ruler::jumpToTime, &timeline, [&timeline](const QDateTime& time) {
            timeline.setIndicatorPosition(quint64(time.toMSecsSinceEpoch()));
        });
        hand.doubleClick();
        QTRY_COMPARE(jumpedOnTrack.count(), 1);

        // Page the strip.
        TimelineScroll* strip = timeline.timelineScroll();
        hand.moveTo(strip, QPoint(strip->width() - 20, strip->height() / 2));
        hand.click();
        QTRY_VERIFY(ruler->beginTime() > at(20 * hour));
    }
};

QTEST_MAIN(TestTimelineJourney)
#include "tst_timelinejourney.moc"
