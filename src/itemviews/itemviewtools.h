// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemModel>
#include <QFont>
#include <QItemSelection>
#include <QList>
#include <QPointer>
#include <QString>
#include <QWidget>

class QHeaderView;

/// What tree and table do alike.
namespace CorvelGui::ItemViewTools {

/// Leaves the other clipboard modes alone.
void copyToClipboard(const QString& text);

/// Hides widgets that a view has given up. When one of them had the focus, receivers may change the
/// view and delete other widgets.
void hideAll(const QList<QPointer<QWidget>>& widgets);

void makeHeaderBold(QHeaderView* header);
/// Widens a section by @p offset pixels; a negative one narrows it, down to nothing.
void widenSection(QHeaderView* header, int section, int offset);

/// The width of a text in pixels, in the font of its cell; what that leaves open comes from
/// @p viewFont.
int textWidth(const QString& text, const QFont& cellFont, const QFont& viewFont);

/// Appends the rows from @p first to @p last for which @p isShown(row) holds, in all columns, and
/// as few ranges as possible.
template <typename IsShown>
void appendShownRows(QItemSelection& selection, const QAbstractItemModel& model,
                     const QModelIndex& parent, int first, int last, const IsShown& isShown)
{
    const int lastColumn = model.columnCount(parent) - 1;
    for (int row = first; row <= last; ++row) {
        if (!isShown(row))
            continue;
        const int top = row;
        while (row < last && isShown(row + 1))
            ++row;
        selection.append({model.index(top, 0, parent), model.index(row, lastColumn, parent)});
    }
}

/// The height in pixels that a view needs for @p rows pixels of rows, with its header and some air.
int neededHeight(int rows, const QHeaderView* header);

} // namespace CorvelGui::ItemViewTools
