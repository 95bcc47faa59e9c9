// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QTableWidget>

#include <functional>
#include <memory>

namespace CorvelGui {

/// The list of devices or events in rows and cells, beside PTreeWidget: copies rows and cells to
/// the clipboard, filters its rows, measures its content, and exports it as CSV. Operations with
/// the name of one of PTreeWidget mean the same; where that speaks of an item, this speaks of a row
/// with a selected cell.
///
/// A new table selects whole rows. What is hidden while it is selected stays selected, but the user
/// selects only what is shown. A cell without an item counts as empty, and an item of another table
/// as null.
class CORVELGUI_EXPORT PTableWidget : public QTableWidget
{
    Q_OBJECT

public:
    explicit PTableWidget(QWidget* parent = nullptr);
    PTableWidget(int rows, int columns, QWidget* parent = nullptr);
    ~PTableWidget() override;

    /// Makes the actions "Copy" and "Copy (Cell)". With @p withContextMenu they are offered in a
    /// context menu and work; without it they are children of the table that nothing is connected
    /// to. Meant to be called once: a second call makes a second pair.
    void InitCopyMenus(bool withContextMenu);
    /// Runs the CSV dialog for what is selected in this table, until it is closed.
    void CsvExport();
    /// Copies the current column of the selected rows, from top to bottom, one line each without a
    /// line feed at the end. Without a current cell it is the first column.
    void CopyCellToClipBoard();

    /// An invalid index for null.
    QModelIndex GetModelIndexFromItem(QTableWidgetItem* item) const;
    /// Clears the selection and scrolls to @p item, which is then selected, with all that
    /// selectionBehavior() selects with it, if @p select. With null only clears the selection.
    void ScrollToItemAndSelect(QTableWidgetItem* item, bool select);
    /// Deletes the widgets that were placed in a column with setCellWidget(). They leave the table
    /// at once and end with the current event, so that one of them may ask for it.
    void DeleteWidgets(int column);
    /// Whether some item is checked in @p column. The selection does not matter.
    bool IsAlLeastOneSelected(int column) const;
    /// The rows with a selected cell, from top to bottom.
    QList<int> GetSelectedRows() const;
    /// All items, row by row.
    QList<QTableWidgetItem*> GetAllTableWidgetItems() const;
    /// The row, or -1 unless exactly one row has a selected cell.
    int GetSingleSelection() const;

    /// The height in pixels at which all rows show without scrolling.
    int CalcNeededHeight();
    /// In pixels, in the fonts of the cells. Null entries count for nothing.
    int GetMaxTextWidth(const QList<QTableWidgetItem*>& items) const;
    int GetTotalNumberOfRows() const;
    /// Other selected rows stay selected.
    void SelectFirstItemIfPossible();

    void setFontForHeaderBold();
    void setHeaderTextAlignmentCenter();
    /// Fits a column to its contents and widens it by @p offset pixels; a negative one narrows it.
    /// Hidden columns stay as they are.
    void resizeColumnToContentsWithOffset(int column, int offset);
    /// The same for all columns but the last, which is meant to stretch: see
    /// QHeaderView::setStretchLastSection().
    void resizeAllColumnToContentsWithOffset(int offset);

    /// Shows the rows in which a cell contains @p text, and hides the others. The text must be in
    /// lower case to be found.
    void FilterTable(const QString& text);

    /// Shows the rows for which @p isShown says so, and hides the others.
    void FilterRows(const std::function<bool(int row)>& isShown);

    /// Selects all rows that are not hidden.
    void selectAll() override;

protected:
    /// The selected rows as lines that end with a line feed, a tab after the text of every column.
    QString getItemTextForCopy() const;

    /// Leaves out hidden rows when the user selects from one row to another.
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;

protected Q_SLOTS:
    void slotContextMenuHeader(const QPoint& pos);
    void slotCopy();
    void slotCopyCell();

private:
    QString cellText(int row, int column) const;
    bool isTextFound(int row, const QString& text) const;

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
