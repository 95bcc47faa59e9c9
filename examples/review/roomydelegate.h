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
        constexpr int lowestContent = 18; // rows with and without icons are equally high
        const QSize content = QStyledItemDelegate::sizeHint(option, index);
        return content.expandedTo(QSize(0, lowestContent)) + QSize(12, 10);
    }
};

} // namespace Review
