// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace CorvelGui {

/// Makes every row as high as one with a check box. In a list of uniform rows the first one sets
/// the height of all, and it may be the only one without. Texts in a colour of their own, such as
/// that of a status, are shown in a shade that the look makes readable.
class RowDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit RowDelegate(QObject* parent);

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace CorvelGui
