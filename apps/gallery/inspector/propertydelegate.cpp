// SPDX-License-Identifier: MIT
#include "propertydelegate.h"

#include "propertymodel.h"

#include <CorvelGui/PColorButton>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QItemEditorFactory>

using CorvelGui::PColorButton;

namespace Gallery {

namespace {

/// Qt's editors, and the library's own for colours.
class EditorFactory : public QItemEditorFactory
{
public:
    QWidget* createEditor(int userType, QWidget* parent) const override
    {
        if (userType != QMetaType::QColor)
            return defaultFactory()->createEditor(userType, parent);
        auto* button = new PColorButton(parent);
        button->setAlphaEnabled(true);
        return button;
    }
    QByteArray valuePropertyName(int userType) const override
    {
        return userType == QMetaType::QColor ? QByteArrayLiteral("color")
                                             : defaultFactory()->valuePropertyName(userType);
    }
};

} // namespace

PropertyDelegate::PropertyDelegate(QObject* parent) : QStyledItemDelegate(parent)
{
    static EditorFactory factory;
    setItemEditorFactory(&factory);
}

PropertyDelegate::~PropertyDelegate() = default;

QWidget* PropertyDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const
{
    auto* self = const_cast<PropertyDelegate*>(this); // signals are not const
    const QStringList keys = index.data(PropertyModel::keysRole).toStringList();
    if (!keys.isEmpty()) {
        auto* box = new QComboBox(parent);
        box->addItems(keys);
        connect(box, &QComboBox::currentIndexChanged, self,
                [self, box] { Q_EMIT self->commitData(box); });
        return box;
    }
    QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
    const auto commit = [self, editor] {
        Q_EMIT self->commitData(editor);
    };
    if (auto* number = qobject_cast<QSpinBox*>(editor)) {
        connect(number, &QSpinBox::valueChanged, self, commit);
    } else if (auto* fraction = qobject_cast<QDoubleSpinBox*>(editor)) {
        fraction->setDecimals(4);
        fraction->setSingleStep(0.1);
        connect(fraction, &QDoubleSpinBox::valueChanged, self, commit);
    } else if (auto* color = qobject_cast<PColorButton*>(editor)) {
        connect(color, &PColorButton::colorChanged, self, commit);
    }
    return editor;
}

void PropertyDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (auto* box = qobject_cast<QComboBox*>(editor))
        box->setCurrentText(index.data(Qt::EditRole).toString());
    else
        QStyledItemDelegate::setEditorData(editor, index);
}

void PropertyDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                    const QModelIndex& index) const
{
    if (const auto* box = qobject_cast<QComboBox*>(editor))
        model->setData(index, box->currentText(), Qt::EditRole);
    else
        QStyledItemDelegate::setModelData(editor, model, index);
}

} // namespace Gallery
