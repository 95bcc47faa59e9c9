// SPDX-License-Identifier: MIT
#include "rangeslider.h"

#include "base/wheelturns.h"
#include "base/whilealive.h"
#include "rangesliderhandle.h"
#include "rangevalues.h"
#include "slidertip.h"

#include <Hueloft/POrvGuiTheme>

#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include <utility>

using Hueloft::POrvGuiTheme;

namespace CorvelGui {

namespace {

constexpr int trackHeight = 6;
constexpr int trackMargin = RangeSliderHandle::handleWidth + 1;

} // namespace

struct RangeSlider::Private
{
    RangeValues values;
    int singleStep = 1;
    int pageStep = 10;
    ValueText valueText;
    RangeSliderHandle* lower = nullptr;
    RangeSliderHandle* upper = nullptr;
    SliderTip* tip = nullptr;

    Part dragged = Part::None;
    int grabOffset = 0;     ///< from the value of a handle to the mouse, in pixels
    RangeValues dragBegin;  ///< what is dragged as a whole starts there …
    int dragBeginValue = 0; ///< … with the mouse at this value
    WheelTurns turns;
};

RangeSlider::RangeSlider(QWidget* parent) : QWidget(parent), d(std::make_unique<Private>())
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    const auto createHandle = [this](Part part) {
        const auto value = [this, part] {
            return part == Part::Lower ? d->values.lower : d->values.upper;
        };
        return new RangeSliderHandle(
            this, {.role = QAccessible::Slider,
                   .name =
                       [this, part] {
                           const QString end = part == Part::Lower ? tr("From") : tr("To");
                           return accessibleName().isEmpty() ? end : accessibleName() + u' ' + end;
                       },
                   .minimum = [this] { return double(d->values.minimum); },
                   .maximum = [this] { return double(d->values.maximum); },
                   .value = [value] { return double(value()); },
                   .step = [this] { return double(d->singleStep); },
                   .text = [this, value] { return textOf(value()); },
                   .move =
                       [this, part, value](double to) {
                           shift(part, qRound64(to) - value());
                       }});
    };
    d->lower = createHandle(Part::Lower);
    d->upper = createHandle(Part::Upper);
    d->tip = new SliderTip(this);
    setFocusProxy(d->lower);
    placeHandles();
}

RangeSlider::~RangeSlider()
{
    // They speak of values that go with this class.
    delete d->lower;
    delete d->upper;
}

int RangeSlider::minimum() const
{
    return d->values.minimum;
}

void RangeSlider::setMinimum(int minimum)
{
    setLimits(minimum, std::max(minimum, maximum()));
}

int RangeSlider::maximum() const
{
    return d->values.maximum;
}

void RangeSlider::setMaximum(int maximum)
{
    setLimits(std::min(minimum(), maximum), maximum);
}

void RangeSlider::setLimits(int minimum, int maximum)
{
    change([&](RangeValues& values) { values.setLimits(minimum, maximum, values.distance); },
           false);
}

int RangeSlider::lowerValue() const
{
    return d->values.lower;
}

int RangeSlider::upperValue() const
{
    return d->values.upper;
}

int RangeSlider::minimumDistance() const
{
    return d->values.distance;
}

void RangeSlider::setMinimumDistance(int distance)
{
    change([&](RangeValues& values) { values.setLimits(values.minimum, values.maximum, distance); },
           false);
}

int RangeSlider::singleStep() const
{
    return d->singleStep;
}

void RangeSlider::setSingleStep(int step)
{
    if (std::exchange(d->singleStep, std::max(step, 1)) != d->singleStep)
        Q_EMIT singleStepChanged(d->singleStep);
}

int RangeSlider::pageStep() const
{
    return d->pageStep;
}

void RangeSlider::setPageStep(int step)
{
    if (std::exchange(d->pageStep, std::max(step, 1)) != d->pageStep)
        Q_EMIT pageStepChanged(d->pageStep);
}

QString RangeSlider::textOf(int value) const
{
    return d->valueText ? d->valueText(value) : locale().toString(value);
}

void RangeSlider::setValueText(ValueText text)
{
    d->valueText = std::move(text);
}

QSize RangeSlider::sizeHint() const
{
    return {160, RangeSliderHandle::handleHeight + 2};
}

