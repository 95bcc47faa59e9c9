#pragma once

#include "base/internalexport.h"

#include <QStyledItemDelegate>

namespace CorvelGui {

/// Gives every category a comfortable height.
class CORVELGUI_INTERNAL_EXPORT CategoryListViewDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace CorvelGui
