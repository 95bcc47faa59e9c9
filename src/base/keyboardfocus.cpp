// SPDX-License-Identifier: MIT
#include "keyboardfocus.h"

#include "devicegrid.h"

#include <Hueloft/POrvGuiTheme>

#include <QFocusEvent>
#include <QPainterPath>
#include <QWidget>

using Hueloft::POrvGuiTheme;

namespace CorvelGui {

KeyboardFocus::KeyboardFocus(QWidget* widget) : QObject(widget), m_widget(widget)
{
    widget->installEventFilter(this);
}

void KeyboardFocus::draw(QPainter& painter) const
{
    if (!m_shown)
        return;
    const double width = DeviceGrid(painter).lineWidth(1.0);
    const QRectF rect = m_widget->rect();
    QPainterPath frame;
    frame.addRect(rect);
    frame.addRect(rect.adjusted(width, width, -width, -width));
    painter.fillPath(frame, POrvGuiTheme::colorBlue);
}

bool KeyboardFocus::eventFilter(QObject*, QEvent* event)
{
    if (event->type() != QEvent::FocusIn && event->type() != QEvent::FocusOut)
        return false;
    const bool in = event->type() == QEvent::FocusIn;
    switch (static_cast<QFocusEvent*>(event)->reason()) {
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
        m_fromKeyboard = in;
        break;
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
        break; // comes back
    default:
        m_fromKeyboard = false;
    }
    m_shown = in && m_fromKeyboard;
    m_widget->update();
    return false;
}

} // namespace CorvelGui
