// SPDX-License-Identifier: MIT
#include "pclickablelabel.h"

#include "accessiblelabel.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

#include <utility>

namespace CorvelGui {

PClickableLabel::PClickableLabel(QWidget* parent) : PClickableLabel(QString(), parent) {}

PClickableLabel::PClickableLabel(const QString& text, QWidget* parent) : QLabel(text, parent)
{
    makeLabelsAccessible();
    setTextInteractionFlags(Qt::NoTextInteraction);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setForegroundRole(QPalette::Link);
}

void PClickableLabel::click()
{
    if (isEnabled())
        Q_EMIT clicked();
}

void PClickableLabel::mousePressEvent(QMouseEvent* event)
{
    m_pressed = event->button() == Qt::LeftButton;
    event->setAccepted(m_pressed);
}

void PClickableLabel::mouseReleaseEvent(QMouseEvent* event)
{
    const bool wasPressed = event->button() == Qt::LeftButton && std::exchange(m_pressed, false);
    if (!wasPressed) {
        QLabel::mouseReleaseEvent(event);
        return;
    }
    event->accept();
    if (rect().contains(event->position().toPoint()))
        click();
}

void PClickableLabel::keyPressEvent(QKeyEvent* event)
{
    const bool presses = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
                         event->key() == Qt::Key_Enter;
    if (!presses || (event->modifiers() & ~Qt::KeypadModifier)) {
        QLabel::keyPressEvent(event);
        return;
    }
    event->accept();
    if (!event->isAutoRepeat())
        click();
}

void PClickableLabel::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QStylePainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.backgroundColor = palette().color(backgroundRole());
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

} // namespace CorvelGui
