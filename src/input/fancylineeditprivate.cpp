#include "fancylineeditprivate.h"

#include "menuplacement.h"

#include <QEvent>

#include <algorithm>

namespace CorvelGui {

FancyLineEditPrivate::FancyLineEditPrivate(FancyLineEdit* owner) : QObject(owner), lineEdit(owner)
{
    for (SideState& side : sides) {
        side.button = new IconButton(owner);
        side.button->hide();
        side.button->installEventFilter(this);
    }
}

bool FancyLineEditPrivate::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::FocusIn)
        return QObject::eventFilter(watched, event);
    const auto side = std::ranges::find_if(
        sides, [watched](const SideState& candidate) { return candidate.button == watched; });
    if (side == sides.end() || !side->menuTabFocusTrigger || !side->menu)
        return QObject::eventFilter(watched, event);

    // Slots that follow the focus may do away with the menu or with the line edit.
    const QPointer<QMenu> menu = side->menu;
    const QPointer<IconButton> button = side->button;
    lineEdit->setFocus();
    if (menu && button)
        execMenuAtWidget(menu, button);
    return true;
}

int FancyLineEditPrivate::aspectFactor(FancyLineEdit::Side side) const
{
    const QPixmap& pixmap = sides[side].pixmap;
    return pixmap.isNull() ? 1 : pixmap.width() / pixmap.height();
}

} // namespace CorvelGui
