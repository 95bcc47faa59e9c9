#include "categorylistviewdelegate.h"

namespace CorvelGui {

QSize CategoryListViewDelegate::sizeHint(const QStyleOptionViewItem& option,
                                         const QModelIndex& index) const
{
    constexpr int minimumHeight = 32;
    return QStyledItemDelegate::sizeHint(option, index).expandedTo(QSize(0, minimumHeight));
}

} // namespace CorvelGui
