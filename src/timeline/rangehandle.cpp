// SPDX-License-Identifier: MIT
#include "rangehandle.h"

#include "base/keyboardfocus.h"
#include "rulerpainter.h"

#include <Hueloft/POrvGuiTheme>

#include <QPainter>
#include <QRegion>

using Hueloft::POrvGuiTheme;

namespace CorvelGui {

namespace {

constexpr int endLineWidth = 2;
constexpr int gripWidth = 9;

} // namespace

RangeHandle::RangeHandle(End end, QWidget* ruler)
    : QWidget(ruler), m_end(end), m_focus(new KeyboardFocus(this))
{
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::SizeHorCursor);
    hide();
}

void RangeHandle::standAt(int column, int top, int gripHeight)
{
    const int left = m_end == End::Begin ? column + endLineWidth / 2 - gripWidth - endLineWidth
                                         : column - endLineWidth / 2;
    const QRect place(left, top, gripWidth + endLineWidth, parentWidget()->height() - top);
    const bool isOther = place.size() != size() || gripHeight != m_gripHeight;
    m_gripHeight = gripHeight;
    setGeometry(place);
    if (!isOther)
        return;
    setMask(QRegion(line()) + grip());
    update();
}

int RangeHandle::column() const
{
    return x() + line().left() + endLineWidth / 2;
}

QRect RangeHandle::line() const
{
    return {m_end == End::Begin ? gripWidth : 0, 0, endLineWidth, height()};
}

QRect RangeHandle::grip() const
{
    return {m_end == End::Begin ? 0 : endLineWidth, 0, gripWidth, m_gripHeight};
}

void RangeHandle::paintEvent(QPaintEvent*)
{
    const QColor color = m_focus->isShown() ? POrvGuiTheme::colorBlue : RulerColors().selection;
    QPainter painter(this);
    painter.fillRect(line(), color);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    // The side at the line stays square.
    const QRect flag = grip();
    painter.drawRoundedRect(flag, 3, 3);
    const int inner = m_end == End::Begin ? flag.right() - 2 : flag.left();
    painter.drawRect(QRect(inner, flag.top(), 3, flag.height()));
    painter.setBrush(POrvGuiTheme::colorPanther);
    for (const int offset : {-2, 1})
        painter.drawRect(QRectF(flag.center().x() + offset, flag.top() + flag.height() * 0.3, 1,
                                flag.height() * 0.4));
}

} // namespace CorvelGui
