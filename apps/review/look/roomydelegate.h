// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

#include <algorithm>

namespace Review {

/// Gives the rows of lists and tables room above and below their text.
class RoomyDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// The height of a row whose content has that height.
    static int heightFor(int content)
    {
        constexpr int lowestContent = 18; // rows with and without icons are equally high
        return std::max(content, lowestContent) + 10;
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QSize content = QStyledItemDelegate::sizeHint(option, index);
        return {content.width() + 12, heightFor(content.height())};
    }
};

} // namespace Review
