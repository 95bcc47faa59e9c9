#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QPointer>
#include <QStyledItemDelegate>
#include <QValidator>

namespace CorvelGui {

/// Edits cells in a line edit that takes a validator. An entry that the validator does not accept
/// shows red and never reaches the model.
class CORVELGUI_EXPORT PLineEditDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit PLineEditDelegate(QObject* parent = nullptr);

    /// For the editors opened from now on; null accepts everything. The delegate does not own it.
    void setValidator(const QValidator* validator);
    const QValidator* validator() const { return m_validator; }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

private:
    QPointer<const QValidator> m_validator;
};

} // namespace CorvelGui
