// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QStyledItemDelegate>

#include <memory>

class QValidator;

namespace CorvelGui {

/// Edits cells in a line edit that takes a validator. An entry that the validator does not accept
/// shows red and never reaches the model.
class CORVELGUI_EXPORT PLineEditDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit PLineEditDelegate(QObject* parent = nullptr);
    ~PLineEditDelegate() override;

    /// For the editors opened from now on; null accepts everything. The delegate does not own it.
    void setValidator(const QValidator* validator);
    const QValidator* validator() const;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
