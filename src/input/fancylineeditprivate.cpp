// SPDX-License-Identifier: MIT
#include "fancylineeditprivate.h"

#include "menuplacement.h"

#include <QApplication>
#include <QFocusEvent>

#include <algorithm>

namespace CorvelGui {

FancyLineEditPrivate::FancyLineEditPrivate(FancyLineEdit* owner) : QObject(owner), lineEdit(owner)
{
    for (SideState& side : sides) {
        side.button = new IconButton(owner);
        side.button->hide();
        side.button->installEventFilter(this);
    }
    owner->installEventFilter(this);
}

bool FancyLineEditPrivate::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == lineEdit && event->type() == QEvent::FocusOut)
        noteFocusOut(*static_cast<QFocusEvent*>(event));
    if (event->type() != QEvent::FocusIn)
        return QObject::eventFilter(watched, event);
    const auto side = std::ranges::find_if(
        sides, [watched](const SideState& candidate) { return candidate.button == watched; });
    if (side == sides.end() || !side->menuTabFocusTrigger || !side->menu)
        return QObject::eventFilter(watched, event);

    // Otherwise the button would take every Tab, and the keyboard could not leave the field.
    if (!side->usualFocusPolicy)
        side->usualFocusPolicy = side->button->focusPolicy();
    side->button->setFocusPolicy(Qt::NoFocus);
    // Slots that follow the focus may do away with the menu or with the line edit.
    const QPointer<QMenu> menu = side->menu;
    const QPointer<IconButton> button = side->button;
    lineEdit->setFocus();
    if (menu && button)
        execMenuAtWidget(menu, button);
    return true;
}

/// Once the focus is elsewhere, Tab shows the menus again.
void FancyLineEditPrivate::noteFocusOut(const QFocusEvent& event)
{
    const QWidget* next = QApplication::focusWidget();
    if (event.reason() == Qt::PopupFocusReason || event.reason() == Qt::ActiveWindowFocusReason ||
        (next && lineEdit->isAncestorOf(next)))
        return;
    for (SideState& side : sides) {
        if (side.usualFocusPolicy)
            side.button->setFocusPolicy(*side.usualFocusPolicy);
        side.usualFocusPolicy.reset();
    }
}

int FancyLineEditPrivate::aspectFactor(FancyLineEdit::Side side) const
{
    const QPixmap& pixmap = sides[side].pixmap;
    return pixmap.isNull() ? 1 : pixmap.width() / pixmap.height();
}

} // namespace CorvelGui
