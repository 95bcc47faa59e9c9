// SPDX-License-Identifier: MIT
#include "testsupport.h"
#include "viewareabox.h"

#include <CorvelGui/TimelineScroll>
#include <Hueloft/POrvGuiTheme>

using namespace CorvelGui;
using Hueloft::POrvGuiTheme;

namespace {

constexpr int middle = 7;

/// 101 pixels, of which the box covers 21 to 39 around its centre at 30.
class LoggedStrip : public TimelineScroll
{
public:
    explicit LoggedStrip(double viewArea = 0.2, double center = 0.3)
    {
        // Windows widens a small window that has a frame.
        setWindowFlag(Qt::FramelessWindowHint);
        setOrvaneGuiTheme(true);
        setActive(true);
        setViewArea(viewArea);
        onCenterPositionChanged(center);
        resize(101, 15);
        show();
        connect(this, &TimelineScroll::viewAreaMoved, this,
                [this](double position) { moves << position; });
    }

    void press(int x) { QTest::mousePress(this, Qt::LeftButton, {}, QPoint(x, middle)); }
    void moveTo(int x) { QTest::mouseMove(this, QPoint(x, middle)); }
    void release(int x) { QTest::mouseRelease(this, Qt::LeftButton, {}, QPoint(x, middle)); }
    bool isTimerActive() const { return findChild<QTimer*>()->isActive(); }
    QColor pixel(int x, int row) { return grab().toImage().pixelColor(x, row); }

    QList<double> moves;
    int repaintRequests = 0; ///< without those of the window system, which come at any time

protected:
    bool event(QEvent* event) override
    {
        repaintRequests += event->type() == QEvent::UpdateRequest;
        return TimelineScroll::event(event);
    }
};

using Act = std::function<void(LoggedStrip&)>;

void setAccessibleValue(LoggedStrip& strip, const QVariant& value)
{
    QAccessible::queryAccessibleInterface(&strip)->valueInterface()->setCurrentValue(value);
}

} // namespace

