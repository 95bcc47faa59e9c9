// SPDX-License-Identifier: MIT
#include "categorylistviewdelegate.h"

#include "base/readablecolor.h"

#include <QPainter>
#include <QWidget>

namespace CorvelGui {

QSize CategoryListViewDelegate::sizeHint(const QStyleOptionViewItem& option,
                                         const QModelIndex& index) const
{
    constexpr int minimumHeight = 32;
    return QStyledItemDelegate::sizeHint(option, index).expandedTo(QSize(0, minimumHeight));
}

void CategoryListViewDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                     const QModelIndex& index) const
{
    QStyleOptionViewItem withoutFrame = option;
    withoutFrame.state.setFlag(QStyle::State_HasFocus, false);
    QStyledItemDelegate::paint(painter, withoutFrame, index);
    if (!option.state.testFlag(QStyle::State_HasFocus))
        return;
    painter->save();
    painter->setPen(option.palette.color(QPalette::Highlight));
    painter->drawRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
    painter->restore();
}

void CategoryListViewDelegate::initStyleOption(QStyleOptionViewItem* option,
                                               const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (!option->state.testFlag(QStyle::State_Selected))
        return;
    constexpr float share = 0.25F; // of the colour of selections
    QPalette& palette = option->palette;
    palette.setColor(QPalette::Highlight, mixed(palette.color(QPalette::Base),
                                                palette.color(QPalette::Highlight), share));
    palette.setBrush(QPalette::HighlightedText, palette.text());
    // Not in the mode of selections, which is made for their colour.
    const qreal scale = option->widget ? option->widget->devicePixelRatioF() : 1.0;
    QIcon plain;
    plain.addPixmap(option->icon.pixmap(option->decorationSize, scale), QIcon::Selected);
    option->icon = plain;
}

} // namespace CorvelGui