QSize RangeSlider::minimumSizeHint() const
{
    return {2 * trackMargin + 20, RangeSliderHandle::handleHeight + 2};
}

void RangeSlider::setLowerValue(int value)
{
    change([value](RangeValues& values) { values.moveLower(value); }, false);
}

void RangeSlider::setUpperValue(int value)
{
    change([value](RangeValues& values) { values.moveUpper(value); }, false);
}

void RangeSlider::setValues(int lower, int upper)
{
    change([=](RangeValues& values) { values.set(lower, upper); }, false);
}

void RangeSlider::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QRectF track(trackMargin, (height() - trackHeight) / 2.0, width() - 2 * trackMargin,
                       trackHeight);
    QColor ground = palette().color(QPalette::WindowText);
    ground.setAlphaF(0.22F);
    painter.setBrush(ground);
    painter.drawRoundedRect(track, trackHeight / 2.0, trackHeight / 2.0);
    const int from = xAt(d->values.lower);
    const int to = xAt(d->values.upper);
    ground.setAlphaF(0.4F);
    painter.fillRect(QRectF(std::min(from, to), track.top(), qAbs(to - from), trackHeight),
                     isEnabled() ? POrvGuiTheme::colorBlue : ground);
}

void RangeSlider::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    placeHandles();
}

void RangeSlider::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    const int x = event->position().toPoint().x();
    d->dragged = partAt(x);
    d->dragBegin = d->values;
    d->dragBeginValue = valueAt(x);
    d->grabOffset = 0;
    if (d->dragged == Part::None) {
        const int value = valueAt(x);
        d->dragged = value < d->values.lower ? Part::Lower : Part::Upper;
    } else if (d->dragged != Part::Both) {
        d->grabOffset = x - xAt(d->dragged == Part::Lower ? d->values.lower : d->values.upper);
    }
    if (d->dragged != Part::Both)
        (d->dragged == Part::Lower ? d->lower : d->upper)->setFocus(Qt::MouseFocusReason);
    dragTo(x);
}

void RangeSlider::mouseMoveEvent(QMouseEvent* event)
{
    if (!event->buttons().testFlag(Qt::LeftButton))
        d->dragged = Part::None; // the release was lost
    if (d->dragged != Part::None)
        dragTo(event->position().toPoint().x());
}

void RangeSlider::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    d->dragged = Part::None;
    d->tip->hide();
}

void RangeSlider::wheelEvent(QWheelEvent* event)
{
    // Also at the ends: the page around must not begin to scroll there.
    event->accept();
    const QPoint angle = event->angleDelta();
    const bool isSideways = WheelTurns::isSideways(angle);
    int notches = d->turns.add(isSideways ? -angle.x() : angle.y());
    if (isSideways && layoutDirection() == Qt::RightToLeft)
        notches = -notches;
    const Part part = partAt(event->position().toPoint().x());
    shift(part == Part::None ? Part::Both : part, qint64(notches) * d->singleStep);
}

void RangeSlider::keyPressEvent(QKeyEvent* event)
{
    constexpr qint64 all = std::numeric_limits<quint32>::max();
    const int right = layoutDirection() == Qt::RightToLeft ? -1 : 1;
    qint64 by = 0;
    switch (event->key()) {
    case Qt::Key_Left:
        by = -right * qint64(d->singleStep);
        break;
    case Qt::Key_Right:
        by = right * qint64(d->singleStep);
        break;
    case Qt::Key_Down:
        by = -d->singleStep;
        break;
    case Qt::Key_Up:
        by = d->singleStep;
        break;
    case Qt::Key_PageDown:
        by = -d->pageStep;
        break;
    case Qt::Key_PageUp:
        by = d->pageStep;
        break;
    case Qt::Key_Home:
        by = -all;
        break;
    case Qt::Key_End:
        by = all;
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    if (event->modifiers().testFlag(Qt::ShiftModifier))
        shift(Part::Both, by);
    else
        shift(d->upper->hasFocus() ? Part::Upper : Part::Lower, by);
}

void RangeSlider::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        placeHandles();
    else if (event->type() == QEvent::EnabledChange)
        d->dragged = Part::None;
}

void RangeSlider::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    d->dragged = Part::None;
}

