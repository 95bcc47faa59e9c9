// SPDX-License-Identifier: MIT
#include "ptablewidget.h"

#include "base/whilealive.h"
#include "itemviewtools.h"
#include "plistactions.h"
#include "rowdelegate.h"

#include <QHeaderView>
#include <QPersistentModelIndex>
#include <QPointer>

#include <algorithm>

namespace CorvelGui {

namespace {

QItemSelectionModel::SelectionFlags flagsOf(QAbstractItemView::SelectionBehavior behavior)
{
    switch (behavior) {
    case QAbstractItemView::SelectRows:
        return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
    case QAbstractItemView::SelectColumns:
        return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Columns;
    case QAbstractItemView::SelectItems:
        break;
    }
    return QItemSelectionModel::ClearAndSelect;
}

} // namespace

struct PTableWidget::Private
{
    PListActions* actions = nullptr;
};

PTableWidget::PTableWidget(QWidget* parent) : PTableWidget(0, 0, parent) {}

PTableWidget::PTableWidget(int rows, int columns, QWidget* parent)
    : QTableWidget(rows, columns, parent), d(std::make_unique<Private>())
{
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setItemDelegate(new RowDelegate(this));
}

PTableWidget::~PTableWidget() = default;

void PTableWidget::InitCopyMenus(bool withContextMenu)
{
    d->actions = new PListActions(this);
    if (withContextMenu)
        d->actions->offer();
}

QString PTableWidget::cellText(int row, int column) const
{
    const QTableWidgetItem* cell = item(row, column);
    return cell ? cell->text() : QString();
}

void PTableWidget::CsvExport()
{
    PListActions::exportSelection(*this);
}

void PTableWidget::CopyCellToClipBoard()
{
    PListActions::copyCells(*this);
}

QString PTableWidget::getItemTextForCopy() const
{
    return PListActions::rowsText(*this);
}

QModelIndex PTableWidget::GetModelIndexFromItem(QTableWidgetItem* item) const
{
    return item && item->tableWidget() == this ? indexFromItem(item) : QModelIndex();
}

void PTableWidget::ScrollToItemAndSelect(QTableWidgetItem* item, bool select)
{
    // The receivers of what these steps emit may delete the item.
    const QPersistentModelIndex index = GetModelIndexFromItem(item);
    whileAlive(
        this, [this] { clearSelection(); },
        [this, &index] {
            if (index.isValid())
                scrollTo(index, QAbstractItemView::EnsureVisible);
        },
        [this, &index, select] {
            if (select && index.isValid())
                selectionModel()->select(index, flagsOf(selectionBehavior()));
        });
}

void PTableWidget::DeleteWidgets(int column)
{
    QList<QPointer<QWidget>> widgets;
    for (int row = 0; row < rowCount(); ++row) {
        if (QWidget* widget = cellWidget(row, column)) {
            widgets.append(widget);
            removeCellWidget(row, column);
        }
    }
    ItemViewTools::hideAll(widgets);
}

bool PTableWidget::IsAlLeastOneSelected(int column) const
{
    for (int row = 0; row < rowCount(); ++row) {
        const QTableWidgetItem* cell = item(row, column);
        if (cell && cell->checkState() == Qt::Checked)
            return true;
    }
    return false;
}

QList<int> PTableWidget::GetSelectedRows() const
{
    QList<int> rows;
    for (const QModelIndex& row : PListActions::selectedRows(*this))
        rows.append(row.row());
    return rows;
}

QList<QTableWidgetItem*> PTableWidget::GetAllTableWidgetItems() const
{
    QList<QTableWidgetItem*> items;
    for (int row = 0; row < rowCount(); ++row) {
        for (int column = 0; column < columnCount(); ++column) {
            if (QTableWidgetItem* cell = item(row, column))
                items.append(cell);
        }
    }
    return items;
}

int PTableWidget::GetSingleSelection() const
{
    const QList<int> rows = GetSelectedRows();
    return rows.size() == 1 ? rows.front() : -1;
}

int PTableWidget::CalcNeededHeight()
{
    executeDelayedItemsLayout();
    return ItemViewTools::neededHeight(verticalHeader()->length(), horizontalHeader());
}

int PTableWidget::GetMaxTextWidth(const QList<QTableWidgetItem*>& items) const
{
    int width = 0;
    for (const QTableWidgetItem* item : items) {
        if (item)
            width = std::max(width, ItemViewTools::textWidth(item->text(), item->font(), font()));
    }
    return width;
}

int PTableWidget::GetTotalNumberOfRows() const
{
    return rowCount();
}

void PTableWidget::selectAll()
{
    if (selectionMode() == SingleSelection || selectionMode() == NoSelection)
        return;
    QItemSelection selection;
    ItemViewTools::appendShownRows(selection, *model(), {}, 0, rowCount() - 1,
                                   [this](int row) { return !isRowHidden(row); });
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void PTableWidget::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command)
{
    const QModelIndex one = indexAt(rect.topLeft());
    const QModelIndex other = indexAt(rect.bottomRight());
    const bool selectsRows = command.testFlag(QItemSelectionModel::Rows);
    if (!selectsRows || !verticalHeader()->sectionsHidden() || !one.isValid() || !other.isValid())
        return QTableWidget::setSelection(rect, command);
    const auto [first, last] = std::minmax({one.row(), other.row()});
    QItemSelection selection;
    ItemViewTools::appendShownRows(selection, *model(), {}, first, last,
                                   [this](int row) { return !isRowHidden(row); });
    selectionModel()->select(selection, command.setFlag(QItemSelectionModel::Rows, false));
}

void PTableWidget::SelectFirstItemIfPossible()
{
    selectionModel()->select(model()->index(0, 0),
                             QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

void PTableWidget::setFontForHeaderBold()
{
    ItemViewTools::makeHeaderBold(horizontalHeader());
}

void PTableWidget::setHeaderTextAlignmentCenter()
{
    horizontalHeader()->setDefaultAlignment(Qt::AlignCenter);
}

void PTableWidget::resizeColumnToContentsWithOffset(int column, int offset)
{
    if (column < 0 || column >= columnCount() || isColumnHidden(column))
        return;
    resizeColumnToContents(column);
    ItemViewTools::widenSection(horizontalHeader(), column, offset);
}

void PTableWidget::resizeAllColumnToContentsWithOffset(int offset)
{
    for (int column = 0; column < columnCount() - 1; ++column)
        resizeColumnToContentsWithOffset(column, offset);
}

bool PTableWidget::isTextFound(int row, const QString& text) const
{
    for (int column = 0; column < columnCount(); ++column) {
        if (cellText(row, column).toLower().contains(text))
            return true;
    }
    return false;
}

void PTableWidget::FilterTable(const QString& text)
{
    FilterRows([&](int row) { return isTextFound(row, text); });
}

void PTableWidget::FilterRows(const std::function<bool(int row)>& isShown)
{
    // Otherwise the header would add up all rows again after each of them.
    verticalHeader()->setUpdatesEnabled(false);
    for (int row = 0; row < rowCount(); ++row)
        setRowHidden(row, !isShown(row));
    verticalHeader()->setUpdatesEnabled(true);
}

void PTableWidget::slotContextMenuHeader(const QPoint& pos)
{
    if (d->actions)
        d->actions->runMenu(pos);
}

void PTableWidget::slotCopy()
{
    PListActions::copyRows(*this);
}

void PTableWidget::slotCopyCell()
{
    CopyCellToClipBoard();
}

} // namespace CorvelGui
