// SPDX-License-Identifier: MIT
#include "popupslidertoolbutton.h"

#include "base/controlemissions.h"
#include "base/wheelturns.h"
#include "pslider.h"
#include "slidertip.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QTimer>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QWidgetAction>

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

namespace CorvelGui {

namespace {

constexpr int sliderLength = 120;
constexpr auto tipTime = 1s;

} // namespace

struct PopupSliderToolButton::Private
{
    QMenu* menu = nullptr;
    PSlider* slider = nullptr;
    QLabel* valueLabel = nullptr;
    SliderTip* tip = nullptr;
    QTimer tipTimer;
    WheelTurns turns;
    ControlEmissions emissions;
};

PopupSliderToolButton::PopupSliderToolButton(QWidget* parent)
    : QToolButton(parent), d(std::make_unique<Private>())
{
    d->menu = new QMenu(this);
    auto* panel = new QWidget;
    d->slider = new PSlider(Qt::Vertical, panel);
    d->slider->setMinimumHeight(sliderLength);
    d->slider->setValueTip(false);
    d->valueLabel = new QLabel(panel);
    d->valueLabel->setAlignment(Qt::AlignCenter);
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->addWidget(d->slider, 1, Qt::AlignCenter);
    layout->addWidget(d->valueLabel);
    panel->setFocusProxy(d->slider);
    auto* action = new QWidgetAction(d->menu);
    action->setDefaultWidget(panel);
    d->menu->addAction(action);
    setMenu(d->menu);
    setPopupMode(InstantPopup);
    setFocusPolicy(Qt::StrongFocus);

    d->tip = new SliderTip(this);
    d->tipTimer.setSingleShot(true);
    connect(&d->tipTimer, &QTimer::timeout, d->tip, &QWidget::hide);
    connect(d->menu, &QMenu::aboutToShow, this, [this] {
        describeValue();
        d->tip->hide();
        // Once it is there: a menu gives the focus to nothing.
        QTimer::singleShot(0, d->slider, [this] { d->slider->setFocus(Qt::PopupFocusReason); });
    });
    connect(d->slider, &QSlider::rangeChanged, this, [this](int minimum, int maximum) {
        d->emissions.run([&] { Q_EMIT limitsChanged(minimum, maximum); });
    });
    connect(d->slider, &QSlider::valueChanged, this, [this](int value) {
        describeValue();
        d->emissions.run([&] { Q_EMIT valueChanged(value); });
    });
    retranslate();
    describeValue();
}

PopupSliderToolButton::~PopupSliderToolButton()
{
    // Qt goes on with the slider after its signals.
    d->slider->disconnect(this);
    d->menu->close();
    d->emissions.release({d->menu});
}

int PopupSliderToolButton::minimum() const
{
    return d->slider->minimum();
}

void PopupSliderToolButton::setMinimum(int minimum)
{
    d->slider->setMinimum(minimum);
}

int PopupSliderToolButton::maximum() const
{
    return d->slider->maximum();
}

void PopupSliderToolButton::setMaximum(int maximum)
{
    d->slider->setMaximum(maximum);
}

void PopupSliderToolButton::setLimits(int minimum, int maximum)
{
    d->slider->setRange(minimum, maximum);
}

int PopupSliderToolButton::value() const
{
    return d->slider->value();
}

Qt::Orientation PopupSliderToolButton::orientation() const
{
    return d->slider->orientation();
}

void PopupSliderToolButton::setOrientation(Qt::Orientation orientation)
{
    if (orientation == d->slider->orientation())
        return;
    const bool isUpright = orientation == Qt::Vertical;
    d->slider->setOrientation(orientation);
    d->slider->setMinimumSize(isUpright ? 0 : sliderLength, isUpright ? sliderLength : 0);
    Q_EMIT orientationChanged(orientation);
}

PSlider* PopupSliderToolButton::slider() const
{
    return d->slider;
}

void PopupSliderToolButton::setValue(int value)
{
    d->slider->setValue(value);
}

void PopupSliderToolButton::wheelEvent(QWheelEvent* event)
{
    event->accept();
    const QPoint angle = event->angleDelta();
    step(d->turns.add(WheelTurns::isSideways(angle) ? -angle.x() : angle.y()));
}

void PopupSliderToolButton::keyPressEvent(QKeyEvent* event)
{
    if (event->modifiers().testFlag(Qt::AltModifier) && event->key() == Qt::Key_Down)
        showMenu();
    else if (event->key() == Qt::Key_Up)
        step(1);
    else if (event->key() == Qt::Key_Down)
        step(-1);
    else
        QToolButton::keyPressEvent(event);
}

void PopupSliderToolButton::changeEvent(QEvent* event)
{
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void PopupSliderToolButton::step(int by)
{
    if (by == 0)
        return;
    const qint64 wanted = value() + qint64(by) * d->slider->singleStep();
    const QPointer<PopupSliderToolButton> alive(this);
    setValue(int(std::clamp<qint64>(wanted, minimum(), maximum())));
    if (!alive || !isVisible())
        return;
    d->tip->say(rect(), d->slider->textOf(value()));
    d->tipTimer.start(tipTime);
}

// As wide as any value, so that the pop-up does not change its size.
void PopupSliderToolButton::describeValue()
{
    const QString text = d->slider->textOf(value());
    d->valueLabel->setText(text);
    int widest = 0;
    for (const int shown : {minimum(), value(), maximum()})
        widest = std::max(widest,
                          d->valueLabel->fontMetrics().horizontalAdvance(d->slider->textOf(shown)));
    d->valueLabel->setMinimumWidth(std::max(widest, d->valueLabel->minimumWidth()));
    setAccessibleDescription(text);
}

void PopupSliderToolButton::retranslate()
{
    d->slider->setAccessibleName(tr("Value"));
}

} // namespace CorvelGui
