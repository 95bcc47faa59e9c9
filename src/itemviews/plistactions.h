// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QModelIndexList>
#include <QObject>

class QAbstractItemView;
class QAction;
class QItemSelection;
class QPoint;

namespace CorvelGui {

/// What PTreeWidget and PTableWidget offer for their rows, for every item view and model: the
/// actions "Copy" and "Copy (Cell)" with their context menu, and the export as CSV. The header menu
/// is PHeaderCheckMenu.
///
/// The keys of the actions, Ctrl+Shift+C and Ctrl+C, count while the context menu is open, and
/// always where the actions are added to the view: QWidget::addAction().
///
/// A row counts as selected when one of its cells is. Rows come in tree order: from top to bottom,
/// parents before children, whether they can be seen or not.
class CORVELGUI_EXPORT PListActions : public QObject
{
    Q_OBJECT

public:
    /// Makes the actions, which nothing is connected to yet. They and this belong to @p view.
    explicit PListActions(QAbstractItemView* view);

    /// "Copy": all columns of the selected rows.
    QAction* copy() const { return m_copy; }
    /// "Copy (Cell)": the current column of the selected rows.
    QAction* copyCell() const { return m_copyCell; }
    /// Shows both in a modal menu at @p position of the viewport. The view may be deleted
    /// meanwhile.
    void runMenu(QPoint position);
    /// Makes the actions work, and that menu the view's context menu. For views other than
    /// PTreeWidget and PTableWidget, which have InitCopyMenus().
    void offer();

    /// The first cells of the selected rows.
    static QModelIndexList selectedRows(const QAbstractItemView& view);
    /// The selected rows as lines that end with a line feed, a tab after the text of every column.
    static QString rowsText(const QAbstractItemView& view);
    /// Puts rowsText() on the clipboard.
    static void copyRows(const QAbstractItemView& view);
    /// Puts the current column of the selected rows on the clipboard, one line each without a line
    /// feed at the end. Without a current cell it is the first column.
    static void copyCells(const QAbstractItemView& view);

    /// Runs the CSV dialog for what is selected, until it is closed. The view may be deleted
    /// meanwhile.
    static void exportSelection(QAbstractItemView& view);
    /// The same for the given rows of the view's model, whatever is selected.
    static void exportRows(QAbstractItemView& view, const QItemSelection& rows);

protected:
    /// Follows the language of the view.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void translateTexts();

    QAbstractItemView* const m_view;
    QAction* const m_copy;
    QAction* const m_copyCell;
};

} // namespace CorvelGui
