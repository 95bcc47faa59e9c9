// SPDX-License-Identifier: MIT
#include "ptreewidget.h"

#include "itemviewtools.h"
#include "plistactions.h"
#include "ptreewidgetitem.h"
#include "rowdelegate.h"

#include "base/logging.h"
#include "base/whilealive.h"

#include <QApplication>
#include <QHeaderView>
#include <QMouseEvent>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QSignalBlocker>
#include <QTreeWidgetItemIterator>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

/// Visits all rows below @p parent in tree order until a visit returns true; returns whether one
/// did.
///
/// Goes by rows, because the tree has to search for the row of an item once others have come or
/// gone.
template <typename Visit>
bool anyIndexBelow(const QAbstractItemModel& model, const QModelIndex& parent, const Visit& visit)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (visit(index) || anyIndexBelow(model, index, visit))
            return true;
    }
    return false;
}

} // namespace

struct PTreeWidget::Private
{
    QPoint dragStart;
    PListActions* actions = nullptr;
};

PTreeWidget::PTreeWidget(QWidget* parent) : QTreeWidget(parent), d(std::make_unique<Private>())
{
    setUniformRowHeights(true);
    setItemDelegate(new RowDelegate(this));
    viewport()->setMouseTracking(true);
}

PTreeWidget::~PTreeWidget() = default;

void PTreeWidget::InitCopyMenus(bool withContextMenu)
{
    d->actions = new PListActions(this);
    if (withContextMenu)
        d->actions->offer();
}

void PTreeWidget::CsvExport()
{
    PListActions::exportSelection(*this);
}

void PTreeWidget::CopyCellToClipBoard()
{
    PListActions::copyCells(*this);
}

QString PTreeWidget::getItemTextForCopy() const
{
    return PListActions::rowsText(*this);
}

bool PTreeWidget::isOwn(const QTreeWidgetItem* item) const
{
    return item && item->treeWidget() == this;
}

QModelIndex PTreeWidget::GetModelIndexFromItem(QTreeWidgetItem* item, int column) const
{
    return isOwn(item) ? indexFromItem(item, column) : QModelIndex();
}

void PTreeWidget::ScrollToItemAndSelect(QTreeWidgetItem* item, bool select)
{
    // The receivers of what these steps emit may delete the item.
    const QPersistentModelIndex index = GetModelIndexFromItem(item, 0);
    const bool isThere = whileAlive(
        this, [this] { clearSelection(); }, [this, &index] { expandAbove(index); },
        [this, &index] {
            if (index.isValid())
                scrollTo(index, QAbstractItemView::EnsureVisible);
        });
    if (!isThere || !select || !index.isValid())
        return;
    whileAlive(
        this, [this] { clearSelection(); },
        [this, &index] {
            if (QTreeWidgetItem* found = itemFromIndex(index))
                found->setSelected(true);
        });
}

void PTreeWidget::DeleteWidgets(int column)
{
    QList<QPointer<QWidget>> widgets;
    anyIndexBelow(*model(), {}, [this, column, &widgets](const QModelIndex& index) {
        const QModelIndex cell = index.siblingAtColumn(column);
        if (QWidget* widget = indexWidget(cell)) {
            widgets.append(widget);
            setIndexWidget(cell, nullptr);
        }
        return false;
    });
    ItemViewTools::hideAll(widgets);
}

bool PTreeWidget::IsAlLeastOneSelected(int column) const
{
    for (QTreeWidgetItemIterator it(const_cast<PTreeWidget*>(this)); *it; ++it) {
        if ((*it)->checkState(column) == Qt::Checked)
            return true;
    }
    return false;
}

QList<QTreeWidgetItem*> PTreeWidget::GetSelectedTreeWidgetItems() const
{
    QList<QTreeWidgetItem*> items;
    QTreeWidgetItemIterator it(const_cast<PTreeWidget*>(this), QTreeWidgetItemIterator::Selected);
    for (; *it; ++it)
        items.append(*it);
    return items;
}

QList<QTreeWidgetItem*> PTreeWidget::GetAllTreeWidgetItems() const
{
    QList<QTreeWidgetItem*> items;
    for (QTreeWidgetItemIterator it(const_cast<PTreeWidget*>(this)); *it; ++it)
        items.append(*it);
    return items;
}

QTreeWidgetItem* PTreeWidget::GetSingleSelection() const
{
    const QList<QTreeWidgetItem*> items = GetSelectedTreeWidgetItems();
    return items.size() == 1 ? items.front() : nullptr;
}

