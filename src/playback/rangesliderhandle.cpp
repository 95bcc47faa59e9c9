// SPDX-License-Identifier: MIT
#include "rangesliderhandle.h"

#include <Hueloft/POrvGuiTheme>

#include <QPainter>
#include <QPainterPath>

#include <utility>

using Hueloft::POrvGuiTheme;

namespace CorvelGui {

RangeSliderHandle::RangeSliderHandle(QWidget* slider, AccessibleRange::Description description)
    : QWidget(slider), m_focus(this), m_accessible(this, std::move(description))
{
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    resize(handleWidth, handleHeight);
}

void RangeSliderHandle::setStraightSideRight(bool right)
{
    if (std::exchange(m_isStraightRight, right) != right)
        update();
}

void RangeSliderHandle::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_isStraightRight) {
        painter.translate(width(), 0);
        painter.scale(-1, 1);
    }
    QPainterPath shape;
    shape.setFillRule(Qt::WindingFill);
    const QRectF area = QRectF(rect()).adjusted(1, 1, -1, -1);
    shape.addRoundedRect(area, 4, 4);
    shape.addRect(QRectF(area.topLeft(), QSizeF(4, area.height())));
    const QPalette& colors = palette();
    const QColor edge =
        isEnabled() ? POrvGuiTheme::colorBlue : colors.color(QPalette::Disabled, QPalette::Text);
    painter.setPen(QPen(edge, m_focus.isShown() ? 2 : 1.5));
    painter.setBrush(m_focus.isShown() ? edge : colors.color(QPalette::Button));
    painter.drawPath(shape.simplified());
}

} // namespace CorvelGui
