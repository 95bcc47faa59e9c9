// SPDX-License-Identifier: MIT
#include "plineeditdelegate.h"

#include "input/wrongentrysheet.h"

#include <QLineEdit>
#include <QPointer>
#include <QValidator>

namespace CorvelGui {

struct PLineEditDelegate::Private
{
    QPointer<const QValidator> validator;
};

PLineEditDelegate::PLineEditDelegate(QObject* parent)
    : QStyledItemDelegate(parent), d(std::make_unique<Private>())
{}

PLineEditDelegate::~PLineEditDelegate() = default;

void PLineEditDelegate::setValidator(const QValidator* validator)
{
    d->validator = validator;
}

const QValidator* PLineEditDelegate::validator() const
{
    return d->validator;
}

QWidget* PLineEditDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                         const QModelIndex&) const
{
    auto* editor = new QLineEdit(parent);
    editor->setFrame(false);
    editor->setAutoFillBackground(true);
    editor->setValidator(d->validator);
    connect(editor, &QLineEdit::textChanged, editor,
            [editor] { markWrongEntry(editor, !editor->hasAcceptableInput()); });
    return editor;
}

void PLineEditDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (auto* edit = qobject_cast<QLineEdit*>(editor))
        edit->setText(index.data(Qt::EditRole).toString());
}

void PLineEditDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                     const QModelIndex& index) const
{
    const auto* edit = qobject_cast<const QLineEdit*>(editor);
    if (edit && edit->hasAcceptableInput())
        model->setData(index, edit->text(), Qt::EditRole);
}

} // namespace CorvelGui
