// SPDX-License-Identifier: MIT
#include "keyboardguard.h"

#include "busyindicator.h"

#include <QAction>
#include <QApplication>
#include <QEvent>

#include <algorithm>
#include <utility>

namespace CorvelGui {

KeyboardGuard::KeyboardGuard(QWidget* overlay) : m_overlay(overlay) {}

KeyboardGuard::~KeyboardGuard()
{
    if (!m_active || !m_returnTo || m_overlay->window()->focusWidget() != m_overlay)
        return;
    // The widget may be about to go with the overlay, and a client may want the focus elsewhere.
    QMetaObject::invokeMethod(
        m_returnTo.data(),
        [returnTo = m_returnTo] {
            if (!returnTo->window()->focusWidget())
                returnTo->setFocus();
        },
        Qt::QueuedConnection);
}

void KeyboardGuard::start()
{
    if (std::exchange(m_active, true))
        return;
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* focused) { keepFocus(focused); });
    keepFocus(m_overlay->window()->focusWidget());
}

void KeyboardGuard::stop()
{
    if (!std::exchange(m_active, false))
        return;
    qApp->removeEventFilter(this);
    disconnect(qApp, nullptr, this, nullptr);
    const QPointer<QWidget> returnTo = std::exchange(m_returnTo, nullptr);
    if (returnTo && m_overlay->window()->focusWidget() == m_overlay)
        returnTo->setFocus();
}

void KeyboardGuard::keepFocus(QWidget* focused)
{
    if (!focused || !covers(focused))
        return;
    m_returnTo = focused;
    m_overlay->setFocus();
}

bool KeyboardGuard::moveFocusOutside(bool next)
{
    const auto following = [next](const QWidget* widget) {
        return next ? widget->nextInFocusChain() : widget->previousInFocusChain();
    };
    for (QWidget* widget = following(m_overlay); widget != m_overlay; widget = following(widget)) {
        if ((widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && widget->isVisible() &&
            widget->isEnabled() && widget->window() == m_overlay->window() && !covers(widget)) {
            widget->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            break;
        }
    }
    return true;
}

bool KeyboardGuard::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
        if (watched->isWidgetType() && covers(static_cast<QWidget*>(watched))) {
            event->ignore();
            return true;
        }
        break;
    case QEvent::Shortcut:
        if (coversOwnerOfShortcut(watched))
            return true;
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

// Another overlay is not covered: two of them would take the focus from each other for ever.
bool KeyboardGuard::covers(const QWidget* widget) const
{
    const QWidget* parent = m_overlay->parentWidget();
    return parent && !m_overlay->isWindow() && widget != m_overlay &&
           (widget == parent || parent->isAncestorOf(widget)) && !m_overlay->isAncestorOf(widget) &&
           !qobject_cast<const BusyIndicator*>(widget);
}

bool KeyboardGuard::coversOwnerOfShortcut(const QObject* owner) const
{
    const auto isCovered = [this](const QObject* object) {
        while (object && !object->isWidgetType())
            object = object->parent();
        return object && covers(static_cast<const QWidget*>(object));
    };
    // An action stands for the places where it is offered: a menu bar outside is not covered.
    if (const auto* action = qobject_cast<const QAction*>(owner)) {
        const QList<QObject*> places = action->associatedObjects();
        return !places.isEmpty() && std::ranges::all_of(places, isCovered);
    }
    return isCovered(owner);
}

} // namespace CorvelGui
