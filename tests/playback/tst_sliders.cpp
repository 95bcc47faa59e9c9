// SPDX-License-Identifier: MIT
#include "rangevalues.h"
#include "seekgate.h"
#include "slidertip.h"
#include "testsupport.h"

#include <CorvelGui/PSlider>
#include <CorvelGui/PopupSliderToolButton>
#include <CorvelGui/RangeSlider>
#include <CorvelGui/VideoSlider>

#include <QMenu>

using namespace CorvelGui;

namespace {

SliderTip* tipOf(const QWidget& slider)
{
    return slider.findChild<SliderTip*>(QString(), Qt::FindDirectChildrenOnly);
}

QAccessibleInterface* spokenOf(QObject* object)
{
    return QAccessible::queryAccessibleInterface(object);
}

void press(QWidget& widget, QPoint at)
{
    QTest::mousePress(&widget, Qt::LeftButton, {}, at);
}

void release(QWidget& widget, QPoint at)
{
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, at);
}

} // namespace

class TestSliders : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void clicksGoToThePlace()
    {
        for (const auto& [orientation, direction, ticks, share, value] :
             {std::tuple(Qt::Horizontal, Qt::LeftToRight, false, 0.75, 3),
              {Qt::Horizontal, Qt::RightToLeft, false, 0.75, 1},
              {Qt::Vertical, Qt::LeftToRight, true, 0.25, 3},
              {Qt::Horizontal, Qt::LeftToRight, true, 0.95, 4}}) {
            PSlider slider(orientation);
            slider.setLayoutDirection(direction);
            slider.setRange(0, 4);
            if (ticks)
                slider.setTickTexts({{0, u"least"_s}, {4, u"most"_s}, {9, u"not seen"_s}});
            const bool flat = orientation == Qt::Horizontal;
            slider.resize(flat ? QSize(400, slider.sizeHint().height())
                               : QSize(slider.sizeHint().width(), 400));
            slider.show();
            QSignalSpy moves(&slider, &QSlider::sliderMoved);
            const int place = int(400 * share);
            // Not in the middle of the step: what follows is a drag all the same.
            const QPoint at = flat ? QPoint(place + 3, 8) : QPoint(8, place + 3);
            press(slider, at);
            QCOMPARE(slider.value(), value);
            QVERIFY(slider.isSliderDown());
            QCOMPARE(moves.size(), 1);
            QCOMPARE(tipOf(slider)->text(), QString::number(value));
            moveMouse(slider, flat ? QPoint(200, 8) : QPoint(8, 200), Qt::LeftButton);
            QCOMPARE(slider.value(), 2);
            release(slider, at);
            QVERIFY(!slider.isSliderDown() && !tipOf(slider)->isVisible());
        }
    }

    void aNotchIsAStep()
    {
        for (const auto& [angle, direction, inverted, value] :
             {std::tuple(QPoint(0, 120), Qt::LeftToRight, false, 53),
              {QPoint(0, -240), Qt::LeftToRight, false, 44},
              {QPoint(0, 60), Qt::LeftToRight, false, 50},
              {QPoint(-120, 0), Qt::LeftToRight, false, 53},
              {QPoint(-120, 0), Qt::RightToLeft, false, 47},
              {QPoint(0, 120), Qt::RightToLeft, true, 47}}) {
            PSlider slider;
            slider.setLayoutDirection(direction);
            slider.setInvertedControls(inverted);
            slider.setSingleStep(3);
            slider.setValue(50);
            QVERIFY(turnWheel(&slider, {8, 8}, angle));
            QCOMPARE(slider.value(), value);
        }
    }

    void valuesAreSpoken()
    {
        PSlider slider;
        slider.setAccessibleName(u"Volume"_s);
        slider.setValueText([](int value) { return u"%1 %"_s.arg(value); });
        slider.setValue(40);
        QAccessibleInterface* spoken = spokenOf(&slider);
        QCOMPARE(spoken->role(), QAccessible::Slider);
        QCOMPARE(spoken->text(QAccessible::Name), u"Volume"_s);
        QCOMPARE(spoken->text(QAccessible::Value), u"40 %"_s);
        spoken->valueInterface()->setCurrentValue(70);
        QCOMPARE(slider.value(), 70);
        slider.setValueTip(false);
        slider.show();
        press(slider, {2, 8});
        QVERIFY(!tipOf(slider)->isVisible());
    }

    void oneSeekAtATime()
    {
        SeekGate gate;
        QVERIFY(gate.want(1));
        QVERIFY(!gate.want(2) && !gate.want(3));
        QCOMPARE(gate.done(), std::optional<qint64>(3));
        QVERIFY(!gate.want(4) && !gate.want(3)); // 3 is on its way
        QCOMPARE(gate.done(), std::nullopt);
        QVERIFY(!gate.isBusy() && !gate.done());

        Shown<VideoSlider> slider;
        slider.resize(216, 22); // 200 pixels of time
        slider.setDuration(200'000);
        QSignalSpy asked(&slider, &VideoSlider::seekRequested);
        QSignalSpy seeking(&slider, &VideoSlider::seekingChanged);
        press(slider, {58, 10});
        for (const int x : {68, 88, 108})
            moveMouse(slider, QPoint(x, 10), Qt::LeftButton);
        slider.setPosition(7'000); // the player does not know yet
        QCOMPARE(slider.position(), 100'000);
        QCOMPARE(asked.size(), 1);
        slider.seekDone();
        QCOMPARE(asked.size(), 2);
        QCOMPARE(asked.at(1).at(0).toLongLong(), 100'000);
        release(slider, {108, 10});
        slider.setPosition(7'000);
        QCOMPARE(slider.position(), 100'000);
        slider.seekDone();
        QVERIFY(!slider.isSeeking());
        QCOMPARE(seeking.size(), 2);
        slider.setPosition(99'000);
        QCOMPARE(slider.position(), 99'000);
        QCOMPARE(asked.size(), 2);
        press(slider, {58, 10});
        slider.forgetSeeks();
        QVERIFY(!slider.isSeeking() && !seeking.last()[0].toBool());
    }

    void keysOfAVideo()
    {
        Shown<VideoSlider> slider;
        slider.setDuration(3'600'000);
        slider.setMarks({{.position = 700'000}, {.position = 100'000}, {.position = 9'000'000}});
        slider.setPosition(600'000);
        connect(&slider, &VideoSlider::seekRequested, &slider, &VideoSlider::seekDone);
        const std::tuple<Qt::Key, Qt::KeyboardModifiers, qint64> keys[] = {
            {Qt::Key_Right, {}, 605'000},
            {Qt::Key_Down, {}, 600'000},
            {Qt::Key_PageUp, {}, 660'000},
            {Qt::Key_Right, Qt::ControlModifier, 700'000},
            {Qt::Key_Right, Qt::ControlModifier, 700'000},
            {Qt::Key_Left, Qt::ControlModifier, 100'000},
            {Qt::Key_Home, {}, 0},
            {Qt::Key_PageDown, {}, 0},
            {Qt::Key_End, {}, 3'600'000}};
        for (const auto& [key, held, position] : keys) {
            QTest::keyClick(&slider, key, held);
            QCOMPARE(slider.position(), position);
        }
        QCOMPARE(spokenOf(&slider)->text(QAccessible::Value), u"1:00:00 of 1:00:00"_s);
        QVERIFY(turnWheel(&slider, {9, 9}, {0, -120}));
        QCOMPARE(slider.position(), 3'595'000);
        press(slider, {9, 9});
        QTest::keyClick(&slider, Qt::Key_Escape);
        QCOMPARE(slider.position(), 3'595'000);
        QVERIFY(!slider.isDragging());
        press(slider, {9, 9});
        slider.hide();
        QTRY_VERIFY(!slider.isDragging());
        constexpr qint64 endless = std::numeric_limits<qint64>::max();
        slider.setDuration(endless);
        slider.setSingleStep(endless);
        press(slider, {298, 9});
        QCOMPARE(slider.position(), slider.duration());
        QTest::keyClick(&slider, Qt::Key_Right);
        QCOMPARE(slider.position(), slider.duration());
        slider.setDuration(-5);
        QCOMPARE(slider.position(), 0);
    }

    void hoveringAVideo()
    {
        Shown<VideoSlider> slider;
        slider.resize(216, 22);
        slider.setDuration(200'000);
        slider.setMarks({{.position = 50'000, .text = u"<b>Door</b>"_s}});
        QSignalSpy wanted(&slider, &VideoSlider::previewRequested);
        const SliderTip* tip = tipOf(slider);
        moveMouse(slider, QPoint(60, 10));
        QCOMPARE(tip->text(), u"0:52\n<b>Door</b>"_s);
        QTRY_COMPARE(wanted.size(), 1);
        QCOMPARE(wanted.at(0).at(0).toLongLong(), 52'000);
        const int plain = tip->height();
        QPixmap picture(80, 60);
        picture.fill(Qt::red);
        slider.setPreview(52'000, picture);
        QVERIFY(tip->sizeHint().height() > plain);
        moveMouse(slider, QPoint(100, 10)); // the picture is of another place
        QCOMPARE(tip->text(), u"1:32"_s);
        QVERIFY(tip->sizeHint().height() < plain);
        leaveMouse(slider);
        QVERIFY(!tip->isVisible());
    }

    void limitsOfARange()
    {
        constexpr int least = std::numeric_limits<int>::min();
        constexpr int most = std::numeric_limits<int>::max();
        using Act = std::function<void(RangeValues&)>;
        const std::tuple<Act, int, int> rows[] = {
            {[](RangeValues& v) { v.moveLower(90); }, 60, 70},
            {[](RangeValues& v) { v.moveUpper(-5); }, 30, 40},
            {[](RangeValues& v) { v.moveBoth(99); }, 60, 100},
            {[](RangeValues& v) { v.moveBoth(-99); }, 0, 40},
            {[](RangeValues& v) { v.set(80, 20); }, 20, 80},
            {[](RangeValues& v) { v.set(99, 99); }, 90, 100},
            {[](RangeValues& v) { v.setLimits(50, 60, 10); }, 50, 60},
            {[](RangeValues& v) { v.setLimits(80, 20, 10); }, 80, 80},
            {[](RangeValues& v) { v.setLimits(0, 100, 55); }, 30, 85},
            {[](RangeValues& v) { v.setLimits(0, 100, -3), v.set(5, 5); }, 5, 5},
            {[](RangeValues& v) { v.setLimits(least, most, most), v.moveBoth(least); }, least, -1},
        };
        for (const auto& [act, lower, upper] : rows) {
            RangeValues values{.lower = 30, .upper = 70, .distance = 10};
            act(values);
            QCOMPARE(std::pair(values.lower, values.upper), std::pair(lower, upper));
        }
    }

    void handlesOfARange()
    {
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            Shown<RangeSlider> slider;
            slider.setLayoutDirection(direction);
            slider.resize(222, 22); // 200 pixels for the values
            const auto at = [&](int value) {
                return QPoint(direction == Qt::LeftToRight ? 11 + 2 * value : 211 - 2 * value, 10);
            };
            const QPoint outwards(direction == Qt::LeftToRight ? 4 : -4, 0);
            slider.setValues(20, 60);
            slider.setMinimumDistance(10);
            QSignalSpy edits(&slider, &RangeSlider::valuesEdited);
            const auto drag = [&](QPoint from, QPoint to) {
                press(slider, from);
                moveMouse(slider, to, Qt::LeftButton);
                release(slider, to);
                return std::pair(slider.lowerValue(), slider.upperValue());
            };
            QCOMPARE(drag(at(60) + outwards, at(80) + outwards), std::pair(20, 80));
            QCOMPARE(drag(at(20) - outwards, at(90) - outwards), std::pair(70, 80));
            QCOMPARE(drag(at(75), at(15)), std::pair(10, 20)); // the whole
            QCOMPARE(drag(at(75), at(-9)), std::pair(10, 20)); // a click brings the upper one
            QCOMPARE(edits.size(), 5);
            QVERIFY(slider.isAncestorOf(QApplication::focusWidget()));

            slider.setValues(40, 60);
            slider.setMaximum(100);
            QCOMPARE(slider.minimum(), 0);
            QCOMPARE(edits.size(), 5);
            const int right = direction == Qt::LeftToRight ? 1 : -1;

            slider.focusProxy()->setFocus(Qt::TabFocusReason);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
            QCOMPARE(slider.lowerValue(), 40 + right);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageUp);
            QCOMPARE(slider.upperValue(), 70);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Home, Qt::ShiftModifier);
            QCOMPARE(slider.lowerValue(), 0);
            QCOMPARE(slider.upperValue(), 30 - right);
            QAccessibleInterface* spoken = spokenOf(QApplication::focusWidget());
            QCOMPARE(spoken->text(QAccessible::Name), u"To"_s);
            spoken->valueInterface()->setCurrentValue(-50);
            QCOMPARE(slider.upperValue(), 10);
        }
    }

    void buttonWithASlider()
    {
        Shown<PopupSliderToolButton> button;
        button.setLimits(0, 10);
        button.setValue(99);
        QCOMPARE(button.value(), 10);
        button.slider()->setValueText([](int value) { return u"x%1"_s.arg(value); });
        QVERIFY(turnWheel(&button, {8, 8}, {0, -240}));
        QCOMPARE(button.value(), 8);
        QCOMPARE(tipOf(button)->text(), u"x8"_s);
        QTest::keyClick(&button, Qt::Key_Up);
        QCOMPARE(spokenOf(&button)->text(QAccessible::Description), u"x9"_s);

        QTimer::singleShot(0, &button, [&] {
            QTRY_COMPARE(QApplication::focusWidget(), button.slider());
            QTest::keyClick(button.slider(), Qt::Key_Home);
            QTest::keyClick(button.slider(), Qt::Key_Escape);
        });
        QTest::mouseClick(&button, Qt::LeftButton);
        QTRY_VERIFY(!button.menu()->isVisible());
        QCOMPARE(button.value(), 0);
    }

    void deletionInSignals()
    {
        static constexpr QPoint place(200, 8);
        const std::function<void(Shown<PSlider>&)> acts[] = {
            [](auto& slider) { press(slider, place); },
            [](auto& slider) {
                slider.setTracking(false);
                press(slider, place);
                release(slider, place);
            },
            [](auto& slider) {
                turnWheel(&slider, place, QPoint(0, 360));
            }};
        for (const auto& act : acts)
            QVERIFY(isDeletedBy(act, &QSlider::valueChanged));
        const auto pressVideo = [](auto& slider) {
            slider.setDuration(1000);
            press(slider, {90, 8});
        };
        QVERIFY(isDeletedBy<Shown<VideoSlider>>(pressVideo, &VideoSlider::draggingChanged));
        QVERIFY(isDeletedBy<Shown<VideoSlider>>(pressVideo, &VideoSlider::positionChanged));
        QVERIFY(isDeletedBy<Shown<VideoSlider>>(pressVideo, &VideoSlider::seekRequested));
        QVERIFY(isDeletedBy<Shown<RangeSlider>>(
            [](auto& slider) { QTest::keyClick(slider.focusProxy(), Qt::Key_Up); },
            &RangeSlider::valuesEdited));
        QVERIFY(isDeletedBy<Shown<RangeSlider>>([](auto& slider) { slider.setLimits(500, 600); },
                                                &RangeSlider::limitsChanged));
        QVERIFY(isDeletedBy<Shown<PopupSliderToolButton>>(
            [](auto& button) { turnWheel(&button, place, QPoint(0, 120)); },
            &PopupSliderToolButton::valueChanged));
        QVERIFY(isDeletedBy<Shown<PopupSliderToolButton>>(
            [](auto& button) {
                QTimer::singleShot(0, &button, [&button] {
                    QTRY_COMPARE(QApplication::focusWidget(), button.slider());
                    press(*button.slider(), {8, 60});
                });
                button.showMenu();
            },
            &PopupSliderToolButton::valueChanged));
    }
};

QTEST_MAIN(TestSliders)
#include "tst_sliders.moc"
