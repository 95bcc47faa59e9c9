#include "base/whilealive.h"
#include "indicator.h"
#include "loggedruler.h"
#include "testsupport.h"

#include <QAccessible>
#include <QPointer>
#include <QSignalSpy>
#include <QTimer>
#include <QWheelEvent>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

namespace {

using Act = std::function<void(LoggedRuler&)>;

void wheel(QWidget& widget, int angle)
{
    const QPointF position(255, 30);
    QWheelEvent event(position, widget.mapToGlobal(position), {}, QPoint(0, angle), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
    QVERIFY(event.isAccepted());
}

void pressRightArrow(LoggedRuler& ruler)
{
    QTest::mousePress(ruler.childAt(1017, 30), Qt::LeftButton);
}

void send(QWidget& widget, QEvent::Type type)
{
    QEvent event(type);
    QApplication::sendEvent(&widget, &event);
}

/// The place on the indicator that is at column @p x of the ruler.
QPoint inIndicator(const LoggedRuler& ruler, int x)
{
    return ruler.findChild<Indicator*>()->mapFrom(&ruler, QPoint(x, 5));
}

void pressIndicator(LoggedRuler& ruler)
{
    auto* indicator = ruler.findChild<Indicator*>();
    QTest::mousePress(indicator, Qt::LeftButton, {}, QPoint(indicator->hotSpot(), 5));
}

void dragIndicatorTo(LoggedRuler& ruler, int x)
{
    moveMouse(*ruler.findChild<Indicator*>(), inIndicator(ruler, x), Qt::LeftButton);
}

/// The ruler's timers that run.
int runningTimers(const Ruler& ruler)
{
    int count = 0;
    for (const QTimer* timer : ruler.findChildren<QTimer*>())
        count += timer->isActive();
    return count;
}

} // namespace

class TestRulerInput : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void clicks();
    void drags();
    void wheelSteps();
    void indicatorDrag();
    void previewComesAndGoes();
    void previewNeedsItsArea();
    void previewLineReports();
    void blockedRulerIgnoresInput();
    void keys();
    void lostReleases();
    void quickPresses();
    void arrows();
    void fingers();
    void assistiveTechnology();
    void deletionInSignals();
};

void TestRulerInput::clicks()
{
    const std::pair<int, QStringList> cases[] = {{510, {u"indicator 1800"_s}},
                                                 {10, {}}, // on the margin
                                                 {11, {u"indicator 3"_s}},
                                                 {1009, {u"indicator 3596"_s}},
                                                 {1010, {}}};
    for (const auto& [x, log] : cases) {
        LoggedRuler ruler;
        QCOMPARE(ruler.click(x, Qt::RightButton), QStringList());
        QCOMPARE(ruler.click(x), log);
        const auto* indicator = ruler.findChild<Indicator*>();
        if (!log.isEmpty())
            QCOMPARE(indicator->x() + indicator->hotSpot(), x);
        ruler.setResultMode(true);
        QCOMPARE(ruler.click(x - 100), QStringList());
        ruler.setResultMode(false);
        // Beyond the limits there is nothing to click on.
        ruler.onTimelineOffsetChanged(1.5);
        ruler.takeLog();
        QCOMPARE(ruler.click(x), QStringList());
    }
}

