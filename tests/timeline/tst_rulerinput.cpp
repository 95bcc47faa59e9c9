#include "indicator.h"
#include "loggedruler.h"
#include "testsupport.h"

#include <QAccessible>
#include <QApplication>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

namespace {

void wheel(QWidget& widget, QPointF position, QPoint angle)
{
    QWheelEvent event(position, widget.mapToGlobal(position), {}, angle, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
    QVERIFY(event.isAccepted());
}

void move(QWidget& widget, QPoint position, Qt::MouseButtons buttons = {})
{
    QMouseEvent event(QEvent::MouseMove, position, widget.mapToGlobal(position), Qt::NoButton,
                      buttons, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

void leave(QWidget& widget)
{
    QEvent event(QEvent::Leave);
    QApplication::sendEvent(&widget, &event);
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
    void init();
    void cleanup();
    void clicks_data();
    void clicks();
    void clickInResultMode();
    void dragsFollowTheMouse();
    void dragsStayWithinLimits();
    void shortMovesAreClicks();
    void wheelSteps_data();
    void wheelSteps();
    void indicatorDrag_data();
    void indicatorDrag();
    void draggedIndicatorIsTheUsers();
    void previewComesAndGoes();
    void previewNeedsItsArea();
    void previewLineReports();
    void blockedRulerIgnoresInput();
    void keys_data();
    void keys();
    void keysReachTheLimits();
    void timersNeedAVisibleActiveRuler_data();
    void timersNeedAVisibleActiveRuler();
    void assistiveTechnology();
    void deletionInSignals_data();
    void deletionInSignals();

private:
    /// Ten days from Monday with one hour in view: 3.6 seconds a pixel.
    std::unique_ptr<LoggedRuler> m_ruler;
};

void TestRulerInput::init()
{
    WarningFreeTest::init();
    m_ruler = std::make_unique<LoggedRuler>();
    // A new window gets an enter event for wherever the mouse is.
    QVERIFY(QTest::qWaitForWindowExposed(m_ruler.get()));
    QCoreApplication::processEvents();
    m_ruler->setTimeLimits(at(0), at(10 * day));
    m_ruler->takeLog();
}

void TestRulerInput::cleanup()
{
    m_ruler.reset();
}

void TestRulerInput::clicks_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<QStringList>("log");

    QTest::newRow("in the middle") << 510 << QStringList{u"indicator 1800"_s};
    QTest::newRow("on the margin") << 10 << QStringList();
    QTest::newRow("first pixel") << 11 << QStringList{u"indicator 3"_s};
    QTest::newRow("last pixel") << 1009 << QStringList{u"indicator 3596"_s};
    QTest::newRow("behind it") << 1010 << QStringList();
}

void TestRulerInput::clicks()
{
    QFETCH(int, x);
    QFETCH(QStringList, log);

    QTest::mouseClick(m_ruler.get(), Qt::RightButton, {}, QPoint(x, 30));
    QCOMPARE(m_ruler->takeLog(), QStringList());
    QTest::mouseClick(m_ruler.get(), Qt::LeftButton, {}, QPoint(x, 30));
    QCOMPARE(m_ruler->takeLog(), log);
    const auto* indicator = m_ruler->findChild<Indicator*>();
    if (!log.isEmpty())
        QCOMPARE(indicator->x() + indicator->hotSpot(), x);

    // Beyond the limits there is nothing to click on.
    m_ruler->onTimelineOffsetChanged(1.5);
    m_ruler->takeLog();
    QTest::mouseClick(m_ruler.get(), Qt::LeftButton, {}, QPoint(x, 30));
    QCOMPARE(m_ruler->takeLog(), QStringList());
}

void TestRulerInput::clickInResultMode()
{
    m_ruler->setResultMode(true);
    QTest::mouseClick(m_ruler.get(), Qt::LeftButton, {}, QPoint(510, 30));
    QCOMPARE(m_ruler->takeLog(), QStringList());
    QCOMPARE(m_ruler->getIndicatorMSecs(), at(0));
}

void TestRulerInput::dragsFollowTheMouse()
{
    m_ruler->onTimelineOffsetChanged(0.5);
    const quint64 start = m_ruler->beginTime();
    m_ruler->takeLog();

    QTest::mousePress(m_ruler.get(), Qt::LeftButton, {}, QPoint(600, 30));
    move(*m_ruler, QPoint(500, 30), Qt::LeftButton);
    QCOMPARE(m_ruler->beginTime(), start + 360'000);
    move(*m_ruler, QPoint(500, 40), Qt::LeftButton);
    move(*m_ruler, QPoint(610, 30), Qt::LeftButton);
    QCOMPARE(m_ruler->beginTime(), start - 36'000);
    QTest::mouseRelease(m_ruler.get(), Qt::LeftButton, {}, QPoint(610, 30));

    QCOMPARE(m_ruler->takeLog(),
             (QStringList{u"no preview"_s, u"center 0.5004"_s, u"view 06 23:35 - 07 00:36 moving"_s,
                          u"center 0.5"_s, u"view 06 23:28 - 07 00:29 moving"_s,
                          u"view 06 23:28 - 07 00:29"_s}));
    QCOMPARE(m_ruler->getIndicatorMSecs(), at(0));
}

void TestRulerInput::dragsStayWithinLimits()
{
    QTest::mousePress(m_ruler.get(), Qt::LeftButton, {}, QPoint(100, 30));
    move(*m_ruler, QPoint(900, 30), Qt::LeftButton);
    QCOMPARE(m_ruler->beginTime(), at(0));
    QTest::mouseRelease(m_ruler.get(), Qt::LeftButton, {}, QPoint(900, 30));

    m_ruler->onTimelineOffsetChanged(1.0);
    QTest::mousePress(m_ruler.get(), Qt::LeftButton, {}, QPoint(510, 30));
    move(*m_ruler, QPoint(500, 30), Qt::LeftButton);
    QCOMPARE(m_ruler->endTime(), at(10 * day));
}

void TestRulerInput::shortMovesAreClicks()
{
    const int distance = QApplication::startDragDistance();
    QTest::mousePress(m_ruler.get(), Qt::LeftButton, {}, QPoint(500, 30));
    move(*m_ruler, QPoint(500 + distance - 1, 55), Qt::LeftButton);
    QTest::mouseRelease(m_ruler.get(), Qt::LeftButton, {}, QPoint(510, 30));
    QCOMPARE(m_ruler->takeLog(), QStringList{u"indicator 1800"_s});
}

void TestRulerInput::wheelSteps_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QPoint>("angle");
    QTest::addColumn<QStringList>("log");

    QTest::newRow("in") << 1 << QPoint(0, 120)
                        << QStringList{u"level 0"_s, u"center 0.5001"_s,
                                       u"view 06 23:59 - 07 00:20"_s, u"level 0"_s};
    QTest::newRow("many notches at once are one step")
        << 1 << QPoint(0, 1200)
        << QStringList{u"level 0"_s, u"center 0.5001"_s, u"view 06 23:59 - 07 00:20"_s,
                       u"level 0"_s};
    QTest::newRow("in at the closest") << 0 << QPoint(0, 120) << QStringList{u"level 0"_s};
    QTest::newRow("out") << 0 << QPoint(0, -120)
                         << QStringList{u"level 1"_s, u"center 0.4988"_s,
                                        u"view 06 23:41 - 07 00:42"_s, u"level 1"_s};
    QTest::newRow("out at the widest") << 8 << QPoint(0, -120) << QStringList{u"level 8"_s};
    QTest::newRow("less than a degree") << 1 << QPoint(0, 3) << QStringList();
}

void TestRulerInput::wheelSteps()
{
    QFETCH(int, level);
    QFETCH(QPoint, angle);
    QFETCH(QStringList, log);

    m_ruler->changeLevel(level, 0.5);
    m_ruler->onTimelineOffsetChanged(0.5);
    m_ruler->takeLog();
    wheel(*m_ruler, QPointF(255, 30), angle);
    if (log.size() == 4) {
        // The time under the pointer stays there, so the rest follows.
        log[1] = m_ruler->log.at(1);
        log[2] = m_ruler->log.at(2);
    }
    QCOMPARE(m_ruler->takeLog(), log);
}

void TestRulerInput::indicatorDrag_data()
{
    QTest::addColumn<bool>("reportsMoves");
    QTest::addColumn<QStringList>("log");

    QTest::newRow("reported at its end")
        << false << QStringList{u"no preview"_s, u"no preview"_s, u"indicator 3600"_s};
    QTest::newRow("reported all the time")
        << true
        << QStringList{u"indicator 2160"_s, u"no preview"_s, u"no preview"_s, u"indicator 3600"_s};
}

void TestRulerInput::indicatorDrag()
{
    QFETCH(bool, reportsMoves);

    auto* indicator = m_ruler->findChild<Indicator*>();
    m_ruler->setIndicatorDragEnabled(reportsMoves);
    m_ruler->setIndicatorPosition(at(30 * minute));
    const auto inIndicator = [&](int x) {
        return indicator->mapFrom(m_ruler.get(), QPoint(x, 5));
    };

    QTest::mousePress(indicator, Qt::LeftButton, {}, inIndicator(510));
    move(*indicator, inIndicator(610), Qt::LeftButton);
    QCOMPARE(m_ruler->getIndicatorMSecs(), at(36 * minute));
    // Outside the scale the indicator waits; at the end it goes to the nearest place.
    move(*indicator, inIndicator(1015), Qt::LeftButton);
    QCOMPARE(m_ruler->getIndicatorMSecs(), at(36 * minute));
    QTest::mouseRelease(indicator, Qt::LeftButton, {}, inIndicator(1300));
    QTEST(m_ruler->takeLog(), "log");
    QCOMPARE(m_ruler->getIndicatorMSecs(), at(hour));
    QCOMPARE(m_ruler->beginTime(), at(0));
}

void TestRulerInput::draggedIndicatorIsTheUsers()
{
    auto* indicator = m_ruler->findChild<Indicator*>();
    m_ruler->setIndicatorPosition(at(30 * minute));
    const QPoint grip(indicator->hotSpot(), 5);
    QTest::mousePress(indicator, Qt::LeftButton, {}, grip);
    QVERIFY(m_ruler->setIndicatorPosition(at(40 * minute)));
    QCOMPARE(m_ruler->getIndicatorMSecs(), at(30 * minute));
    QTest::mouseRelease(indicator, Qt::LeftButton, {}, grip);
    QVERIFY(m_ruler->setIndicatorPosition(at(40 * minute)));
    QCOMPARE(m_ruler->getIndicatorMSecs(), at(40 * minute));
}

void TestRulerInput::previewComesAndGoes()
{
    m_ruler->setPreviewEnabled(true);
    move(*m_ruler, QPoint(510, 5));
    QTRY_COMPARE(m_ruler->log, QStringList{u"preview 1800 at 510"_s});
    m_ruler->takeLog();
    m_ruler->onPreviewVisible(true, false);

    move(*m_ruler, QPoint(610, 5));
    QTRY_COMPARE(m_ruler->log, QStringList{u"preview 2160 at 610"_s});
    m_ruler->takeLog();

    // Nothing moves, so nothing is asked for; leaving ends it.
    QSignalSpy spy(m_ruler.get(), &Ruler::previewPositionChanged);
    QVERIFY(!spy.wait(350));
    leave(*m_ruler);
    QCOMPARE(m_ruler->takeLog(), QStringList{u"no preview"_s});
    QCOMPARE(runningTimers(*m_ruler), 0);
}

void TestRulerInput::previewNeedsItsArea()
{
    leave(*m_ruler);
    m_ruler->takeLog();
    m_ruler->setPreviewEnabled(true);
    const int header = m_ruler->height() / 4;
    move(*m_ruler, QPoint(510, 2 * header + 1));
    QCOMPARE(m_ruler->takeLog(), QStringList());
    move(*m_ruler, QPoint(510, 2 * header));
    move(*m_ruler, QPoint(510, 2 * header + 1));
    QCOMPARE(m_ruler->takeLog(), QStringList{u"no preview"_s});

    m_ruler->setPreviewEnabled(false);
    m_ruler->takeLog();
    move(*m_ruler, QPoint(510, 5));
    leave(*m_ruler);
    QCOMPARE(m_ruler->takeLog(), QStringList{u"no preview"_s});
}

void TestRulerInput::previewLineReports()
{
    m_ruler->setPreviewIndicatorPosition(at(30 * minute));
    QCOMPARE(m_ruler->log, QStringList());
    QTRY_COMPARE(m_ruler->log, QStringList{u"line 510,-1"_s});
    m_ruler->takeLog();
    m_ruler->setPreviewIndicatorPosition(at(5 * day));
    QTRY_COMPARE(m_ruler->log, QStringList{u"line 1015,-1"_s});
    m_ruler->takeLog();

    // The column at which the last preview was asked for is known already.
    m_ruler->setPreviewEnabled(true);
    move(*m_ruler, QPoint(510, 5));
    QTRY_COMPARE(m_ruler->log, QStringList{u"preview 1800 at 510"_s});
    m_ruler->takeLog();
    m_ruler->setPreviewIndicatorPosition(at(30 * minute));
    m_ruler->setPreviewIndicatorPosition(0);
    QCoreApplication::processEvents();
    QCOMPARE(m_ruler->takeLog(), QStringList());
}

void TestRulerInput::blockedRulerIgnoresInput()
{
    m_ruler->setPreviewEnabled(true);
    m_ruler->setActive(true, true);
    const quint64 start = m_ruler->beginTime();
    m_ruler->takeLog();
    QTest::mouseClick(m_ruler.get(), Qt::LeftButton, {}, QPoint(510, 30));
    QTest::mousePress(m_ruler.get(), Qt::LeftButton, {}, QPoint(510, 30));
    move(*m_ruler, QPoint(300, 30), Qt::LeftButton);
    QTest::mouseRelease(m_ruler.get(), Qt::LeftButton, {}, QPoint(300, 30));
    wheel(*m_ruler, QPointF(255, 30), QPoint(0, 120));
    QTest::keyClick(m_ruler.get(), Qt::Key_Right);
    move(*m_ruler, QPoint(300, 5));
    QCOMPARE(m_ruler->takeLog(), QStringList());
    QCOMPARE(m_ruler->beginTime(), start);
}

void TestRulerInput::keys_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QStringList>("log");

    // One hour from 5:00 in view with ticks every 5 minutes, the indicator at 5:30.
    const auto row = [](const char* name, const QString& keys, const QStringList& log) {
        QTest::newRow(name) << keys << log;
    };
    row("minor division", u"Right"_s, {u"indicator 19860"_s});
    row("minor division back", u"Left"_s, {u"indicator 19740"_s});
    row("major division", u"Shift+Right"_s, {u"indicator 20100"_s});
    row("major division back", u"Shift+Left"_s, {u"indicator 19500"_s});
    row("begin", u"Home"_s,
        {u"center 0.002083"_s, u"view 02 00:00 - 02 01:00"_s, u"indicator 0"_s});
    row("end", u"End"_s,
        {u"center 0.9979"_s, u"view 11 22:59 - 12 00:00"_s, u"indicator 864000"_s});
    row("page earlier", u"PgUp"_s, {u"center 0.01875"_s, u"view 02 03:59 - 02 05:00"_s});
    row("page later", u"PgDown"_s, {u"center 0.02708"_s, u"view 02 05:59 - 02 07:00"_s});
    row("in", u"+"_s, {u"level 0"_s, u"center 0.02291"_s, u"view 02 05:19 - 02 05:39"_s});
    row("out", u"-"_s, {u"level 2"_s, u"center 0.02292"_s, u"view 02 03:58 - 02 07:00"_s});
    row("whole period", u"Ctrl+0"_s,
        {u"level 8"_s, u"center 0.5"_s, u"view 02 00:00 - 12 00:00"_s});
    row("next marker", u"N"_s, {u"indicator 19920"_s, u"jump 02 05:32"_s});
    row("previous marker", u"P"_s,
        {u"center 0.01458"_s, u"view 02 02:59 - 02 04:00"_s, u"indicator 10800"_s,
         u"jump 02 03:00"_s});
    row("another key", u"X"_s, {});
}

void TestRulerInput::keys()
{
    QFETCH(QString, keys);

    m_ruler->onAddMarkers({{.time = timeAt(3 * hour)}, {.time = timeAt(332 * minute)}});
    m_ruler->onTimelineOffsetChanged(5.5 / 240);
    m_ruler->setIndicatorPosition(at(330 * minute));
    m_ruler->takeLog();
    const QKeyCombination key = QKeySequence(keys)[0];
    QTest::keyClick(m_ruler.get(), key.key(), key.keyboardModifiers());
    // What comes into view is reported in between.
    m_ruler->log.removeIf([](const QString& line) { return line.startsWith(u"new"); });
    QTEST(m_ruler->takeLog(), "log");
}

void TestRulerInput::keysReachTheLimits()
{
    QTest::keyClick(m_ruler.get(), Qt::Key_Left);
    QTest::keyClick(m_ruler.get(), Qt::Key_PageUp);
    QTest::keyClick(m_ruler.get(), Qt::Key_P);
    QTest::keyClick(m_ruler.get(), Qt::Key_N);
    QCOMPARE(m_ruler->takeLog(), QStringList());
    for (int i = 0; i < 500; ++i)
        QTest::keyClick(m_ruler.get(), Qt::Key_PageDown);
    QCOMPARE(m_ruler->endTime(), at(10 * day));
}

void TestRulerInput::timersNeedAVisibleActiveRuler_data()
{
    QTest::addColumn<std::function<void(LoggedRuler&)>>("stop");

    using Stop = std::function<void(LoggedRuler&)>;
    QTest::newRow("hidden") << Stop([](LoggedRuler& ruler) { ruler.hide(); });
    QTest::newRow("inactive") << Stop([](LoggedRuler& ruler) { ruler.setActive(false, false); });
    QTest::newRow("blocked") << Stop([](LoggedRuler& ruler) { ruler.setActive(true, true); });
}

void TestRulerInput::timersNeedAVisibleActiveRuler()
{
    QFETCH(std::function<void(LoggedRuler&)>, stop);

    m_ruler->setPreviewEnabled(true);
    m_ruler->onTimelineOffsetChanged(0.5);
    move(*m_ruler, QPoint(510, 5));
    QTest::mousePress(m_ruler->childAt(1017, 30), Qt::LeftButton);
    QCOMPARE(runningTimers(*m_ruler), 2);
    stop(*m_ruler);
    QCOMPARE(runningTimers(*m_ruler), 0);
    m_ruler->setPreviewEnabled(false);
    m_ruler->setPreviewEnabled(true);
    move(*m_ruler, QPoint(300, 5));
    QCOMPARE(runningTimers(*m_ruler), 0);
}

void TestRulerInput::assistiveTechnology()
{
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(m_ruler.get());
    QVERIFY(accessible);
    QCOMPARE(accessible->role(), QAccessible::Slider);
    QCOMPARE(accessible->text(QAccessible::Name), u"Timeline"_s);
    QAccessibleValueInterface* value = accessible->valueInterface();
    QVERIFY(value);
    QCOMPARE(value->minimumValue().toDouble(), double(at(0)));
    QCOMPARE(value->maximumValue().toDouble(), double(at(10 * day)));
    QCOMPARE(value->minimumStepSize().toDouble(), double(minute));

    m_ruler->setIndicatorPosition(at(90 * minute));
    QCOMPARE(value->currentValue().toDouble(), double(at(90 * minute)));
    QVERIFY(accessible->text(QAccessible::Value).contains(u"1:30"_s));
    m_ruler->takeLog();
    value->setCurrentValue(double(at(100 * minute)));
    QVERIFY(m_ruler->takeLog().contains(u"indicator 6000"_s));
    m_ruler->setIndicatorPosition(0);
    QCOMPARE(accessible->text(QAccessible::Value), u"No position"_s);
}

void TestRulerInput::deletionInSignals_data()
{
    using Act = std::function<void(Ruler&)>;
    QTest::addColumn<Act>("act");

    const auto click = [](int x) {
        return Act(
            [x](Ruler& ruler) { QTest::mouseClick(&ruler, Qt::LeftButton, {}, QPoint(x, 30)); });
    };
    QTest::newRow("limits") << Act([](Ruler& ruler) { ruler.setTimeLimits(at(day), at(9 * day)); });
    QTest::newRow("level") << Act([](Ruler& ruler) { ruler.changeLevel(3, 0.5); });
    QTest::newRow("refused zoom") << Act([](Ruler& ruler) {
        ruler.onZoomerOut(1, 0.5);
        ruler.changeLevel(8, 0.5);
    });
    QTest::newRow("indicator paging")
        << Act([](Ruler& ruler) { ruler.setIndicatorPosition(at(5 * day)); });
    QTest::newRow("click") << click(510);
    QTest::newRow("wheel") << Act(
        [](Ruler& ruler) { wheel(ruler, QPointF(255, 30), QPoint(0, -120)); });
    QTest::newRow("key") << Act([](Ruler& ruler) { QTest::keyClick(&ruler, Qt::Key_End); });
    QTest::newRow("arrow") << Act(
        [](Ruler& ruler) { QTest::mousePress(ruler.childAt(1017, 30), Qt::LeftButton); });
    QTest::newRow("drag") << Act([](Ruler& ruler) {
        QTest::mousePress(&ruler, Qt::LeftButton, {}, QPoint(600, 30));
        move(ruler, QPoint(300, 30), Qt::LeftButton);
    });
    QTest::newRow("markers come") << Act(
        [](Ruler& ruler) { ruler.onAddMarkers({{.time = timeAt(minute)}}); });
    QTest::newRow("result range") << Act([](Ruler& ruler) {
        ruler.setResultTimeRange(timeAt(day), timeAt(2 * day), true, true, true, true);
    });
    QTest::newRow("leaving") << Act([](Ruler& ruler) { leave(ruler); });
}

void TestRulerInput::deletionInSignals()
{
    QFETCH(std::function<void(Ruler&)>, act);

    // Whatever signal comes first, second and so on deletes the ruler.
    for (int survived = 0; survived < 6; ++survived) {
        auto* ruler = new LoggedRuler;
        ruler->setTimeLimits(at(0), at(10 * day));
        QPointer<LoggedRuler> alive(ruler);
        int count = 0;
        const auto mayDelete = [&] {
            if (count++ == survived)
                delete alive;
        };
        QObject context;
        connect(ruler, &Ruler::changeSliderZoom, &context, mayDelete);
        connect(ruler, &Ruler::centerPositionChanged, &context, mayDelete);
        connect(ruler, &Ruler::timeLineViewChanged, &context, mayDelete);
        connect(ruler, &Ruler::indicatorPositionChanged, &context, mayDelete);
        connect(ruler, &Ruler::newVisibleRulerMarkers, &context, mayDelete);
        connect(ruler, &Ruler::previewPositionChanged, &context, mayDelete);
        act(*ruler);
        QVERIFY(count > 0);
        QCOMPARE(alive.isNull(), count > survived);
        delete alive;
    }
}

QTEST_MAIN(TestRulerInput)
#include "tst_rulerinput.moc"
