// SPDX-License-Identifier: MIT
// What the user does to a timeline.

#include "timelineplay.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWheelEvent>

/// Anywhere in or around the window, or on one of the visible parts.
QPoint TimelinePlay::place()
{
    if (flag() && m_stage.top()) {
        QList<QWidget*> parts;
        for (QWidget* part : m_stage.top()->findChildren<QWidget*>()) {
            if (part->isVisible())
                parts.append(part);
        }
        if (!parts.isEmpty()) {
            const QWidget* part = parts.at(number(0, int(parts.size()) - 1));
            return part->mapTo(m_stage.window(), part->rect().center());
        }
    }
    return {number(-50, 1100), number(-30, 170)};
}

void TimelinePlay::move()
{
    m_stage.mouse(QEvent::MouseMove, place());
}

void TimelinePlay::press()
{
    const QPoint at = place();
    m_stage.mouse(QEvent::MouseButtonPress, at, button(),
                  flag() ? Qt::ShiftModifier : Qt::NoModifier);
}

void TimelinePlay::release()
{
    const QPoint at = place();
    m_stage.mouse(QEvent::MouseButtonRelease, at, button());
}

void TimelinePlay::drag()
{
    const Qt::MouseButton held = button();
    m_stage.mouse(QEvent::MouseButtonPress, place(), held);
    for (int moves = number(0, 5); moves > 0; --moves)
        m_stage.mouse(QEvent::MouseMove, place());
    if (number(0, 3) > 0)
        m_stage.mouse(QEvent::MouseButtonRelease, place(), held);
    else if (flag())
        m_stage.forgetButtons();
}

void TimelinePlay::turnWheel()
{
    const QPoint at = place();
    QWidget* const target = m_stage.window()->childAt(at);
    if (!target)
        return;
    const QPoint angle(number(-240, 240), number(-240, 240));
    QWheelEvent event(target->mapFrom(m_stage.window(), at), m_stage.window()->mapToGlobal(at),
                      flag() ? angle : QPoint(), angle, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(target, &event);
}

void TimelinePlay::pressKey()
{
    static constexpr std::array keys{
        Qt::Key_Left,  Qt::Key_Right,  Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown,
        Qt::Key_Plus,  Qt::Key_Minus,  Qt::Key_0,    Qt::Key_N,   Qt::Key_P,      Qt::Key_Tab,
        Qt::Key_Space, Qt::Key_Escape, Qt::Key_I,    Qt::Key_O,   Qt::Key_Delete};
    QWidget* const focused = QApplication::focusWidget();
    QWidget* const target = focused && flag() ? focused : ruler();
    const Qt::KeyboardModifiers modifiers = m_values.pick(std::array<Qt::KeyboardModifiers, 3>{
        Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier});
    const int key = m_values.pick(keys);
    const QPointer<QWidget> alive(target);
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (QKeyEvent event(type, key, modifiers); alive)
            QApplication::sendEvent(alive, &event);
    }
}

void TimelinePlay::loseFocus()
{
    static constexpr std::array types{QEvent::Leave, QEvent::WindowDeactivate, QEvent::FocusOut,
                                      QEvent::LanguageChange, QEvent::PaletteChange};
    switch (number(0, 2)) {
    case 0: {
        QEvent event(m_values.pick(types));
        if (event.type() != QEvent::FocusOut)
            QApplication::sendEvent(flag() ? ruler() : m_stage.top(), &event);
        return;
    }
    case 1:
        m_stage.window()->clearFocus();
        return;
    default:
        m_stage.window()->hide();
        m_stage.window()->show();
    }
}

void TimelinePlay::passTime()
{
    m_stage.fireTimers();
    if (flag())
        QApplication::processEvents();
    if (flag() && m_stage.window()->isVisible())
        m_stage.window()->grab();
}
