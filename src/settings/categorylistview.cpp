// SPDX-License-Identifier: MIT
#include "categorylistview.h"

#include <QScrollBar>

namespace CorvelGui {

namespace {

constexpr int room = 5;
constexpr int preferredHeight = 100;

} // namespace

CategoryListView::CategoryListView(QWidget* parent) : QListView(parent)
{
    setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Expanding);
}

QSize CategoryListView::sizeHint() const
{
    int width = sizeHintForColumn(0) + 2 * frameWidth() + room;
    if (verticalScrollBar()->isVisible())
        width += verticalScrollBar()->width();
    return {width, preferredHeight};
}

} // namespace CorvelGui
