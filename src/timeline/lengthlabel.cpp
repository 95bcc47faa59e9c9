// SPDX-License-Identifier: MIT
#include "lengthlabel.h"

#include <Hueloft/POrvGuiTheme>

#include <QPainter>

#include <algorithm>
#include <cmath>

using Hueloft::POrvGuiTheme;

namespace CorvelGui {

namespace {

constexpr int sidePadding = 6;
constexpr int edgePadding = 1;

} // namespace

LengthLabel::LengthLabel(QWidget* ruler) : QFocusFrame(ruler)
{
    hide();
}

void LengthLabel::say(const QString& text, double x, int top, int pointSize)
{
    m_text = text;
    m_font.setPointSize(pointSize);
    m_font.setBold(true);
    const QFontMetrics metrics(m_font, this);
    const QSize size(metrics.horizontalAdvance(text) + 2 * sidePadding,
                     metrics.height() + 2 * edgePadding);
    const int rightmost = std::max(parentWidget()->width() - size.width(), 0);
    const int left = int(std::lround(x - size.width() / 2.0));
    setGeometry(QRect(QPoint(std::clamp(left, 0, rightmost), top), size));
    show();
    update();
}

void LengthLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(POrvGuiTheme::colorPanther);
    painter.drawRoundedRect(rect(), 4, 4);
    painter.setFont(m_font);
    painter.setPen(Qt::white);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, m_text);
}

} // namespace CorvelGui
