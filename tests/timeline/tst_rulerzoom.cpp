// SPDX-License-Identifier: MIT
#include "rulerscript.h"
#include "testsupport.h"
#include "viewhistory.h"

using namespace CorvelGui;

namespace {

void turn(QWidget& ruler, double x, QPoint angle, Qt::KeyboardModifiers keys = {})
{
    turnWheel(&ruler, {x, 30}, angle, keys);
}

QString viewOf(const Ruler& ruler)
{
    const auto seconds = [](qint64 msecs) {
        return QString::number(double(msecs - monday) / second, 'g', 7);
    };
    return u"%1 - %2"_s.arg(seconds(ruler.view().begin), seconds(ruler.view().end));
}

} // namespace

class TestRulerZoom : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void pointStaysUnderThePointer()
    {
        LoggedRuler ruler;
        ruler.setContinuousZoom(true);
        ruler.setFineWheel(true);
        constexpr double middle = 510;
        turn(ruler, middle, {0, -5000});
        QCOMPARE(viewOf(ruler), u"0 - 864000"_s);
        const qint64 time = monday + 5 * day;
        QRandomGenerator random(1);
        int depth = 0; // about 60 notches from the whole period to the closest view
        for (int step = 0; step < 2000; ++step) {
            const int angle = random.bounded(-900, 901);
            depth = std::clamp(depth + angle, 0, 5000);
            turn(ruler, middle, {0, angle});
            QVERIFY(std::abs(ruler.xAt(time) - middle) < 0.001);
        }
        turn(ruler, middle, {0, 9000});
        QCOMPARE(viewOf(ruler), u"431999.8 - 432000.2"_s);
        QVERIFY(!ruler.canZoomIn() && ruler.canZoomOut());
        QVERIFY(std::abs(ruler.xAt(time) - middle) < 0.001);
        // The limits come first.
        turn(ruler, 30, {0, -9000});
        QCOMPARE(viewOf(ruler), u"0 - 864000"_s);
        QCOMPARE(ruler.level(), ruler.getNrOfZooomLevels());
        // A drag of less than a millisecond counts.
        ruler.setView(monday + hour, monday + hour + 400);
        play(&ruler, u"press 510; drag 700; drag 530"_s);
        QVERIFY(std::abs(ruler.xAt(monday + hour + 200) - 530) < 0.001);
    }

    // A level is chosen even if it is the nearest one already, and the view outlasts other limits.
    void viewsBetweenTheLevels()
    {
        const auto view = [](const QString& script) {
            LoggedRuler ruler;
            ruler.setContinuousZoom(true);
            play(&ruler, script);
            return u"%1, level %2"_s.arg(viewOf(ruler)).arg(ruler.level());
        };
        QCOMPARE(view(u"view 1000 5000"_s), u"1000 - 5000, level 1"_s);
        QCOMPARE(view(u"view 1000 7800"_s), u"1000 - 7800, level 2"_s);
        QCOMPARE(view(u"view 36000 40000; level 1 0.5"_s), u"36197.8 - 39797.8, level 1"_s);
        QCOMPARE(view(u"view 36000 40000; in 1"_s), u"36197.8 - 39797.8, level 1"_s);
        QCOMPARE(view(u"view 0 860000; key Ctrl+0"_s), u"0 - 864000, level 8"_s);
        QCOMPARE(view(u"view 1000 5000; limits 0 2000000"_s), u"1000 - 5000, level 1"_s);
        QCOMPARE(view(u"view 1000 5000; limits 0 3000"_s), u"0 - 3000, level 8"_s);
        QCOMPARE(view(u"view 1000 5000; search 36000 39000 zoom"_s), u"35700 - 39300, level 1"_s);
        QCOMPARE(view(u"view 36000 44000; place 38000; key +"_s), u"37000 - 41000, level 1"_s);
        QCOMPARE(view(u"view 36000 44000; key -"_s), u"32000 - 48000, level 2"_s);

        LoggedRuler ruler;
        ruler.setContinuousZoom(true);
        play(&ruler, u"view 36000 40000"_s);
        ruler.setContinuousZoom(false);
        QCOMPARE(viewOf(ruler), u"36197.8 - 39797.8"_s);
        QCOMPARE(ruler.takeLog(),
                 (QStringList{u"level 1"_s, u"center 0.04398"_s, u"view 02 10:02 - 02 11:03"_s}));
    }

    void fineWheel()
    {

        // From three hours of ten days, with the mouse in the middle.
        const QString whole = u"0 - 864000"_s;
        const QString closer = u"426591 - 430191"_s;
        const QString unmoved = u"423000 - 433800"_s;
        const std::tuple<bool, QPoint, Qt::KeyboardModifiers, int, QString> turns[] = {
            {false, {0, 15}, {}, 8, u"427788 - 428988"_s},
            {false, {15, 0}, {}, 8, whole},
            {true, {0, 15}, {}, 7, unmoved},
            {true, {0, 15}, {}, 8, closer},
            {true, {0, 240}, {}, 1, u"427788 - 428988"_s},
            {true, {0, 2}, {}, 59, unmoved},
            {true, {120, 40}, {}, 1, u"422352 - 433152"_s},
            {true, {0, -120}, Qt::ShiftModifier, 1, u"423648 - 434448"_s}};
        for (const auto& [fine, angle, keys, count, view] : turns) {
            LoggedRuler ruler;
            play(&ruler, u"view 423000 433800"_s);
            ruler.setFineWheel(fine);
            for (int i = 0; i < count; ++i)
                turn(ruler, 510, angle, keys);
            QCOMPARE(viewOf(ruler), view);
        }

        // A turn back begins anew, and a moved view comes to rest.
        LoggedRuler ruler;
        play(&ruler, u"view 423000 433800"_s);
        ruler.setFineWheel(true);
        for (const int angle : {100, -10, 100})
            turn(ruler, 510, {0, angle});

        QCOMPARE(viewOf(ruler), unmoved);
        turn(ruler, 510, {120, 0});
        QCOMPARE(ruler.takeLog().last(), u"view 06 21:17 - 07 00:19 moving"_s);
        QTRY_COMPARE(ruler.log, QStringList(u"view 06 21:17 - 07 00:19"_s));
    }

    void history()
    {
        LoggedRuler ruler;
        const QSignalSpy moved(&ruler, &Ruler::zoomHistoryMoved);
        play(&ruler, u"view 36000 46800; key Alt+Left"_s);
        QCOMPARE(viewOf(ruler), u"36000 - 46800"_s);
        QVERIFY(!ruler.canZoomBack() && moved.isEmpty());

        ruler.setZoomHistory(true);
        play(&ruler, u"view 72000 75600; center 80000; view 50000 93200"_s);
        QCOMPARE(moved.size(), 1);
        const QPair<QString, QString> steps[] = {{u"key Alt+Left"_s, u"78200 - 81800"_s},
                                                 {u"key Backspace"_s, u"36000 - 46800"_s},
                                                 {u"key Backspace"_s, u"36000 - 46800"_s},
                                                 {u"key Alt+Right"_s, u"78200 - 81800"_s},
                                                 {u"key Shift+Backspace"_s, u"50000 - 93200"_s}};
        for (const auto& [script, view] : steps) {
            play(&ruler, script);
            QCOMPARE(viewOf(ruler), view);
        }
        QTest::mouseClick(&ruler, Qt::BackButton, {}, {300, 30});
        QCOMPARE(viewOf(ruler), u"78200 - 81800"_s);
        QVERIFY(ruler.canZoomForward());
        QTest::mouseClick(&ruler, Qt::ForwardButton, {}, {300, 30});
        QCOMPARE(viewOf(ruler), u"50000 - 93200"_s);
        // Nothing of it is left in quite another period.
        ruler.setTimeLimits(at(20 * day), at(30 * day));
        QVERIFY(!ruler.canZoomBack());
    }

    void turnsCountAsOne()
    {
        using Zoom = ViewHistory::Zoom;
        const auto stepsBack = [](const QList<std::pair<Zoom, int>>& zooms) {
            ViewHistory history;
            ViewHistory::Clock::time_point now{};
            for (const auto& [zoom, pause] : zooms)
                history.zoomed({}, zoom, now += std::chrono::milliseconds(pause));
            int steps = 0;
            while (history.back({}))
                ++steps;
            return steps;
        };
        QCOMPARE(stepsBack({{Zoom::Whole, 0}, {Zoom::Whole, 10}}), 2);
        QCOMPARE(stepsBack({{Zoom::Turn, 0}, {Zoom::Turn, 500}, {Zoom::Turn, 500}}), 1);
        QCOMPARE(stepsBack({{Zoom::Turn, 0}, {Zoom::Turn, 700}}), 2);
        QCOMPARE(stepsBack({{Zoom::Gesture, 0}, {Zoom::Gesture, 9000}, {Zoom::Turn, 1}}), 2);

        // A step back ends a turn.
        ViewHistory history;
        for (int i = 0; i < 2; ++i) {
            history.zoomed({}, Zoom::Turn, {});
            QVERIFY(history.back({}));
        }
    }

    void smoothFollowing()
    {
        LoggedRuler ruler;
        ruler.setFollowMode(Ruler::FollowMode::Smooth);
        play(&ruler, u"view 36000 46800; place 40000"_s);
        QCOMPARE(viewOf(ruler), u"36000 - 46800"_s);
        play(&ruler, u"place 44200; place 44300"_s); // three quarters are at 44100
        QCOMPARE(viewOf(ruler), u"36200 - 47000"_s);
        play(&ruler, u"press 900; drag 500; release 500; place 44600"_s);
        QCOMPARE(viewOf(ruler), u"40520 - 51320"_s);
        play(&ruler, u"press 500; drag 900; release 900; place 44700"_s);
        QVERIFY(!ruler.isFollowing());
        QCOMPARE(viewOf(ruler), u"36200 - 47000"_s);
        play(&ruler, u"resume"_s);
        QCOMPARE(viewOf(ruler), u"36600 - 47400"_s);
    }

    void fingers()
    {
        LoggedRuler ruler;
        play(&ruler, u"view 36000 46800"_s);
        const auto touch = [&] {
            return QTest::touchEvent(&ruler, m_screen.get());
        };

        const auto pinch = [&](int from, int to) {
            touch().press(0, {from, 40}).press(1, {to, 40});
            touch().move(0, {from, 41}).move(1, {to, 41});
            touch().move(0, {from - 100, 41}).move(1, {to + 100, 41});
            touch().release(0, {from - 100, 41}).stationary(1);
            touch().release(1, {to, 41});
        };
        const auto pinchTouchpad = [&] {
            QNativeGestureEvent event(Qt::ZoomNativeGesture,
                                      QPointingDevice::primaryPointingDevice(), 2, {510, 40},
                                      {510, 40}, {510, 40}, 1.0, {});
            QApplication::sendEvent(&ruler, &event);
        };
        // Off, a finger is the mouse, and a second one ends that.
        pinch(410, 610);
        pinchTouchpad();
        QCOMPARE(viewOf(ruler), u"36000 - 46800"_s);
        QCOMPARE(ruler.getIndicatorMSecs(), at(0));
        touch().press(0, {410, 40});
        touch().move(0, {510, 40});
        QCOMPARE(viewOf(ruler), u"34920 - 45720"_s);
        touch().release(0, {510, 40});
        QVERIFY(!ruler.isHeld());
        play(&ruler, u"view 36000 46800"_s);
        ruler.setTouchGestures(true);

        ruler.takeLog();
        pinch(300, 400); // to a third, which is the next level
        QCOMPARE(viewOf(ruler), u"38448 - 42048"_s);

        ruler.setContinuousZoom(true);
        ruler.setZoomHistory(true);
        play(&ruler, u"view 36000 46000"_s);
        QSignalSpy held(&ruler, &Ruler::heldChanged);
        pinch(410, 610);
        QCOMPARE(viewOf(ruler), u"38500 - 43500"_s);
        QVERIFY(!held.isEmpty() && !held.last().first().toBool());
        QCOMPARE(ruler.takeLog().last(), u"view 02 10:40 - 02 12:05"_s);
        ruler.zoomBack();
        QCOMPARE(viewOf(ruler), u"36000 - 46000"_s);
        pinchTouchpad();
        QCOMPARE(viewOf(ruler), u"38500 - 43500"_s);
        play(&ruler, u"view 36000 46000"_s);

        // One drags, and sets the indicator where it is lifted at once.
        touch().press(0, {410, 40});
        touch().move(0, {510, 40});
        touch().move(0, {510, 41});
        QCOMPARE(viewOf(ruler), u"35000 - 45000"_s);
        QElapsedTimer rest; // no flick
        rest.start();
        QTRY_VERIFY(rest.elapsed() > 120);
        touch().release(0, {510, 41});
        touch().press(0, {410, 40});
        touch().release(0, {410, 40});
        QCOMPARE(ruler.getIndicatorMSecs(), at(39000 * second));

        // One that stays asks for the menu, and does nothing else.
        ruler.setContextMenuPolicy(Qt::CustomContextMenu);
        const QSignalSpy menu(&ruler, &QWidget::customContextMenuRequested);
        touch().press(0, {610, 40});
        QTRY_COMPARE(menu.size(), 1);
        QCOMPARE(menu.first().first().toPoint(), QPoint(610, 40));
        QVERIFY(!ruler.isHeld());
        touch().release(0, {610, 40});
        QCOMPARE(ruler.getIndicatorMSecs(), at(39000 * second));
    }

    void flick()
    {
        LoggedRuler ruler;
        ruler.setTouchGestures(true);
        play(&ruler, u"view 360000 363600"_s);
        const auto touch = [&] {
            return QTest::touchEvent(&ruler, m_screen.get());
        };

        touch().press(0, {300, 40});
        QElapsedTimer time;
        time.start();
        for (int x = 320; x <= 400; x += 20) {
            QTRY_VERIFY(time.elapsed() > (x - 300) / 5); // as fast as a finger
            touch().move(0, {x, 40});
        }
        touch().release(0, {400, 40});
        QVERIFY(!ruler.isHeld());
        const qint64 released = ruler.view().begin;
        QTRY_VERIFY(ruler.view().begin < released - 300 * second);
        QVERIFY(ruler.takeLog().last().endsWith(u"moving"_s));
        // Another finger stops it, and places nothing.
        touch().press(0, {600, 40});
        const qint64 stopped = ruler.view().begin;
        touch().release(0, {600, 40});
        QCoreApplication::processEvents();
        QCOMPARE(ruler.view().begin, stopped);
        QVERIFY(!ruler.takeLog().last().endsWith(u"moving"_s));
        QCOMPARE(ruler.getIndicatorMSecs(), at(0));
    }

    void repeatedHour()
    {
        LoggedRuler ruler;
        ruler.setTimeZone(u"Europe/Brussels"_s);
        const qint64 change = QDateTime({2026, 10, 25}, {1, 0}, Qt::UTC).toMSecsSinceEpoch();
        ruler.setTimeLimits(quint64(change - day), quint64(change + day));
        ruler.setCalendarTicks(true);
        ruler.changeLevel(3, 0.5);
        ruler.centerOn(change);
        const auto* indicator = ruler.findChild<Indicator*>();
        for (const auto& [offset, text] :
             {std::pair(-90 * minute, u"01:30:00"_s), std::pair(-30 * minute, u"02:30:00 +02"_s),
              std::pair(30 * minute, u"02:30:00 +01"_s), std::pair(5 * hour, u"07:00:00"_s)}) {
            ruler.setIndicatorPosition(quint64(change + offset));
            QCOMPARE(indicator->text(), text);
            // Assistive technology hears which it is, too.
            const auto* said = QAccessible::queryAccessibleInterface(&ruler);
            QCOMPARE(said->text(QAccessible::Value).section(u' ', -1).startsWith(u'+'),
                     text.contains(u'+'));
        }
    }

private:
    std::unique_ptr<QPointingDevice> m_screen{QTest::createTouchDevice()};
};

QTEST_MAIN(TestRulerZoom)
#include "tst_rulerzoom.moc"
