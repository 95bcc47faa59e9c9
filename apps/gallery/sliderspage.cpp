// SPDX-License-Identifier: MIT
#include "sliderspage.h"

#include <CorvelGui/PSlider>
#include <CorvelGui/PopupSliderToolButton>
#include <CorvelGui/RangeSlider>
#include <CorvelGui/VideoSlider>

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QSpinBox>
#include <QTimer>

#include <algorithm>

using CorvelGui::PopupSliderToolButton;
using CorvelGui::PSlider;
using CorvelGui::RangeSlider;
using CorvelGui::VideoSlider;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

QFormLayout* createGroup(const QString& title, QLayout* page)
{
    auto* group = new QGroupBox(title);
    auto* form = new QFormLayout(group);
    form->setVerticalSpacing(10);
    page->addWidget(group);
    return form;
}

QString percent(int value)
{
    return SlidersPage::tr("%1 %").arg(value);
}

PSlider* createPlain(Qt::Orientation orientation, int value)
{
    auto* slider = new PSlider(orientation);
    slider->setRange(0, 100);
    slider->setSingleStep(5);
    slider->setValue(value);
    slider->setValueText(percent);
    slider->setTickTexts({{0, SlidersPage::tr("Quiet")},
                          {50, SlidersPage::tr("Half")},
                          {100, SlidersPage::tr("Loud")}});
    return slider;
}

PSlider* addPlain(QLayout* page)
{
    QFormLayout* form = createGroup(SlidersPage::tr("Slider"), page);
    PSlider* slider = createPlain(Qt::Horizontal, 35);
    auto* tip = new QCheckBox(SlidersPage::tr("Value while dragging"));
    tip->setChecked(slider->hasValueTip());
    QObject::connect(tip, &QCheckBox::toggled, slider, &PSlider::setValueTip);
    PSlider* mirrored = createPlain(Qt::Horizontal, 35);
    mirrored->setLayoutDirection(Qt::RightToLeft);
    PSlider* disabled = createPlain(Qt::Horizontal, 35);
    disabled->setEnabled(false);
    auto* upright = createPlain(Qt::Vertical, 35);
    upright->setFixedHeight(110);
    form->addRow(SlidersPage::tr("With texts"), slider);
    form->addRow(QString(), tip);
    form->addRow(SlidersPage::tr("Right to left"), mirrored);
    form->addRow(SlidersPage::tr("Disabled"), disabled);
    form->addRow(SlidersPage::tr("Upright"), upright);
    return slider;
}

