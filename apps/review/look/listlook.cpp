// SPDX-License-Identifier: MIT
#include "listlook.h"

#include "roomydelegate.h"

#include <QAbstractItemView>
#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>

namespace Review {

void ListLook::apply(QAbstractItemView* list, QHeaderView* header)
{
    list->setFrameShape(QFrame::NoFrame);
    list->setAlternatingRowColors(true);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setItemDelegate(new RoomyDelegate(list));
    list->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    header->setStretchLastSection(false);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setHighlightSections(false);
    header->setSectionsClickable(true);
    header->setSortIndicatorShown(true);
    // A name of any length leaves room for the other columns.
    header->setMaximumSectionSize(360);
}

void ListLook::offerActions(QAbstractItemView* list)
{
    for (QAction* action : list->findChildren<QAction*>(Qt::FindDirectChildrenOnly)) {
        action->setShortcutContext(Qt::WidgetShortcut);
        list->addAction(action);
    }
    list->setContextMenuPolicy(Qt::ActionsContextMenu);
}

int ListLook::rowHeight(const QAbstractItemView* list)
{
    return RoomyDelegate::heightFor(list->fontMetrics().height());
}

QLayout* ListLook::place(QLineEdit* filter, QWidget* beside)
{
    auto* layout = new QHBoxLayout;
    layout->setContentsMargins(8, 6, 8, 6);
    layout->addWidget(filter);
    if (beside)
        layout->addWidget(beside);
    return layout;
}

} // namespace Review