void TestRulerInput::drags()
{
    LoggedRuler ruler;
    ruler.onTimelineOffsetChanged(0.5);
    const quint64 start = ruler.beginTime();
    ruler.takeLog();
    ruler.press(600);
    ruler.dragTo(500);
    QCOMPARE(ruler.beginTime(), start + 360'000);
    ruler.dragTo(500, 40);
    ruler.dragTo(610);
    QCOMPARE(ruler.beginTime(), start - 36'000);
    ruler.release(610);
    QCOMPARE(ruler.takeLog(),
             (QStringList{u"no preview"_s, u"center 0.5004"_s, u"view 06 23:35 - 07 00:36 moving"_s,
                          u"center 0.5"_s, u"view 06 23:28 - 07 00:29 moving"_s,
                          u"view 06 23:28 - 07 00:29"_s}));
    QCOMPARE(ruler.getIndicatorMSecs(), at(0));

    // The view stays within the limits.
    ruler.onTimelineOffsetChanged(0.5 / 240);
    ruler.press(100);
    ruler.dragTo(900);
    QCOMPARE(ruler.beginTime(), at(0));
    ruler.release(900);
    ruler.onTimelineOffsetChanged(1.0);
    ruler.press(510);
    ruler.dragTo(500);
    QCOMPARE(ruler.endTime(), at(10 * day));
    ruler.release(500);

    // A short way is a click.
    ruler.onTimelineOffsetChanged(0.5 / 240);
    ruler.takeLog();
    ruler.press(500);
    ruler.dragTo(500 + QApplication::startDragDistance() - 1, 55);
    ruler.release(510);
    QCOMPARE(ruler.takeLog(), QStringList{u"indicator 1800"_s});
}

void TestRulerInput::wheelSteps()
{
    // The time under the mouse stays there.
    const QStringList in{u"level 0"_s, u"center 0.4993"_s, u"view 06 23:39 - 06 23:59"_s,
                         u"level 0"_s};
    const QStringList out{u"level 1"_s, u"center 0.5007"_s, u"view 06 23:39 - 07 00:40"_s,
                          u"level 1"_s};
    const struct
    {
        int level, angle;
        QStringList log;
    } cases[] = {{1, 120, in},
                 {1, 1200, in}, // many notches at once are one step
                 {0, 120, {u"level 0"_s}},
                 {0, -120, out},
                 {8, -120, {u"level 8"_s}},
                 {1, 3, {}}}; // less than a degree
    for (const auto& turn : cases) {
        LoggedRuler ruler;
        ruler.changeLevel(turn.level, 0.5);
        ruler.onTimelineOffsetChanged(0.5);
        ruler.takeLog();
        wheel(ruler, turn.angle);
        QCOMPARE(ruler.takeLog(), turn.log);
    }
}

void TestRulerInput::indicatorDrag()
{
    for (const bool reportsMoves : {false, true}) {
        LoggedRuler ruler;
        auto* indicator = ruler.findChild<Indicator*>();
        ruler.setIndicatorDragEnabled(reportsMoves);
        ruler.setIndicatorPosition(at(30 * minute));
        const auto inIndicator = [&](int x) {
            return indicator->mapFrom(&ruler, QPoint(x, 5));
        };
        QTest::mousePress(indicator, Qt::LeftButton, {}, inIndicator(510));
        // While it is dragged it is the user's alone.
        QVERIFY(ruler.setIndicatorPosition(at(40 * minute)));
        QCOMPARE(ruler.getIndicatorMSecs(), at(30 * minute));
        moveMouse(*indicator, inIndicator(610), Qt::LeftButton);
        QCOMPARE(ruler.getIndicatorMSecs(), at(36 * minute));
        // Outside the scale the indicator waits; at the end it goes to the nearest place.
        moveMouse(*indicator, inIndicator(1015), Qt::LeftButton);
        QCOMPARE(ruler.getIndicatorMSecs(), at(36 * minute));
        QTest::mouseRelease(indicator, Qt::LeftButton, {}, inIndicator(1300));
        QStringList log{u"no preview"_s, u"no preview"_s, u"indicator 3600"_s};
        if (reportsMoves)
            log.prepend(u"indicator 2160"_s);
        QCOMPARE(ruler.takeLog(), log);
        QCOMPARE(ruler.beginTime(), at(0));
        QVERIFY(ruler.setIndicatorPosition(at(40 * minute)));
        QCOMPARE(ruler.getIndicatorMSecs(), at(40 * minute));
    }
}

void TestRulerInput::previewComesAndGoes()
{
    LoggedRuler ruler;
    ruler.setPreviewEnabled(true);
    moveMouse(ruler, QPoint(510, 5));
    QTRY_COMPARE(ruler.log, QStringList{u"preview 1800 at 510"_s});
    ruler.takeLog();
    ruler.onPreviewVisible(true, false);
    moveMouse(ruler, QPoint(610, 5));
    QTRY_COMPARE(ruler.log, QStringList{u"preview 2160 at 610"_s});
    ruler.takeLog();

    // Nothing moves, so nothing is asked for; leaving ends it.
    QSignalSpy spy(&ruler, &Ruler::previewPositionChanged);
    QVERIFY(!spy.wait(350));
    leaveMouse(ruler);
    // Not yet: a client may not delete anything while Qt tells of the leaving.
    QCOMPARE(ruler.log, QStringList());
    QTRY_COMPARE(ruler.log, QStringList{u"no preview"_s});
    QCOMPARE(runningTimers(ruler), 0);
}

void TestRulerInput::previewNeedsItsArea()
{
    LoggedRuler ruler;
    const int lowest = ruler.height() / 4 * 2;
    leaveMouse(ruler);
    ruler.takeLog();
    ruler.setPreviewEnabled(true);
    moveMouse(ruler, QPoint(510, lowest + 1));
    QCOMPARE(ruler.takeLog(), QStringList());
    moveMouse(ruler, QPoint(510, lowest));
    moveMouse(ruler, QPoint(510, lowest + 1));
    QCOMPARE(ruler.takeLog(), QStringList{u"no preview"_s});

    ruler.setPreviewEnabled(false);
    ruler.takeLog();
    moveMouse(ruler, QPoint(510, 5));
    leaveMouse(ruler);
    QTRY_COMPARE(ruler.log, QStringList{u"no preview"_s});
}

void TestRulerInput::previewLineReports()
{
    LoggedRuler ruler;
    ruler.setPreviewIndicatorPosition(at(30 * minute));
    QCOMPARE(ruler.log, QStringList());
    QTRY_COMPARE(ruler.log, QStringList{u"line 510,-1"_s});
    ruler.takeLog();
    ruler.setPreviewIndicatorPosition(at(5 * day));
    QTRY_COMPARE(ruler.log, QStringList{u"line 1015,-1"_s});
    ruler.takeLog();

    // The column at which the last preview was asked for is known already.
    ruler.setPreviewEnabled(true);
    moveMouse(ruler, QPoint(510, 5));
    QTRY_COMPARE(ruler.log, QStringList{u"preview 1800 at 510"_s});
    ruler.takeLog();
    ruler.setPreviewIndicatorPosition(at(30 * minute));
    ruler.setPreviewIndicatorPosition(0);
    QCoreApplication::processEvents();
    QCOMPARE(ruler.takeLog(), QStringList());
}

void TestRulerInput::blockedRulerIgnoresInput()
{
    LoggedRuler ruler;
    ruler.setPreviewEnabled(true);
    ruler.setActive(true, true);
    ruler.takeLog();
    QCOMPARE(ruler.click(510), QStringList());
    ruler.press(510);
    ruler.dragTo(300);
    ruler.release(300);
    wheel(ruler, 120);
    QTest::keyClick(&ruler, Qt::Key_Right);
    moveMouse(ruler, QPoint(300, 5));
    QCOMPARE(ruler.takeLog(), QStringList());
    QCOMPARE(ruler.beginTime(), at(0));
}

void TestRulerInput::keys()
{
    // One hour from 5:00 in view with ticks every 5 minutes, the indicator at 5:30.
    const std::pair<QString, QStringList> cases[] = {
        {u"Right"_s, {u"indicator 19860"_s}},
        {u"Left"_s, {u"indicator 19740"_s}},
        {u"Shift+Right"_s, {u"indicator 20100"_s}},
        {u"Shift+Left"_s, {u"indicator 19500"_s}},
        {u"Home"_s, {u"center 0.002083"_s, u"view 02 00:00 - 02 01:00"_s, u"indicator 0"_s}},
        {u"End"_s, {u"center 0.9979"_s, u"view 11 22:59 - 12 00:00"_s, u"indicator 864000"_s}},
        {u"PgUp"_s, {u"center 0.01875"_s, u"view 02 03:59 - 02 05:00"_s}},
        {u"PgDown"_s, {u"center 0.02708"_s, u"view 02 05:59 - 02 07:00"_s}},
        {u"+"_s, {u"level 0"_s, u"center 0.02291"_s, u"view 02 05:19 - 02 05:39"_s}},
        {u"-"_s, {u"level 2"_s, u"center 0.02292"_s, u"view 02 03:58 - 02 07:00"_s}},
        {u"Ctrl+0"_s, {u"level 8"_s, u"center 0.5"_s, u"view 02 00:00 - 12 00:00"_s}},
        {u"N"_s, {u"indicator 19920"_s, u"jump 02 05:32"_s}},
        {u"P"_s,
         {u"center 0.01458"_s, u"view 02 02:59 - 02 04:00"_s, u"indicator 10800"_s,
          u"jump 02 03:00"_s}},
        {u"X"_s, {}},
    };
    for (const auto& [keys, log] : cases) {
        LoggedRuler ruler;
        ruler.onAddMarkers({{.time = timeAt(3 * hour)}, {.time = timeAt(332 * minute)}});
        ruler.onTimelineOffsetChanged(5.5 / 240);
        ruler.setIndicatorPosition(at(330 * minute));
        ruler.takeLog();
        const QKeyCombination key = QKeySequence(keys)[0];
        QTest::keyClick(&ruler, key.key(), key.keyboardModifiers());
        // What comes into view is reported in between.
        ruler.log.removeIf([](const QString& line) { return line.startsWith(u"new"); });
        QCOMPARE(ruler.takeLog(), log);
    }
    // Outside the limits, three at one instant, and on both sides of a range.
    for (const bool onlyInside : {false, true}) {
        LoggedRuler ruler;
        for (const qint64 time : {-hour, hour, hour, hour, 3 * hour, 5 * hour, 11 * day})
            ruler.onAddMarkers({{.time = timeAt(time)}});
        ruler.setResultTimeRange(timeAt(2 * hour), timeAt(4 * hour), false, false, onlyInside,
                                 false);
        ruler.setIndicatorPosition(0);
        for (const Qt::Key key : {Qt::Key_N, Qt::Key_P})
            for (int i = 0; i < 9; ++i)
                QTest::keyClick(&ruler, key);
        ruler.log.removeIf([](const QString& line) { return !line.startsWith(u"jump"); });
        for (QString& line : ruler.log)
            line = line.right(5);
        QCOMPARE(ruler.takeLog().join(u' '),
                 onlyInside ? u"03:00"_s
                            : u"01:00 01:00 01:00 03:00 05:00 03:00 01:00 01:00 01:00"_s);
    }
    LoggedRuler atBegin;
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_PageUp, Qt::Key_P, Qt::Key_N})
        QTest::keyClick(&atBegin, key);
    QCOMPARE(atBegin.takeLog(), QStringList());
    for (int i = 0; i < 500; ++i)
        QTest::keyClick(&atBegin, Qt::Key_PageDown);
    QCOMPARE(atBegin.endTime(), at(10 * day));
}

