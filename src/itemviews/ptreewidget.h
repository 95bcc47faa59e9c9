// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QPersistentModelIndex>
#include <QTreeWidget>

#include <functional>
#include <memory>

namespace CorvelGui {

/// The multi-column list of devices and search results: copies rows and cells to the clipboard,
/// expands and collapses whole subtrees, filters its top-level rows, measures its content, and
/// exports it as CSV.
///
/// Tree order means depth first, parents before children. Operations on all items include hidden
/// and collapsed ones. An item of another tree counts as null.
///
/// Rows are of one height, and moves of the mouse reach QTreeWidget only while they drag. A new
/// tree selects one item at a time, as every QTreeWidget: to copy or export several rows, call
/// setSelectionMode(QAbstractItemView::ExtendedSelection).
class CORVELGUI_EXPORT PTreeWidget : public QTreeWidget
{
    Q_OBJECT

public:
    explicit PTreeWidget(QWidget* parent = nullptr);
    ~PTreeWidget() override;

    /// Makes the actions "Copy" and "Copy (Cell)". With @p withContextMenu they are offered in a
    /// context menu and work; without it they are children of the tree that nothing is connected
    /// to. Meant to be called once: a second call makes a second pair.
    void InitCopyMenus(bool withContextMenu);
    /// Runs the CSV dialog for what is selected in this tree, until it is closed.
    void CsvExport();
    /// Copies the current column of the selected items, in tree order, one line each without a line
    /// feed at the end. Without a current cell it is the first column.
    void CopyCellToClipBoard();

    /// An invalid index for null.
    QModelIndex GetModelIndexFromItem(QTreeWidgetItem* item, int column) const;
    /// Clears the selection and scrolls to @p item, which is then the only selected one if
    /// @p select. With null only clears the selection.
    void ScrollToItemAndSelect(QTreeWidgetItem* item, bool select);
    /// Deletes the widgets that were placed in a column with setItemWidget(). They leave the tree
    /// at once and end with the current event, so that one of them may ask for it.
    void DeleteWidgets(int column);
    /// Whether some item is checked in @p column. The selection does not matter.
    bool IsAlLeastOneSelected(int column) const;
    /// In tree order.
    QList<QTreeWidgetItem*> GetSelectedTreeWidgetItems() const;
    /// In tree order.
    QList<QTreeWidgetItem*> GetAllTreeWidgetItems() const;
    /// Null unless exactly one item is selected.
    QTreeWidgetItem* GetSingleSelection() const;

    /// Whether @p item, or an item below it, has children and is collapsed; with null any item.
    bool CanExpand(const QTreeWidgetItem* item) const;
    /// Whether @p item, or an item below it, has children and is expanded; with null any item.
    bool CanCollapse(const QTreeWidgetItem* item) const;
    /// Expands or collapses @p item and all below it. With null the whole tree, without a signal
    /// for each item.
    void ExpandCollapseAll(QTreeWidgetItem* item, bool expand);

    /// The height in pixels at which the rows that are now expanded show without scrolling.
    int CalcNeededHeight();
    /// In pixels, in the fonts of the cells. Null entries count for nothing.
    int GetMaxTextWidth(QList<QTreeWidgetItem*>& items, int column) const;
    int GetTotalNumberOfRows() const;
    /// Other selected items stay selected.
    void SelectFirstItemIfPossible();

    void setFontForHeaderBold();
    void setHeaderTextAlignmentCenter();
    /// Fits a column to its contents and widens it by @p offset pixels; a negative one narrows it.
    /// Hidden columns stay as they are.
    void resizeColumnToContentsWithOffset(int column, int offset);
    /// The same for all columns but the last, which keeps stretching.
    void resizeAllColumnToContentsWithOffset(int offset);

    /// Shows the top-level items that contain @p text, and hides the others. The text must be in
    /// lower case to be found. Items that are no PTreeWidgetItem, and all children, stay as they
    /// are.
    void FilterTree(const QString& text) const;

    /// Shows the items for which @p isShown says so, with all above them, and hides the others.
    void FilterItems(const std::function<bool(const QTreeWidgetItem&)>& isShown);

    /// Selects all rows that are shown: neither hidden ones nor those of collapsed items. Does
    /// nothing where the selection mode is for one item.
    void selectAll() override;

protected:
    /// Called while the mouse drags with a button held. Start the drag here; does nothing itself.
    virtual void CreateDragData();

    /// The selected items as lines that end with a line feed, a tab after the text of every column.
    QString getItemTextForCopy() const;
    void deleteAllTopLevelItems();
    /// As CanExpand(), for the items below @p item.
    bool CanExpandChild(const QTreeWidgetItem* item) const;
    /// As CanCollapse(), for the items below @p item.
    bool CanCollapseChild(const QTreeWidgetItem* item) const;
    /// As ExpandCollapseAll(), for the items below @p item.
    void ExpandCollapseChild(QTreeWidgetItem* item, bool expand);

    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

protected Q_SLOTS:
    void slotContextMenuHeader(const QPoint& pos);
    void slotCopy();
    void slotCopyCell();

private:
    bool isOwn(const QTreeWidgetItem* item) const;
    bool hasSubtree(const QModelIndex& index, bool expanded) const;
    bool anySubtreeBelow(const QModelIndex& parent, bool expanded) const;
    void expandBelow(const QModelIndex& parent, bool expand);
    void expandAbove(const QModelIndex& index);
    void noteAllExpanded(const QList<QPersistentModelIndex>& indexes, bool expand);
    void noteExpanded(const QModelIndex& index, bool expand);
    void appendShownBelow(const QModelIndex& parent, QItemSelection& selection) const;
    int rowHeightsBelow(const QModelIndex& parent) const;
    bool filterBelow(const QModelIndex& parent,
                     const std::function<bool(const QTreeWidgetItem&)>& isShown);

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
