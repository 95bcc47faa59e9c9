#include "userhand.h"

#include "pointer.h"
#include "realinput.h"

#include <QApplication>
#include <QKeySequence>

bool UserHand::isAvailable()
{
    return !RealInput::isWanted() || RealInput::isAvailable();
}

UserHand::UserHand() : m_real(RealInput::isWanted()) {}

void UserHand::moveTo(QWidget* widget, QPoint position)
{
    // The widget that was pressed holds the mouse.
    if (!m_held)
        m_target = widget;
    m_position = widget->mapToGlobal(position);
    if (m_real)
        RealInput::moveTo(m_position * widget->devicePixelRatio());
    else
        send(QEvent::MouseMove);
}

void UserHand::setPressed(bool pressed)
{
    m_held = pressed;
    if (m_real)
        RealInput::setPressed(pressed);
    else
        send(pressed ? QEvent::MouseButtonPress : QEvent::MouseButtonRelease);
}

void UserHand::click()
{
    press();
    release();
}

void UserHand::doubleClick()
{
    click();
    if (m_real)
        return click();
    send(QEvent::MouseButtonDblClick);
    release();
}

void UserHand::turnWheel(int notches)
{
    if (m_real)
        return RealInput::turnWheel(notches);
    for (int i = 0; i < qAbs(notches); ++i) {
        ::turnWheel(m_target, m_target->mapFromGlobal(QPointF(m_position)),
                    {0, notches > 0 ? 120 : -120});
    }
}

void UserHand::strike(const QString& key)
{
    if (m_real)
        return RealInput::strike(key);
    QTest::keyClick(QApplication::focusWidget(), QKeySequence(key)[0].key());
}

void UserHand::send(int type)
{
    const bool moves = type == QEvent::MouseMove;
    const Qt::MouseButton button = moves ? Qt::NoButton : Qt::LeftButton;
    const bool held = m_held || type == QEvent::MouseButtonPress;
    // The target may have moved under the hand.
    QMouseEvent event(QEvent::Type(type), m_target->mapFromGlobal(m_position), m_position, button,
                      held ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(m_target, &event);
    if (type == QEvent::MouseButtonPress && m_target->focusPolicy() & Qt::ClickFocus)
        m_target->setFocus();
}
