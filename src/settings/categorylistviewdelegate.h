// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QStyledItemDelegate>

namespace CorvelGui {

/// Gives every category a comfortable height, and the selected one a pale ground: the icons come
/// from applications, in colours that suit the ground of the list. The one with the keyboard has a
/// frame around all of it.
class CORVELGUI_INTERNAL_EXPORT CategoryListViewDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace CorvelGui