RangeSlider::Part RangeSlider::partAt(int x) const
{
    for (const auto& [handle, part] :
         {std::pair(d->lower, Part::Lower), std::pair(d->upper, Part::Upper)})
        if (x >= handle->x() && x < handle->x() + handle->width())
            return part;
    const auto [left, right] = std::minmax({xAt(d->values.lower), xAt(d->values.upper)});
    return x >= left && x < right ? Part::Both : Part::None;
}

int RangeSlider::xAt(int value) const
{
    const int length = std::max(width() - 2 * trackMargin, 1);
    const double share =
        d->values.maximum > d->values.minimum
            ? (double(value) - d->values.minimum) / (double(d->values.maximum) - d->values.minimum)
            : 0.0;
    const int place = qRound(share * length);
    return trackMargin + (layoutDirection() == Qt::RightToLeft ? length - place : place);
}

int RangeSlider::valueAt(int x) const
{
    const int length = std::max(width() - 2 * trackMargin, 1);
    const int place = std::clamp(x - trackMargin, 0, length);
    const double share =
        double(layoutDirection() == Qt::RightToLeft ? length - place : place) / length;
    return int(d->values.minimum +
               qRound64(share * (double(d->values.maximum) - d->values.minimum)));
}

void RangeSlider::placeHandles()
{
    const int top = (height() - RangeSliderHandle::handleHeight) / 2;
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    const auto place = [&](RangeSliderHandle* handle, int x, bool isLeft) {
        handle->setStraightSideRight(isLeft);
        handle->move(isLeft ? x - RangeSliderHandle::handleWidth : x, top);
    };
    place(d->lower, xAt(d->values.lower), !isMirrored);
    place(d->upper, xAt(d->values.upper), isMirrored);
    update();
}

template <typename Change>
void RangeSlider::change(const Change& act, bool byUser)
{
    const RangeValues before = d->values;
    act(d->values);
    const RangeValues now = d->values;
    if (now == before)
        return;
    placeHandles();
    if (now.lower != before.lower)
        d->lower->reportValueChange();
    if (now.upper != before.upper)
        d->upper->reportValueChange();
    const bool isOther = now.lower != before.lower || now.upper != before.upper;
    whileAlive(
        this,
        [&] {
            if (now.minimum != before.minimum || now.maximum != before.maximum)
                Q_EMIT limitsChanged(now.minimum, now.maximum);
        },
        [&] {
            if (now.distance != before.distance)
                Q_EMIT minimumDistanceChanged(now.distance);
        },
        [&] {
            if (isOther)
                Q_EMIT valuesChanged(now.lower, now.upper);
        },
        [&] {
            if (isOther && byUser)
                Q_EMIT valuesEdited(now.lower, now.upper);
        });
}

void RangeSlider::shift(Part part, qint64 by)
{
    change(
        [&](RangeValues& values) {
            if (part == Part::Lower)
                values.moveLower(values.lower + by);
            else if (part == Part::Upper)
                values.moveUpper(values.upper + by);
            else
                values.moveBoth(by);
        },
        true);
}

void RangeSlider::dragTo(int x)
{
    const int value = valueAt(x - d->grabOffset);
    whileAlive(
        this,
        [&] {
            change(
                [&](RangeValues& values) {
                    if (d->dragged == Part::Lower) {
                        values.moveLower(value);
                    } else if (d->dragged == Part::Upper) {
                        values.moveUpper(value);
                    } else {
                        values.set(d->dragBegin.lower, d->dragBegin.upper);
                        values.moveBoth(qint64(value) - d->dragBeginValue);
                    }
                },
                true);
        },
        [&] { showTip(); });
}

void RangeSlider::showTip()
{
    const QString lower = textOf(d->values.lower);
    const QString upper = textOf(d->values.upper);
    switch (d->dragged) {
    case Part::Lower:
        return d->tip->say(d->lower->geometry(), lower);
    case Part::Upper:
        return d->tip->say(d->upper->geometry(), upper);
    case Part::Both:
        return d->tip->say(d->lower->geometry() | d->upper->geometry(),
                           tr("%1 – %2").arg(lower, upper));
    case Part::None:
        d->tip->hide();
    }
}

} // namespace CorvelGui
