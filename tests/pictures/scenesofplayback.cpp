// SPDX-License-Identifier: MIT
#include "scenes.h"
#include "sheet.h"
#include "testsupport.h"

#include "playback/jumptotimepointdialog.h"
#include "playback/slidertip.h"

#include <CorvelGui/PDateEdit>
#include <CorvelGui/PDateTimeSelectionDialog>
#include <CorvelGui/PInputDateTimeWithRange>
#include <CorvelGui/PPlaybar>
#include <CorvelGui/PSlider>
#include <CorvelGui/PopupSliderToolButton>
#include <CorvelGui/RangeSlider>
#include <CorvelGui/TarvoDateTimeView>
#include <CorvelGui/VideoSlider>

#include <QMenu>

using namespace CorvelGui;

namespace {

QDateTime inNewYork(const QString& utc)
{
    return QDateTime::fromString(utc, Qt::ISODate).toTimeZone(QTimeZone("America/New_York"));
}

PSlider* plainSlider(Qt::Orientation orientation)
{
    auto* slider = new PSlider(orientation);
    slider->setRange(0, 100);
    slider->setValue(35);
    slider->setTickTexts({{0, u"Quiet"_s}, {50, u"Half"_s}, {100, u"Loud"_s}});
    return slider;
}

VideoSlider* videoSlider()
{
    auto* slider = new VideoSlider;
    slider->setDuration(5'400'000);
    slider->setPosition(1'500'000);
    slider->setBuffered(1'300'000, 2'600'000);
    slider->setMarks({{.position = 900'000, .text = u"Door"_s},
                      {.position = 3'300'000, .text = u"Alarm"_s, .color = QColor(230, 66, 58)}});
    return slider;
}

RangeSlider* rangeSlider(int lower = 8, int upper = 18)
{
    auto* slider = new RangeSlider;
    slider->setLimits(0, 24);
    slider->setValues(lower, upper);
    return slider;
}

/// The tip of a slider whose mouse button is held on @p position.
void showTip(Sheet& sheet, const QString& name, QWidget& slider, QPoint position)
{
    QTest::mousePress(&slider, Qt::LeftButton, {}, position);
    for (auto* tip : slider.window()->findChildren<SliderTip*>())
        if (tip->isVisible())
            sheet.grab(name, *tip);
}

} // namespace

void Scenes::playbar(Sheet& sheet)
{
    const auto show = [&sheet](const QString& name, PPlaybar::PlaybackState state,
                               PPlaybar::PlaybackSpeed speed, const auto&... acts) {
        auto* bar = new PPlaybar;
        bar->setPlaybackState(state);
        bar->setPlaybackSpeed(speed);
        sheet.show(name, bar, {}, acts...);
    };
    show(u"paused"_s, PPlaybar::Pause, PPlaybar::SpeedZero);
    show(u"playing"_s, PPlaybar::Play, PPlaybar::Speed1);
    show(u"slow"_s, PPlaybar::SlowForward, PPlaybar::Speed1_8);
    show(u"fast"_s, PPlaybar::FastForward, PPlaybar::Speed1024);
    show(u"reverse"_s, PPlaybar::Reverse, PPlaybar::Speed1);
    show(u"fast reverse"_s, PPlaybar::FastBackward, PPlaybar::Speed4);
    show(u"live"_s, PPlaybar::Pause, PPlaybar::SpeedZero,
         [](PPlaybar& bar) { bar.setLiveMode(true, true); });
    show(u"no reverse"_s, PPlaybar::Pause, PPlaybar::SpeedZero,
         [](PPlaybar& bar) { bar.setLiveMode(false, false); });
    show(u"disabled"_s, PPlaybar::Play, PPlaybar::Speed1, disable);
    show(u"no speed"_s, PPlaybar::Play, PPlaybar::Speed1,
         [](PPlaybar& bar) { bar.setSpeedVisible(false); });
    show(u"under the mouse, and with the focus"_s, PPlaybar::Play, PPlaybar::Speed1,
         [](PPlaybar& bar) {
             hover(*bar.findChild<QToolButton*>(u"buttonPlay"_s));
             hover(*bar.findChild<QToolButton*>(u"buttonFastForward"_s));
             focus(*bar.findChild<QToolButton*>(u"buttonPause"_s));
         });
    show(u"large"_s, PPlaybar::Play, PPlaybar::Speed1, [](PPlaybar& bar) {
        bar.setIconSize({40, 40});
    });
}

void Scenes::sliders(Sheet& sheet)
{
    const QSize size(220, 0);
    sheet.show(u"slider"_s, plainSlider(Qt::Horizontal), size, [&](PSlider& slider) {
        slider.setValueText([](int value) { return u"%1 %"_s.arg(value); });
        showTip(sheet, u"tip"_s, slider, {60, slider.height() / 3});
    });
    sheet.show(u"slider with focus"_s, plainSlider(Qt::Horizontal), size, focus);
    sheet.show(u"mirrored slider"_s, plainSlider(Qt::Horizontal), size, mirror);
    sheet.show(u"disabled slider"_s, plainSlider(Qt::Horizontal), size, disable);
    sheet.show(u"upright slider"_s, plainSlider(Qt::Vertical), {0, 110});
    sheet.show(u"upright slider, inverted"_s, plainSlider(Qt::Vertical), {0, 110},
               [](PSlider& slider) { slider.setInvertedAppearance(true); });

    sheet.show(u"video"_s, videoSlider(), size);
    sheet.showAt(2, u"video at scale 2"_s, videoSlider(), {110, 0});
    sheet.show(u"video with focus"_s, videoSlider(), size, focus);
    sheet.show(u"disabled video"_s, videoSlider(), size, disable);
    sheet.show(u"mirrored video"_s, videoSlider(), size, mirror);
    sheet.show(u"dragged video"_s, videoSlider(), size, [&](VideoSlider& slider) {
        showTip(sheet, u"tip of a video"_s, slider, {134, slider.height() / 2});
    });
    sheet.show(u"hovered video"_s, videoSlider(), size, hover, [](VideoSlider& slider) {
        moveMouse(slider, {120, slider.height() / 2.0});
        QPixmap picture(80, 45);
        picture.fill(QColor(40, 60, 80));
        slider.setPreview(2'900'000, picture);
    });
    sheet.show(u"no video"_s, new VideoSlider, size);

    sheet.show(u"range"_s, rangeSlider(), size);
    sheet.show(u"whole range"_s, rangeSlider(0, 24), size);
    sheet.show(u"empty range"_s, rangeSlider(12, 12), size);
    sheet.showAt(2, u"range at scale 2"_s, rangeSlider(), {110, 0});
    sheet.show(u"mirrored range"_s, rangeSlider(3, 9), size, mirror);
    sheet.show(u"disabled range"_s, rangeSlider(), size, disable);
    for (const bool isLast : {false, true})
        sheet.show(u"range with focus"_s, rangeSlider(), size, [isLast](RangeSlider& slider) {
            QList<QWidget*> handles = slider.findChildren<QWidget*>();
            handles.removeIf(
                [](const QWidget* child) { return child->focusPolicy() == Qt::NoFocus; });
            focus(*(isLast ? handles.last() : handles.first()));
        });
    sheet.show(u"dragged range"_s, rangeSlider(), size, [&](RangeSlider& slider) {
        showTip(sheet, u"tip of a range"_s, slider, {110, slider.height() / 2});
    });

    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        auto* button = new PopupSliderToolButton;
        button->setLimits(0, 100);
        button->setValue(50);
        button->setOrientation(orientation);
        button->setText(u"Volume"_s);
        sheet.show(u"button with a slider"_s, button, {}, [&](PopupSliderToolButton& shown) {
            shown.menu()->popup({});
            sheet.grab(u"its slider"_s, *shown.menu());
            shown.menu()->close();
        });
    }
}

