// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace Gallery {

/// Edits the values of a PropertyModel. What an editor shows counts at once.
class PropertyDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit PropertyDelegate(QObject* parent = nullptr);
    ~PropertyDelegate() override;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
};

} // namespace Gallery