QPixmap drawPreview(const QString& text, qreal scale)
{
    QPixmap picture(QSize(160, 90) * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(QColor(40, 60, 80));
    QPainter painter(&picture);
    painter.setPen(Qt::white);
    painter.drawText(QRect(0, 0, 160, 90), Qt::AlignCenter, text);
    return picture;
}

VideoSlider* createVideo()
{
    auto* slider = new VideoSlider;
    slider->setDuration(5'400'000);
    slider->setPosition(1'500'000);
    slider->setBuffered(1'300'000, 2'600'000);
    slider->setMarks(
        {{.position = 900'000, .text = SlidersPage::tr("Door opened")},
         {.position = 3'300'000, .text = SlidersPage::tr("Alarm"), .color = QColor(230, 66, 58)}});
    return slider;
}

// A player whose seeks take a while.
void addVideo(QLayout* page)
{
    QFormLayout* form = createGroup(SlidersPage::tr("Video slider"), page);
    VideoSlider* slider = createVideo();
    auto* delay = new QSpinBox;
    delay->setRange(0, 5000);
    delay->setValue(500);
    delay->setSuffix(SlidersPage::tr(" ms"));
    auto* asked = new QLabel(SlidersPage::tr("nothing yet"));
    auto* plays = new QCheckBox(SlidersPage::tr("Plays"));
    QObject::connect(slider, &VideoSlider::seekRequested, asked, [=](qint64 place) {
        asked->setText(slider->textOf(place));
        QTimer::singleShot(delay->value(), slider, &VideoSlider::seekDone);
    });
    QObject::connect(slider, &VideoSlider::previewRequested, slider, [slider](qint64 place) {
        slider->setPreview(place, drawPreview(slider->textOf(place), slider->devicePixelRatioF()));
    });
    auto* clock = new QTimer(slider);
    clock->setInterval(100);
    QObject::connect(clock, &QTimer::timeout, slider,
                     [slider] { slider->setPosition(slider->position() + 100); });
    QObject::connect(plays, &QCheckBox::toggled, clock,
                     [clock](bool on) { on ? clock->start() : clock->stop(); });
    VideoSlider* disabled = createVideo();
    disabled->setEnabled(false);
    form->addRow(SlidersPage::tr("With marks"), slider);
    form->addRow(QString(), plays);
    form->addRow(SlidersPage::tr("A seek takes"), delay);
    form->addRow(SlidersPage::tr("Asked for"), asked);
    form->addRow(SlidersPage::tr("Disabled"), disabled);
    form->addRow(SlidersPage::tr("Without a video"), new VideoSlider);
}

RangeSlider* createRange()
{
    auto* slider = new RangeSlider;
    slider->setLimits(0, 24);
    slider->setValues(8, 18);
    slider->setMinimumDistance(1);
    slider->setValueText([](int hour) { return SlidersPage::tr("%1:00").arg(hour); });
    return slider;
}

void addRange(QLayout* page)
{
    QFormLayout* form = createGroup(SlidersPage::tr("Range slider"), page);
    RangeSlider* slider = createRange();
    auto* distance = new QSpinBox;
    distance->setRange(0, 24);
    distance->setValue(slider->minimumDistance());
    QObject::connect(distance, &QSpinBox::valueChanged, slider, &RangeSlider::setMinimumDistance);
    auto* shown = new QLabel;
    const auto showValues = [=] {
        shown->setText(slider->textOf(slider->lowerValue()) + u" – "_s +
                       slider->textOf(slider->upperValue()));
    };
    QObject::connect(slider, &RangeSlider::valuesChanged, shown, showValues);
    showValues();
    RangeSlider* mirrored = createRange();
    mirrored->setLayoutDirection(Qt::RightToLeft);
    RangeSlider* disabled = createRange();
    disabled->setEnabled(false);
    form->addRow(SlidersPage::tr("Hours of a day"), slider);
    form->addRow(SlidersPage::tr("Selected"), shown);
    form->addRow(SlidersPage::tr("Minimum distance"), distance);
    form->addRow(SlidersPage::tr("Right to left"), mirrored);
    form->addRow(SlidersPage::tr("Disabled"), disabled);
}

void addButtons(QLayout* page)
{
    QFormLayout* form = createGroup(SlidersPage::tr("Buttons with a slider"), page);
    auto* volume = new PopupSliderToolButton;
    volume->setLimits(0, 100);
    volume->slider()->setSingleStep(5);
    volume->slider()->setValueText(percent);
    auto* speed = new PopupSliderToolButton;
    speed->setLimits(1, 16);
    speed->setOrientation(Qt::Horizontal);
    speed->slider()->setValueText([](int factor) { return u"× %1"_s.arg(factor); });
    for (PopupSliderToolButton* button : {volume, speed}) {
        const auto showValue = [button] {
            button->setText(button->slider()->textOf(button->value()));
        };
        QObject::connect(button, &PopupSliderToolButton::valueChanged, button, showValue);
        button->setMinimumWidth(70);
        showValue();
    }
    volume->setValue(50);
    form->addRow(SlidersPage::tr("Volume"), volume);
    form->addRow(SlidersPage::tr("Speed"), speed);
}

} // namespace

SlidersPage::SlidersPage(QWidget* parent) : QWidget(parent)
{
    auto* columns = new QHBoxLayout(this);
    auto* left = new QVBoxLayout;
    auto* right = new QVBoxLayout;
    columns->addLayout(left, 1);
    columns->addLayout(right, 1);
    m_focused = addPlain(left);
    addButtons(left);
    left->addStretch();
    addVideo(right);
    addRange(right);
    right->addStretch();
}

void SlidersPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_focused->setFocus(Qt::TabFocusReason);
}

} // namespace Gallery
