// SPDX-License-Identifier: MIT
#include "pnetworkitemdelegate.h"

#include "input/piplineedit.h"
#include "pipitem.h"

#include <QTableWidget>

namespace CorvelGui {

PNetworkItemDelegate::PNetworkItemDelegate(QObject* parent) : PLineEditDelegate(parent) {}

QWidget* PNetworkItemDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                            const QModelIndex&) const
{
    auto* editor = new PIpLineEdit(parent);
    editor->setFrame(false);
    editor->setAutoFillBackground(true);
    return editor;
}

void PNetworkItemDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                        const QModelIndex& index) const
{
    const auto* edit = qobject_cast<const PIpLineEdit*>(editor);
    if (!edit || !edit->hasAcceptableInput())
        return;
    const auto* table = qobject_cast<const QTableWidget*>(model->parent());
    QTableWidgetItem* item = table ? table->item(index.row(), index.column()) : nullptr;
    // Before the table may sort: a cell sorts by its address, which its text alone does not change.
    if (auto* address = dynamic_cast<PIpItem*>(item))
        address->setIp(edit->text());
    else
        PLineEditDelegate::setModelData(editor, model, index);
}

} // namespace CorvelGui