void TestRulerInput::lostReleases()
{
    const struct
    {
        QString name;
        Act begin, go;
        QStringList end;
    } gestures[] = {
        {u"press"_s,
         [](LoggedRuler& ruler) { ruler.press(600); },
         [](LoggedRuler& ruler) { ruler.dragTo(500); },
         {}},
        {u"view drag"_s,
         [](LoggedRuler& ruler) { ruler.press(600), ruler.dragTo(500); },
         [](LoggedRuler& ruler) { ruler.dragTo(400); },
         {u"view 06 23:35 - 07 00:36"_s}},
        {u"indicator drag"_s,
         [](LoggedRuler& ruler) {
             pressIndicator(ruler);
             dragIndicatorTo(ruler, 610);
         },
         [](LoggedRuler& ruler) { dragIndicatorTo(ruler, 710); },
         {u"indicator 432360"_s}},
        {u"arrow"_s, pressRightArrow, [](LoggedRuler&) {}, {u"view 06 23:34 - 07 00:35"_s}},
    };
    const struct
    {
        QString name;
        Act act;
        bool endsPreview;
    } losses[] = {
        {u"move"_s, [](LoggedRuler& ruler) { moveMouse(ruler, QPoint(300, 5)); }, false},
        {u"hide"_s, [](LoggedRuler& ruler) { ruler.hide(); }, true},
        {u"block"_s, [](LoggedRuler& ruler) { ruler.setActive(true, true); }, true},
        {u"deactivate"_s, [](LoggedRuler& ruler) { ruler.setActive(false, false); }, true},
        {u"disable"_s, [](LoggedRuler& ruler) { ruler.setEnabled(false); }, true},
        {u"other window"_s, [](LoggedRuler& ruler) { send(ruler, QEvent::WindowDeactivate); },
         false},
        {u"modal window"_s, [](LoggedRuler& ruler) { send(ruler, QEvent::WindowBlocked); }, true},
        {u"popup"_s,
         [](LoggedRuler& ruler) {
             QFocusEvent event(QEvent::FocusOut, Qt::PopupFocusReason);
             QApplication::sendEvent(&ruler, &event);
         },
         false},
    };
    for (const auto& gesture : gestures) {
        for (const auto& loss : losses) {
            LoggedRuler ruler;
            ruler.onTimelineOffsetChanged(0.5);
            ruler.setIndicatorPosition(at(5 * day));
            ruler.setPreviewEnabled(true);
            moveMouse(ruler, QPoint(510, 5));
            connect(&ruler, &Ruler::heldChanged, &ruler, [&ruler](bool held) {
                ruler.log << (held ? u"held"_s : u"free"_s);
                QCOMPARE(ruler.isHeld(), held);
            });
            ruler.takeLog();
            gesture.begin(ruler);
            QCOMPARE(ruler.log.front(), u"held"_s);
            ruler.takeLog();
            loss.act(ruler);
            QVERIFY(!ruler.isHeld());
            QTRY_VERIFY(ruler.log.contains(u"free"_s));
            QStringList log = gesture.end + QStringList{u"free"_s};
            if (loss.endsPreview && gesture.name != u"view drag")
                log << u"no preview"_s; // which a drag of the view has said at its beginning
            const QString name = gesture.name + u", "_s + loss.name + u": "_s;
            QCOMPARE(name + ruler.takeLog().join(u'|'), name + log.join(u'|'));

            // The hand that moves on moves nothing.
            const quint64 begin = ruler.beginTime();
            const quint64 indicator = ruler.getIndicatorMSecs();
            gesture.go(ruler);
            QCOMPARE(ruler.beginTime(), begin);
            QCOMPARE(ruler.getIndicatorMSecs(), indicator);
            QVERIFY(ruler.setIndicatorPosition(at(5 * day + 10 * minute)));
            QCOMPARE(ruler.getIndicatorMSecs(), at(5 * day + 10 * minute));
        }
    }
}

