#include "listview.h"

#include "roomydelegate.h"

#include <QHeaderView>
#include <QTreeView>

namespace Review {

QTreeView* createList(QAbstractItemModel* model)
{
    auto* view = new QTreeView;
    view->setModel(model);
    view->setFrameShape(QFrame::NoFrame);
    view->setRootIsDecorated(false);
    view->setUniformRowHeights(true);
    view->setAlternatingRowColors(true);
    view->setAllColumnsShowFocus(true);
    view->setItemDelegate(new RoomyDelegate(view));
    view->header()->setStretchLastSection(false);
    view->header()->setSectionsMovable(false);
    // In a narrow table the stretched column stays readable, and the table scrolls.
    view->header()->setMinimumSectionSize(110);
    view->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    return view;
}

} // namespace Review
