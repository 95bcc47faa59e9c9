// SPDX-License-Identifier: MIT
#include "plistactions.h"

#include "dialogs/pcsvdialog.h"
#include "itemviewtools.h"
#include "ptreewidget.h"

#include <Hueloft/PIconHelper>

#include <QAbstractItemView>
#include <QAction>
#include <QEvent>
#include <QMenu>
#include <QPointer>

#include <algorithm>

namespace CorvelGui {

namespace {

/// The row numbers on the way down to a row.
std::vector<int> pathTo(QModelIndex row)
{
    std::vector<int> path;
    for (; row.isValid(); row = row.parent())
        path.insert(path.begin(), row.row());
    return path;
}

bool standsBefore(const QModelIndex& one, const QModelIndex& other)
{
    if (one.parent() == other.parent())
        return one.row() < other.row();
    return pathTo(one) < pathTo(other);
}

/// The selection may span cells that cannot be selected; a row of them is not.
bool hasSelectableCell(const QItemSelectionRange& range, int row)
{
    constexpr Qt::ItemFlags needed = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    for (int column = range.left(); column <= range.right(); ++column) {
        const QModelIndex cell = range.model()->index(row, column, range.parent());
        if ((cell.flags() & needed) == needed)
            return true;
    }
    return false;
}

} // namespace

PListActions::PListActions(QAbstractItemView* view)
    : QObject(view), m_view(view), m_copy(new QAction(view)), m_copyCell(new QAction(view))
{
    m_copy->setIcon(Hueloft::PIconHelper::GetCopyIcon_32x32(true));
    m_copy->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_C);
    m_copyCell->setIcon(Hueloft::PIconHelper::GetCopyRowsIcon_32x32(true));
    // The everyday keys copy one cell, the longer ones whole rows.
    m_copyCell->setShortcut(QKeySequence::Copy);
    translateTexts();
    view->installEventFilter(this);
}

void PListActions::translateTexts()
{
    m_copy->setText(PTreeWidget::tr("Copy"));
    m_copy->setStatusTip(PTreeWidget::tr("Copy the current selection's contents to the clipboard"));
    m_copyCell->setText(PTreeWidget::tr("Copy (Cell)"));
    m_copyCell->setStatusTip(
        PTreeWidget::tr("Copy the current contents of the cell to the clipboard"));
}

bool PListActions::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        translateTexts();
    return false;
}

void PListActions::runMenu(QPoint position)
{
    const QPointer<QMenu> menu = new QMenu(m_view);
    menu->addAction(m_copy);
    menu->addAction(m_copyCell);
    menu->exec(m_view->viewport()->mapToGlobal(position));
    delete menu;
}

void PListActions::offer()
{
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_view, &QWidget::customContextMenuRequested, this, &PListActions::runMenu);
    connect(m_copy, &QAction::triggered, this, [this] { copyRows(*m_view); });
    connect(m_copyCell, &QAction::triggered, this, [this] { copyCells(*m_view); });
}

QModelIndexList PListActions::selectedRows(const QAbstractItemView& view)
{
    // By ranges: asking each cell would search all ranges for each of them.
    QModelIndexList rows;
    if (!view.selectionModel())
        return rows;
    for (const QItemSelectionRange& range : view.selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            if (hasSelectableCell(range, row))
                rows.append(range.model()->index(row, 0, range.parent()));
        }
    }
    if (!std::ranges::is_sorted(rows, standsBefore))
        std::ranges::sort(rows, standsBefore);
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

QString PListActions::rowsText(const QAbstractItemView& view)
{
    QString text;
    for (const QModelIndex& row : selectedRows(view)) {
        const int columns = view.model()->columnCount(row.parent());
        for (int column = 0; column < columns; ++column)
            text += row.siblingAtColumn(column).data().toString() + u'\t';
        text += u'\n';
    }
    return text;
}

void PListActions::copyRows(const QAbstractItemView& view)
{
    ItemViewTools::copyToClipboard(rowsText(view));
}

void PListActions::copyCells(const QAbstractItemView& view)
{
    const int column = std::max(0, view.currentIndex().column());
    QStringList texts;
    for (const QModelIndex& row : selectedRows(view))
        texts.append(row.siblingAtColumn(column).data().toString());
    ItemViewTools::copyToClipboard(texts.join(u'\n'));
}

void PListActions::exportSelection(QAbstractItemView& view)
{
    exportRows(view, view.selectionModel()->selection());
}

void PListActions::exportRows(QAbstractItemView& view, const QItemSelection& rows)
{
    const QPointer<PCsvDialog> dialog = new PCsvDialog(&view);
    dialog->InitWithRows(view.model(), rows);
    dialog->exec();
    delete dialog;
}

} // namespace CorvelGui