void TestRulerInput::quickPresses()
{
    LoggedRuler ruler;
    auto* indicator = ruler.findChild<Indicator*>();
    ruler.click(510);
    pressAgain(*indicator, inIndicator(ruler, 510));
    dragIndicatorTo(ruler, 610);
    QCOMPARE(ruler.getIndicatorMSecs(), at(36 * minute));
    QTest::mouseRelease(indicator, Qt::LeftButton, {}, inIndicator(ruler, 610));

    ruler.takeLog();
    QWidget* arrow = ruler.childAt(1017, 30);
    pressAgain(*arrow, QPoint(2, 10));
    QTest::mouseRelease(arrow, Qt::LeftButton);
    QTest::mousePress(arrow, Qt::RightButton);
    QTest::mouseRelease(arrow, Qt::RightButton);
    QCOMPARE(ruler.takeLog(),
             (QStringList{u"center 0.002431"_s, u"view 02 00:04 - 02 01:05 moving"_s,
                          u"view 02 00:04 - 02 01:05"_s}));
}

void TestRulerInput::arrows()
{
    LoggedRuler ruler;
    QWidget* left = ruler.childAt(2, 30);
    QWidget* right = ruler.childAt(1017, 30);
    QCOMPARE(left->accessibleName(), u"Earlier"_s);
    QCOMPARE(right->accessibleName(), u"Later"_s);
    pressByAssistiveTechnology(left);
    pressByAssistiveTechnology(right);
    const QStringList step{u"center 0.002431"_s, u"view 02 00:04 - 02 01:05 moving"_s,
                           u"view 02 00:04 - 02 01:05"_s};
    QTRY_COMPARE(ruler.log, step);
}