int PTreeWidget::GetTotalNumberOfRows() const
{
    return int(GetAllTreeWidgetItems().size());
}

void PTreeWidget::selectAll()
{
    if (selectionMode() == SingleSelection || selectionMode() == NoSelection)
        return;
    // The base class compares each range of rows with all others.
    QItemSelection selection;
    appendShownBelow({}, selection);
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void PTreeWidget::appendShownBelow(const QModelIndex& parent, QItemSelection& selection) const
{
    ItemViewTools::appendShownRows(selection, *model(), parent, 0, model()->rowCount(parent) - 1,
                                   [this, &parent](int row) { return !isRowHidden(row, parent); });
    for (int row = 0; row < model()->rowCount(parent); ++row) {
        const QModelIndex index = model()->index(row, 0, parent);
        if (isExpanded(index) && !isRowHidden(row, parent))
            appendShownBelow(index, selection);
    }
}

void PTreeWidget::SelectFirstItemIfPossible()
{
    if (QTreeWidgetItem* first = topLevelItem(0))
        first->setSelected(true);
}

void PTreeWidget::deleteAllTopLevelItems()
{
    qDeleteAll(invisibleRootItem()->takeChildren());
}

bool PTreeWidget::hasSubtree(const QModelIndex& index, bool expanded) const
{
    return model()->rowCount(index) > 0 && isExpanded(index) == expanded;
}

bool PTreeWidget::anySubtreeBelow(const QModelIndex& parent, bool expanded) const
{
    return anyIndexBelow(*model(), parent, [this, expanded](const QModelIndex& index) {
        return hasSubtree(index, expanded);
    });
}

bool PTreeWidget::CanExpand(const QTreeWidgetItem* item) const
{
    if (!item)
        return anySubtreeBelow({}, false);
    return isOwn(item) && (hasSubtree(indexFromItem(item), false) || CanExpandChild(item));
}

bool PTreeWidget::CanCollapse(const QTreeWidgetItem* item) const
{
    if (!item)
        return anySubtreeBelow({}, true);
    return isOwn(item) && (hasSubtree(indexFromItem(item), true) || CanCollapseChild(item));
}

bool PTreeWidget::CanExpandChild(const QTreeWidgetItem* item) const
{
    return isOwn(item) && anySubtreeBelow(indexFromItem(item), false);
}

bool PTreeWidget::CanCollapseChild(const QTreeWidgetItem* item) const
{
    return isOwn(item) && anySubtreeBelow(indexFromItem(item), true);
}

void PTreeWidget::ExpandCollapseAll(QTreeWidgetItem* item, bool expand)
{
    if (!item) {
        const QSignalBlocker blocker(this);
        for (int i = 0; i < topLevelItemCount(); ++i)
            qCDebug(itemViewsLog).noquote() << topLevelItem(i)->text(0);
        expandBelow({}, expand);
    } else if (isOwn(item)) {
        const QPersistentModelIndex index = indexFromItem(item);
        const bool isThere = whileAlive(this, [this, &index, expand] {
            if (hasSubtree(index, !expand))
                noteExpanded(index, expand);
        });
        if (isThere && index.isValid())
            expandBelow(index, expand);
    }
}

void PTreeWidget::ExpandCollapseChild(QTreeWidgetItem* item, bool expand)
{
    if (isOwn(item))
        expandBelow(indexFromItem(item), expand);
}

void PTreeWidget::expandBelow(const QModelIndex& parent, bool expand)
{
    // Collected first, because receivers of the signals may change or delete the tree.
    QList<QPersistentModelIndex> changing;
    anyIndexBelow(*model(), parent, [this, expand, &changing](const QModelIndex& index) {
        if (hasSubtree(index, !expand))
            changing.append(index);
        return false;
    });
    noteAllExpanded(changing, expand);
}

void PTreeWidget::expandAbove(const QModelIndex& index)
{
    // scrollTo() would do it, too, but works on the tree after its signals.
    QList<QPersistentModelIndex> closed;
    for (QModelIndex parent = index.parent(); parent.isValid(); parent = parent.parent()) {
        if (itemsExpandable() && !isExpanded(parent))
            closed.append(parent);
    }
    noteAllExpanded(closed, true);
}

void PTreeWidget::noteAllExpanded(const QList<QPersistentModelIndex>& indexes, bool expand)
{
    const QPointer<PTreeWidget> alive(this);
    for (const QPersistentModelIndex& index : indexes) {
        if (!index.isValid())
            continue;
        noteExpanded(index, expand);
        if (!alive)
            return;
    }
}

void PTreeWidget::noteExpanded(const QModelIndex& index, bool expand)
{
    // With a layout pending, the tree notes the change instead of laying out at once. Nor does it
    // work on itself after its signal then.
    scheduleDelayedItemsLayout();
    setExpanded(index, expand);
}

int PTreeWidget::CalcNeededHeight()
{
    executeDelayedItemsLayout();
    return ItemViewTools::neededHeight(rowHeightsBelow({}), header());
}

int PTreeWidget::rowHeightsBelow(const QModelIndex& parent) const
{
    int height = 0;
    for (int row = 0; row < model()->rowCount(parent); ++row) {
        if (isRowHidden(row, parent))
            continue;
        const QModelIndex index = model()->index(row, 0, parent);
        height += rowHeight(index);
        if (isExpanded(index))
            height += rowHeightsBelow(index);
    }
    return height;
}

int PTreeWidget::GetMaxTextWidth(QList<QTreeWidgetItem*>& items, int column) const
{
    int width = 0;
    for (const QTreeWidgetItem* item : std::as_const(items)) {
        if (!item)
            continue;
        width = std::max(width,
                         ItemViewTools::textWidth(item->text(column), item->font(column), font()));
    }
    return width;
}

void PTreeWidget::setFontForHeaderBold()
{
    ItemViewTools::makeHeaderBold(header());
}

void PTreeWidget::setHeaderTextAlignmentCenter()
{
    header()->setDefaultAlignment(Qt::AlignCenter);
}

void PTreeWidget::resizeColumnToContentsWithOffset(int column, int offset)
{
    if (column < 0 || column >= columnCount() || isColumnHidden(column))
        return;
    resizeColumnToContents(column);
    ItemViewTools::widenSection(header(), column, offset);
}

void PTreeWidget::resizeAllColumnToContentsWithOffset(int offset)
{
    for (int column = 0; column < columnCount() - 1; ++column)
        resizeColumnToContentsWithOffset(column, offset);
}

void PTreeWidget::FilterTree(const QString& text) const
{
    auto* tree = const_cast<PTreeWidget*>(this);
    for (int row = 0; row < topLevelItemCount(); ++row) {
        const auto* item = dynamic_cast<const PTreeWidgetItem*>(topLevelItem(row));
        // By row: the tree would have to search for the row of an item.
        if (item)
            tree->setRowHidden(row, {}, !item->isTextFound(text));
    }
}

void PTreeWidget::FilterItems(const std::function<bool(const QTreeWidgetItem&)>& isShown)
{
    filterBelow({}, isShown);
}

bool PTreeWidget::filterBelow(const QModelIndex& parent,
                              const std::function<bool(const QTreeWidgetItem&)>& isShown)
{
    bool anyShown = false;
    for (int row = 0; row < model()->rowCount(parent); ++row) {
        const QModelIndex index = model()->index(row, 0, parent);
        const bool below = filterBelow(index, isShown);
        const bool shown = isShown(*itemFromIndex(index)) || below;
        setRowHidden(row, parent, !shown);
        anyShown |= shown;
    }
    return anyShown;
}

void PTreeWidget::mousePressEvent(QMouseEvent* event)
{
    const bool isThere = whileAlive(this, [this, event] { QTreeWidget::mousePressEvent(event); });
    if (isThere && event->button() == Qt::LeftButton)
        d->dragStart = event->position().toPoint();
}

void PTreeWidget::mouseMoveEvent(QMouseEvent* event)
{
    // The base class would answer short moves, and those without a button, with effects of its own.
    const QPoint way = event->position().toPoint() - d->dragStart;
    if (event->buttons() == Qt::NoButton ||
        way.manhattanLength() < QApplication::startDragDistance())
        return;
    whileAlive(
        this, [this] { CreateDragData(); }, [this, event] { QTreeWidget::mouseMoveEvent(event); });
}

void PTreeWidget::mouseReleaseEvent(QMouseEvent* event)
{
    QTreeWidget::mouseReleaseEvent(event);
}

void PTreeWidget::CreateDragData() {}

void PTreeWidget::slotContextMenuHeader(const QPoint& pos)
{
    if (d->actions)
        d->actions->runMenu(pos);
}

void PTreeWidget::slotCopy()
{
    PListActions::copyRows(*this);
}

void PTreeWidget::slotCopyCell()
{
    CopyCellToClipBoard();
}

} // namespace CorvelGui
