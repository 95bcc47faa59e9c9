// SPDX-License-Identifier: MIT
#include "ptextwidgetitem.h"

#include "frame/stringhelper.h"

namespace CorvelGui {

PTextWidgetItem::PTextWidgetItem(int type) : PTableWidgetItem(type) {}

PTextWidgetItem::PTextWidgetItem(const QString& text, int type) : PTableWidgetItem(text, type) {}

bool PTextWidgetItem::operator<(const QTableWidgetItem& other) const
{
    return QTableWidgetItem::operator<(other);
}

QVariant PTextWidgetItem::ToolTipRequested() const
{
    return StringHelper::plainToolTip(text());
}

} // namespace CorvelGui