void TestRulerInput::fingers()
{
    const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
    const auto touch = [&](Ruler& ruler) {
        return QTest::touchEvent(ruler.windowHandle(), screen.get(), false);
    };
    for (const bool pinch : {false, true}) {
        LoggedRuler ruler;
        ruler.onTimelineOffsetChanged(0.5);
        const quint64 begin = ruler.beginTime();
        ruler.takeLog();
        touch(ruler).press(0, QPoint(600, 30)).commit();
        if (pinch)
            touch(ruler).stationary(0).press(1, QPoint(400, 30)).commit();
        touch(ruler).move(0, QPoint(700, 30)).commit();
        QCOMPARE(ruler.beginTime() != begin, !pinch);
        touch(ruler).release(0, QPoint(700, 30)).commit();
        QVERIFY(!ruler.isHeld());
        QCOMPARE(ruler.getIndicatorMSecs(), at(0));
    }
}

void TestRulerInput::assistiveTechnology()
{
    LoggedRuler ruler;
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&ruler);
    QVERIFY(accessible);
    QCOMPARE(accessible->role(), QAccessible::Slider);
    QCOMPARE(accessible->text(QAccessible::Name), u"Timeline"_s);
    QAccessibleValueInterface* value = accessible->valueInterface();
    QVERIFY(value);
    QCOMPARE(value->minimumValue().toDouble(), double(at(0)));
    QCOMPARE(value->maximumValue().toDouble(), double(at(10 * day)));
    QCOMPARE(value->minimumStepSize().toDouble(), double(minute));

    ruler.setIndicatorPosition(at(90 * minute));
    QCOMPARE(value->currentValue().toDouble(), double(at(90 * minute)));
    QVERIFY(accessible->text(QAccessible::Value).contains(u"1:30"_s));
    value->setCurrentValue(double(at(100 * minute)));
    QVERIFY(ruler.takeLog().contains(u"indicator 6000"_s));
    ruler.setIndicatorPosition(0);
    QCOMPARE(accessible->text(QAccessible::Value), u"No position"_s);
}

