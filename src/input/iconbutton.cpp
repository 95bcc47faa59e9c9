#include "iconbutton.h"

#include <QPainter>
#include <QStyleOption>
#include <QStyleOptionFocusRect>

namespace CorvelGui {

IconButton::IconButton(QWidget* parent) : QAbstractButton(parent)
{
    setCursor(Qt::ArrowCursor);
    setFocusPolicy(Qt::NoFocus);
}

void IconButton::setIconOpacity(float opacity)
{
    m_iconOpacity = opacity;
    update();
}

void IconButton::setAutoHide(bool on)
{
    m_autoHide = on;
    update();
}

void IconButton::setPixmap(const QPixmap& pixmap)
{
    m_pixmap = pixmap;
    update();
}

void IconButton::paintEvent(QPaintEvent* /*event*/)
{
    QPixmap shown = m_pixmap;
    if (!isEnabled() && !shown.isNull()) {
        QStyleOption option;
        option.initFrom(this);
        shown = style()->generatedIconPixmap(QIcon::Disabled, shown, &option);
    }
    shown.setDevicePixelRatio(devicePixelRatioF());

    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (m_autoHide)
        painter.setOpacity(qreal(m_iconOpacity));
    // The whole button: the painter is clipped to what is to be painted, and a part of the button
    // must not show the whole pixmap.
    painter.drawPixmap(rect(), shown);

    if (hasFocus()) {
        painter.setOpacity(1.0);
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.backgroundColor = palette().color(QPalette::Base);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

} // namespace CorvelGui
