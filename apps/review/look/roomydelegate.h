// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

namespace Review {

/// Gives the rows of lists and tables room above and below their text, and frames the cell that has
/// the keyboard.
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

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        QStyledItemDelegate::paint(painter, option, index);
        if (!option.state.testFlag(QStyle::State_HasFocus))
            return;
        const bool isSelected = option.state.testFlag(QStyle::State_Selected);
        const QRectF frame = QRectF(option.rect).adjusted(1, 1, -1, -1);
        painter->save();
        painter->setPen(
            {option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Highlight),
             1.0});
        painter->drawRect(frame.adjusted(0.5, 0.5, -0.5, -0.5));
        painter->restore();
    }
};

} // namespace Review