void TestRulerInput::deletionInSignals()
{
    const std::vector<Act> acts{
        [](LoggedRuler& ruler) { ruler.setTimeLimits(at(day), at(9 * day)); },
        [](LoggedRuler& ruler) { ruler.changeLevel(3, 0.5); },
        [](LoggedRuler& ruler) { ruler.onZoomerOut(1, 0.5), ruler.changeLevel(8, 0.5); },
        [](LoggedRuler& ruler) { ruler.setIndicatorPosition(at(5 * day)); },
        [](LoggedRuler& ruler) {
            whileAlive(
                &ruler, [&] { ruler.press(510); }, [&] { ruler.release(510); });
        },
        [](LoggedRuler& ruler) { wheel(ruler, -120); },
        [](LoggedRuler& ruler) { QTest::keyClick(&ruler, Qt::Key_End); },
        pressRightArrow,
        [](LoggedRuler& ruler) {
            whileAlive(
                &ruler, [&] { ruler.press(600); }, [&] { ruler.dragTo(300); },
                [&] { ruler.release(300); });
        },
        [](LoggedRuler& ruler) {
            whileAlive(
                &ruler, [&] { pressRightArrow(ruler); }, [&] { ruler.hide(); },
                [] { QCoreApplication::processEvents(); });
        },
        [](LoggedRuler& ruler) { ruler.onAddMarkers({{.time = timeAt(minute)}}); },
        [](LoggedRuler& ruler) {
            ruler.setResultTimeRange(timeAt(day), timeAt(2 * day), true, true, true, true);
        },
        [](LoggedRuler& ruler) {
            leaveMouse(ruler);
            QCoreApplication::processEvents();
        },
    };
    for (const Act& act : acts) {
        // Whatever signal comes first, second and so on deletes the ruler.
        for (int survived = 0; survived < 6; ++survived) {
            QPointer<LoggedRuler> ruler = new LoggedRuler;
            int count = 0;
            const auto mayDelete = [&] {
                if (count++ == survived)
                    delete ruler;
            };
            QObject context;
            connect(ruler, &Ruler::changeSliderZoom, &context, mayDelete);
            connect(ruler, &Ruler::centerPositionChanged, &context, mayDelete);
            connect(ruler, &Ruler::timeLineViewChanged, &context, mayDelete);
            connect(ruler, &Ruler::indicatorPositionChanged, &context, mayDelete);
            connect(ruler, &Ruler::heldChanged, &context, mayDelete);
            connect(ruler, &Ruler::newVisibleRulerMarkers, &context, mayDelete);
            connect(ruler, &Ruler::previewPositionChanged, &context, mayDelete);
            act(*ruler);
            QVERIFY(count > 0);
            QCOMPARE(ruler.isNull(), count > survived);
            delete ruler;
        }
    }
}

QTEST_MAIN(TestRulerInput)
#include "tst_rulerinput.moc"