void Scenes::dates(Sheet& sheet)
{
    const auto view = [&sheet](const QString& name, const QString& moment, const auto&... acts) {
        auto* shown = new TarvoDateTimeView;
        shown->setDeviceName(u"Gate <north>"_s);
        shown->updateDateTime(QDateTime::fromString(moment, Qt::ISODateWithMs)
                                  .toTimeZone(QTimeZone("Europe/Brussels")));
        sheet.show(name, shown, {}, acts...);
    };
    using View = TarvoDateTimeView;
    const QString august = u"2026-08-18T10:15:30.250Z"_s;
    view(u"playing"_s, august);
    view(u"not playing"_s, august, [](View& shown) { shown.setPlayMode(false); });
    view(u"hour that comes twice"_s, u"2026-10-25T00:30:00Z"_s);
    view(u"no milliseconds"_s, august, [](View& shown) { shown.setShowMilliseconds(false); });
    view(u"disabled"_s, august, disable);
    view(u"focus"_s, august, focus);
    view(u"under the mouse"_s, august, hover);
    sheet.show(u"nothing"_s, new View, {},
               [](View& shown) { QTRY_VERIFY(shown.minimumWidth() > 0); });

    auto* jump = new JumpToTimepointDialog;
    jump->setDeviceName(u"Gate"_s);
    jump->setMoment(inNewYork(u"2026-08-18T12:30:00Z"_s));
    sheet.show(u"jump"_s, jump);

    const auto date = [&sheet](const QString& name, const auto&... acts) {
        auto* edit = new PDateEdit;
        edit->setChosenDate(QDate(2026, 8, 18));
        sheet.show(name, edit, {}, acts...);
    };
    date(u"date"_s);
    date(u"no date"_s, [](PDateEdit& edit) {
        edit.setEmptyAllowed(true);
        edit.setChosenDate({});
    });
    date(u"disabled date"_s, disable);

    auto* limited = new PDateTimeSelectionDialog;
    limited->setWindowFlags(Qt::Widget);
    limited->setDateTime(inNewYork(u"2026-08-18T12:30:00Z"_s));
    limited->setLimits(inNewYork(u"2026-08-01T04:00:00Z"_s), inNewYork(u"2026-08-15T04:00:00Z"_s));
    sheet.show(u"limits"_s, limited);
    for (const bool isEnabled : {true, false}) {
        auto* range = new PInputDateTimeWithRange;
        range->setTimeZone(QTimeZone("America/New_York"));
        range->setRange(inNewYork(u"2026-10-31T12:00:00Z"_s), inNewYork(u"2026-11-01T06:30:00Z"_s));
        range->setEnabled(isEnabled);
        sheet.show(u"range"_s, range);
    }
}
