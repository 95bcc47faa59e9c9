#pragma once

#include <QStyledItemDelegate>

namespace Review {

/// Gives the rows of lists and tables room above and below their text.
class RoomyDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(12, 10);
    }
};

} // namespace Review
