// SPDX-License-Identifier: MIT
#include "iconbutton.h"

#include <QPainter>
#include <QStyleOption>
#include <QStyleOptionFocusRect>

namespace CorvelGui {

struct IconButton::Private
{
    float iconOpacity = 1.0F;
    bool autoHide = false;
    QPixmap pixmap;
};

IconButton::IconButton(QWidget* parent) : QAbstractButton(parent), d(std::make_unique<Private>())
{
    setCursor(Qt::ArrowCursor);
    setFocusPolicy(Qt::NoFocus);
}

IconButton::~IconButton() = default;

float IconButton::iconOpacity() const
{
    return d->iconOpacity;
}

bool IconButton::hasAutoHide() const
{
    return d->autoHide;
}

QPixmap IconButton::pixmap() const
{
    return d->pixmap;
}

void IconButton::setIconOpacity(float opacity)
{
    d->iconOpacity = opacity;
    update();
}

void IconButton::setAutoHide(bool on)
{
    d->autoHide = on;
    update();
}

void IconButton::setPixmap(const QPixmap& pixmap)
{
    d->pixmap = pixmap;
    update();
}

void IconButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (d->autoHide)
        painter.setOpacity(qreal(d->iconOpacity));
    if (icon().isNull())
        drawPixmap(painter);
    else
        icon().paint(&painter, rect(), Qt::AlignCenter,
                     !isEnabled()   ? QIcon::Disabled
                     : underMouse() ? QIcon::Active
                                    : QIcon::Normal);

    if (hasFocus()) {
        painter.setOpacity(1.0);
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.backgroundColor = palette().color(QPalette::Base);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void IconButton::drawPixmap(QPainter& painter) const
{
    QPixmap shown = d->pixmap;
    if (!isEnabled() && !shown.isNull()) {
        QStyleOption option;
        option.initFrom(this);
        shown = style()->generatedIconPixmap(QIcon::Disabled, shown, &option);
    }
    shown.setDevicePixelRatio(devicePixelRatioF());
    // The whole button: the painter is clipped to what is to be painted, and a part of the button
    // must not show the whole pixmap.
    painter.drawPixmap(rect(), shown);
}

} // namespace CorvelGui
