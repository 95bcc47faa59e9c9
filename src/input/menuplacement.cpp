// SPDX-License-Identifier: MIT
#include "menuplacement.h"

#include <QMenu>
#include <QScreen>

namespace CorvelGui {

QPoint menuPosition(const QRect& button, const QRect& available, QSize menu,
                    Qt::LayoutDirection direction)
{
    const bool rightToLeft = direction == Qt::RightToLeft;
    QPoint position = rightToLeft ? button.bottomRight() : button.bottomLeft();
    if (position.y() + menu.height() > available.top() + available.height())
        position.setY(button.top() - menu.height());
    if (rightToLeft)
        position.rx() -= menu.width();

    position.setX(qMin(position.x(), available.right() - menu.width()));
    position.setX(qMax(position.x(), available.left()));
    return position + QPoint(0, 1);
}

void execMenuAtWidget(QMenu* menu, const QWidget* button)
{
    const QRect area(button->mapToGlobal(QPoint(0, 0)), button->size());
    menu->exec(menuPosition(area, button->screen()->availableGeometry(), menu->sizeHint(),
                            button->layoutDirection()));
}

} // namespace CorvelGui
