// SPDX-License-Identifier: MIT
#include "pslider.h"

#include "base/accessiblerange.h"
#include "base/wheelturns.h"
#include "slidertip.h"

#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionSlider>

#include <algorithm>
#include <utility>

namespace CorvelGui {

namespace {

constexpr int tickLength = 4;
constexpr int textGap = 2; ///< between a tick and its text
constexpr int leastTextDistance = 6;

int along(Qt::Orientation orientation, QPoint point)
{
    return orientation == Qt::Horizontal ? point.x() : point.y();
}

} // namespace

/// Where the middle of the handle can be.
struct PSlider::Track
{
    int start;  ///< its first pixel
    int length; ///< in pixels, to its last one
    bool isUpsideDown;
    QRect handle;
};

struct PSlider::Private
{
    bool valueTip = true;
    TickTexts tickTexts;
    ValueText valueText;
    WheelTurns turns;
    SliderTip* tip = nullptr;
    std::unique_ptr<AccessibleRange> accessible;
};

PSlider::PSlider(QWidget* parent) : PSlider(Qt::Horizontal, parent) {}

PSlider::PSlider(Qt::Orientation orientation, QWidget* parent)
    : QSlider(orientation, parent), d(std::make_unique<Private>())
{
    d->tip = new SliderTip(this);
    d->accessible = std::make_unique<AccessibleRange>(
        this, AccessibleRange::Description{.role = QAccessible::Slider,
                                           .name = [] { return QString(); },
                                           .minimum = [this] { return double(minimum()); },
                                           .maximum = [this] { return double(maximum()); },
                                           .value = [this] { return double(value()); },
                                           .step = [this] { return double(singleStep()); },
                                           .text = [this] { return textOf(value()); },
                                           .move =
                                               [this](double value) {
                                                   setValue(qRound(value));
                                               }});
}

PSlider::~PSlider() = default;

bool PSlider::hasValueTip() const
{
    return d->valueTip;
}

void PSlider::setValueTip(bool on)
{
    if (on == d->valueTip)
        return;
    d->valueTip = on;
    if (!on)
        d->tip->hide();
    Q_EMIT valueTipChanged(on);
}

PSlider::TickTexts PSlider::tickTexts() const
{
    return d->tickTexts;
}

void PSlider::setTickTexts(const TickTexts& texts)
{
    if (texts == d->tickTexts)
        return;
    d->tickTexts = texts;
    updateGeometry();
    update();
    Q_EMIT tickTextsChanged();
}

QString PSlider::textOf(int value) const
{
    return d->valueText ? d->valueText(value) : locale().toString(value);
}

void PSlider::setValueText(ValueText text)
{
    d->valueText = std::move(text);
}

QSize PSlider::sizeHint() const
{
    const int extent = textsExtent();
    return QSlider::sizeHint() +
           (orientation() == Qt::Horizontal ? QSize(0, extent) : QSize(extent, 0));
}

QSize PSlider::minimumSizeHint() const
{
    const int extent = textsExtent();
    return QSlider::minimumSizeHint() +
           (orientation() == Qt::Horizontal ? QSize(0, extent) : QSize(extent, 0));
}

void PSlider::mousePressEvent(QMouseEvent* event)
{
    const Track slider = track();
    if (event->button() != Qt::LeftButton || event->buttons() != Qt::LeftButton ||
        maximum() == minimum() || slider.handle.contains(event->position().toPoint())) {
        QSlider::mousePressEvent(event);
        if (isSliderDown())
            showTip();
        return;
    }
    event->accept();
    const int place = along(orientation(), event->position().toPoint()) - slider.start;
    const QPointer<PSlider> alive(this);
    setSliderDown(true);
    if (!alive)
        return;
    setSliderPosition(QStyle::sliderValueFromPosition(minimum(), maximum(), place, slider.length,
                                                      slider.isUpsideDown));
    if (!alive || !isSliderDown())
        return;
    // From here on the handle is dragged by its middle, wherever in its step the click was.
    const QPointF middle = QRectF(track().handle).center();
    QMouseEvent onHandle(event->type(), middle, mapToGlobal(middle), event->button(),
                         event->buttons(), event->modifiers(), event->pointingDevice());
    QSlider::mousePressEvent(&onHandle);
    showTip();
}

void PSlider::mouseMoveEvent(QMouseEvent* event)
{
    const QPointer<PSlider> alive(this);
    QSlider::mouseMoveEvent(event);
    if (alive && isSliderDown())
        showTip();
}

void PSlider::mouseReleaseEvent(QMouseEvent* event)
{
    d->tip->hide();
    if (isSliderDown() && event->button() == Qt::LeftButton) {
        // Without tracking the value changes now, and QSlider would go on after its signal.
        const QPointer<PSlider> alive(this);
        setSliderDown(false);
        if (!alive)
            return;
    }
    QSlider::mouseReleaseEvent(event);
}

void PSlider::wheelEvent(QWheelEvent* event)
{
    // Also at the end: the page around the slider must not begin to scroll there.
    event->accept();
    const QPoint angle = event->angleDelta();
    const bool isSideways = WheelTurns::isSideways(angle);
    int notches = d->turns.add(isSideways ? -angle.x() : angle.y());
    if (invertedControls() != (isSideways && layoutDirection() == Qt::RightToLeft))
        notches = -notches;
    const SliderAction step = notches > 0 ? SliderSingleStepAdd : SliderSingleStepSub;
    const QPointer<PSlider> alive(this);
    for (int left = qAbs(notches); left > 0 && alive; --left)
        triggerAction(step);
}

void PSlider::paintEvent(QPaintEvent* event)
{
    QSlider::paintEvent(event);
    if (d->tickTexts.isEmpty())
        return;
    const bool isHorizontal = orientation() == Qt::Horizontal;
    const bool isMirrored = !isHorizontal && layoutDirection() == Qt::RightToLeft;
    const Track slider = track();
    const int extent = textsExtent();
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    QRect before;
    for (const auto& [value, text] : d->tickTexts.asKeyValueRange()) {
        if (value < minimum() || value > maximum())
            continue;
        const int place =
            slider.start + QStyle::sliderPositionFromValue(minimum(), maximum(), value,
                                                           slider.length, slider.isUpsideDown);
        QSize size(fontMetrics().horizontalAdvance(text), fontMetrics().height());
        QRect area;
        if (isHorizontal) {
            const int top = height() - extent;
            painter.fillRect(place, top, 1, tickLength, painter.pen().color());
            const int left =
                std::clamp(place - size.width() / 2, 0, std::max(width() - size.width(), 0));
            area = QRect(QPoint(left, top + tickLength + textGap), size);
        } else {
            const int edge = isMirrored ? extent : width() - extent;
            painter.fillRect(isMirrored ? edge - tickLength : edge, place, tickLength, 1,
                             painter.pen().color());
            const int top =
                std::clamp(place - size.height() / 2, 0, std::max(height() - size.height(), 0));
            area = QRect(QPoint(isMirrored ? edge - tickLength - textGap - size.width()
                                           : edge + tickLength + textGap,
                                top),
                         size);
        }
        const int reach = isHorizontal ? leastTextDistance : 0;
        if (area.adjusted(-reach, 0, reach, 0).intersects(before))
            continue;
        painter.drawText(area, Qt::AlignCenter | Qt::TextSingleLine, text);
        before = area;
    }
}

void PSlider::initStyleOption(QStyleOptionSlider* option) const
{
    QSlider::initStyleOption(option);
    const int extent = textsExtent();
    if (orientation() == Qt::Horizontal)
        option->rect.setHeight(std::max(option->rect.height() - extent, 0));
    else if (layoutDirection() == Qt::RightToLeft)
        option->rect.setLeft(std::min(option->rect.left() + extent, option->rect.right()));
    else
        option->rect.setWidth(std::max(option->rect.width() - extent, 0));
}

PSlider::Track PSlider::track() const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const auto part = [&](QStyle::SubControl which) {
        return style()->subControlRect(QStyle::CC_Slider, &option, which, this);
    };
    const QRect groove = part(QStyle::SC_SliderGroove);
    const QRect handle = part(QStyle::SC_SliderHandle);
    const bool isHorizontal = orientation() == Qt::Horizontal;
    const int handleLength = isHorizontal ? handle.width() : handle.height();
    const int grooveLength = isHorizontal ? groove.width() : groove.height();
    return {.start = along(orientation(), groove.topLeft()) + handleLength / 2,
            .length = grooveLength - handleLength,
            .isUpsideDown = option.upsideDown,
            .handle = handle};
}

// What the texts take of the width or height.
int PSlider::textsExtent() const
{
    if (d->tickTexts.isEmpty())
        return 0;
    if (orientation() == Qt::Horizontal)
        return tickLength + textGap + fontMetrics().height();
    int widest = 0;
    for (const QString& text : std::as_const(d->tickTexts))
        widest = std::max(widest, fontMetrics().horizontalAdvance(text));
    return tickLength + textGap + widest;
}

void PSlider::showTip()
{
    if (d->valueTip)
        d->tip->say(track().handle, textOf(sliderPosition()));
}

} // namespace CorvelGui