class TestTimelineScroll : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void box()
    {
        constexpr double nan = std::numeric_limits<double>::quiet_NaN();
        constexpr double infinity = std::numeric_limits<double>::infinity();
        // View area, position, and then the width, the centre, left and right of the box.
        const std::tuple<double, double, QList<int>> cases[] = {
            {1.0, 0.5, {99, 50, 1, 100}},
            {1.0, 0.0, {99, 49, 1, 99}},
            {1.0, 1.0, {99, 52, 3, 100}},
            {0.2, 0.3, {19, 30, 21, 40}},
            {0.21, 0.3, {20, 30, 20, 40}},
            {0.1, 1.0, {9, 97, 93, 100}},
            {0.0, 0.5, {5, 50, 48, 53}},
            {0.1, -3.0, {9, 4, 1, 9}},
            {nan, nan, {5, 2, 1, 5}},
            {0.0, 1e19, {5, 99, 97, 100}}, // a wrapped position
            {-infinity, infinity, {5, 99, 97, 100}}};
        for (const auto& [viewArea, position, expected] : cases) {
            const ViewAreaBox box(101, viewArea, position);
            QCOMPARE((QList<int>{box.width(), box.center(), box.left(), box.right()}), expected);
        }
        for (const int stripWidth : {0, 1, 2}) {
            const ViewAreaBox tiny(stripWidth, 1.0, 0.5);
            QVERIFY(std::isfinite(tiny.draggedTo(5)) && std::isfinite(tiny.pagedBy(5)));
        }
    }

    void pressesAndDrags()
    {
        const std::tuple<double, double, int, QList<int>, int, QList<double>> cases[] = {
            {0.2, 0.3, 20, {}, 20, {11 / 101.0}},
            {0.2, 0.3, 41, {}, 41, {49 / 101.0}},
            {0.2, 0.3, 21, {}, 21, {}},
            {0.2, 0.3, 40, {}, 40, {}},
            {0.2, 0.3, 60, {}, 30, {}},
            {0.2, 0.3, 60, {}, 10, {11 / 101.0}},
            {0.2, 0.3, 35, {45, 0, 101, 100, 1}, 1, {0.40, 0.92, 0.09}},
            {1.0, 0.5, 50, {70}, 70, {}}}; // the whole period cannot move
        for (const auto& [viewArea, center, press, drag, release, moves] : cases) {
            LoggedStrip strip(viewArea, center);
            QTest::mouseClick(&strip, Qt::RightButton, {}, QPoint(95, middle));
            strip.press(press);
            for (const int x : drag)
                strip.moveTo(x);
            strip.release(release);
            QVERIFY(!strip.isTimerActive());
            strip.moveTo(50);
            QCOMPARE(strip.moves, moves);
            QCOMPARE(strip.centerPosition(), moves.isEmpty() ? center : moves.last());
        }
    }

    void holdingPagesToThePress()
    {
        const std::tuple<double, int, QList<double>> cases[] = {
            {0.3, 99, {49 / 101.0, 68 / 101.0, 86 / 101.0, 92 / 101.0}},
            {0.6, 30, {41 / 101.0, 22 / 101.0}}};
        for (const auto& [center, pressX, moves] : cases) {
            LoggedStrip strip(0.2, center);
            strip.press(pressX);
            QCOMPARE(strip.findChild<QTimer*>()->interval(), 200);
            QTRY_VERIFY(!strip.isTimerActive());
            strip.release(pressX);
            QCOMPARE(strip.moves, moves);
        }
    }

    void holdEndsWithTheStrip()
    {
        const std::vector<std::function<void(LoggedStrip&, bool)>> switches{
            [](LoggedStrip& strip, bool on) { strip.setVisible(on); },
            [](LoggedStrip& strip, bool on) { strip.setEnabled(on); },
            [](LoggedStrip& strip, bool on) { strip.setActive(on); },
            [](LoggedStrip& strip, bool) { moveMouse(strip, QPoint(35, middle)); },
            [](LoggedStrip&, bool on) {
                QWidget other;
                if (!on)
                    QTest::mouseRelease(&other, Qt::LeftButton);
            }};
        for (const auto& setOn : switches) {
            for (const int pressX : {30, 60}) {
                LoggedStrip strip;
                QSignalSpy held(&strip, &TimelineScroll::heldChanged);
                strip.press(pressX);
                setOn(strip, false);
                QVERIFY(!strip.isTimerActive());
                QTRY_COMPARE(held, (QList<QVariantList>{{true}, {false}}));
                setOn(strip, true);
                strip.moveTo(80);
                strip.release(80);
                QCOMPARE(strip.moves, QList<double>());
            }
        }
    }

    void keys()
    {
        const std::tuple<double, double, Qt::Key, QList<double>> cases[] = {
            {0.2, 0.5, Qt::Key_Left, {0.48}},   {0.2, 0.5, Qt::Key_Right, {0.52}},
            {0.2, 0.5, Qt::Key_PageUp, {0.3}},  {0.2, 0.5, Qt::Key_PageDown, {0.7}},
            {0.2, 0.5, Qt::Key_Home, {0.1}},    {0.2, 0.5, Qt::Key_End, {0.9}},
            {0.2, 1e19, Qt::Key_PageUp, {0.8}}, // far outside does not swallow the next moves
            {0.2, -1.0, Qt::Key_Right, {0.1}},  {1.0, 0.5, Qt::Key_Home, {}}};
        for (const auto& [viewArea, center, key, moves] : cases) {
            LoggedStrip strip(viewArea, center);
            QTest::keyClick(&strip, key);
            QCOMPARE(strip.moves, moves);
        }
    }

    void settersAreSilentAndRepaintChanges()
    {
        const std::pair<bool, Act> setters[] = {
            std::pair(false, [](LoggedStrip& s) { s.setViewArea(0.2); }),
            std::pair(false, [](LoggedStrip& s) { s.onCenterPositionChanged(0.3); }),
            std::pair(false, [](LoggedStrip& s) { s.onIndicatorPositionChanged(5, 0.0); }),
            std::pair(false, [](LoggedStrip& s) { s.setSearchTimeRange(0.500009, 0.599991); }),
            std::pair(true, [](LoggedStrip& s) { s.setViewArea(0.3); }),
            std::pair(true, [](LoggedStrip& s) { s.onCenterPositionChanged(0.4); }),
            std::pair(true, [](LoggedStrip& s) { s.onIndicatorPositionChanged(5, 0.1); }),
            std::pair(true, [](LoggedStrip& s) { s.setSearchTimeRange(0.500011, 0.6); }),
            std::pair(true, [](LoggedStrip& s) { s.setSearchTimeRange(0.5, 0.599989); }),
            std::pair(true, [](LoggedStrip& s) { s.resetSearchTimeRange(); }),
            std::pair(true, [](LoggedStrip& s) { s.displaySearchTimeRange(false); })};
        for (const auto& [isChange, set] : setters) {
            LoggedStrip strip;
            strip.setSearchTimeRange(0.5, 0.6);
            strip.displaySearchTimeRange(true);
            QVERIFY(QTest::qWaitForWindowActive(&strip));
            // The strip may find itself under the mouse cursor, and shows that.
            do {
                strip.repaintRequests = 0;
                QCoreApplication::processEvents();
                QCoreApplication::sendPostedEvents();
            } while (strip.repaintRequests > 0);
            set(strip);
            QCoreApplication::processEvents();
            QCOMPARE(strip.repaintRequests > 0, isChange);
            QCOMPARE(strip.moves, QList<double>());
        }
    }

    void focusFromTheKeyboardIsFramed()
    {
        LoggedStrip strip;
        const std::tuple<Qt::FocusReason, Qt::FocusReason, bool> changes[] = {
            {Qt::OtherFocusReason, Qt::ActiveWindowFocusReason, false},
            {Qt::TabFocusReason, Qt::BacktabFocusReason, true},
            {Qt::ActiveWindowFocusReason, Qt::ActiveWindowFocusReason, true},
            {Qt::MouseFocusReason, Qt::ActiveWindowFocusReason, false},
            {Qt::TabFocusReason, Qt::ShortcutFocusReason, true},
            {Qt::PopupFocusReason, Qt::MouseFocusReason, false}};
        for (const auto& [left, came, framed] : changes) {
            QFocusEvent out(QEvent::FocusOut, left);
            QCoreApplication::sendEvent(&strip, &out);
            QVERIFY(strip.pixel(0, middle) != POrvGuiTheme::colorBlue);
            QFocusEvent in(QEvent::FocusIn, came);
            QCoreApplication::sendEvent(&strip, &in);
            QCOMPARE(strip.pixel(0, middle) == POrvGuiTheme::colorBlue, framed);
        }
    }

    void assistiveTechnology()
    {
        static QList<double> reports;
        LoggedStrip strip;
        QAccessibleInterface* const described = QAccessible::queryAccessibleInterface(&strip);
        QCOMPARE(described->role(), QAccessible::ScrollBar);
        QCOMPARE(described->text(QAccessible::Name), u"Timeline overview"_s);
        QCOMPARE(described->text(QAccessible::Value), u"30.0 percent"_s);
        QAccessibleValueInterface* const value = described->valueInterface();
        QCOMPARE((QVariantList{value->minimumValue(), value->maximumValue(), value->currentValue(),
                               value->minimumStepSize()}),
                 (QVariantList{0.0, 1.0, 0.3, 0.02}));

        strip.setAccessibleName(u"Gate"_s);
        QCOMPARE(described->text(QAccessible::Name), u"Gate"_s);

        const auto previous = QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
            if (event->type() == QAccessible::ValueChanged)
                reports << static_cast<QAccessibleValueChangeEvent*>(event)->value().toDouble();
        });
        for (const QVariant& wanted : QVariantList{u"x"_s, std::nan(""), 0.6, 7})
            setAccessibleValue(strip, wanted);

        strip.onCenterPositionChanged(0.4);
        strip.onCenterPositionChanged(0.4);
        strip.press(40);
        strip.moveTo(60);
        strip.setActive(false);
        setAccessibleValue(strip, 0.5);
        QAccessible::installUpdateHandler(previous);
        QCOMPARE(strip.moves, (QList<double>{0.6, 0.9, 0.6}));
        if (QAccessible::isActive()) // else Qt passes no events on
            QCOMPARE(reports, (QList<double>{0.6, 0.9, 0.4, 0.6}));
    }

    void deletionWithinTheSignal()
    {
        for (const Act& act : std::initializer_list<std::function<void(LoggedStrip&)>>{
                 [](LoggedStrip& strip) { strip.press(60), strip.release(60); },
                 [](LoggedStrip& strip) { strip.press(60); },
                 [](LoggedStrip& strip) { strip.press(30), strip.moveTo(50); },
                 [](LoggedStrip& strip) { QTest::keyPress(&strip, Qt::Key_End); },
                 [](LoggedStrip& strip) { setAccessibleValue(strip, 0.5); },
             })
            QVERIFY(isDeletedBy(act, &TimelineScroll::viewAreaMoved));
    }
};

QTEST_MAIN(TestTimelineScroll)
#include "tst_timelinescroll.moc"
