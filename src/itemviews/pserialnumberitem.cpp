// SPDX-License-Identifier: MIT
#include "pserialnumberitem.h"

namespace CorvelGui {

PSerialNumberItem::PSerialNumberItem(int type) : PTableWidgetItem(type) {}

PSerialNumberItem::PSerialNumberItem(const QString& text, int type) : PTableWidgetItem(text, type)
{}

QVariant PSerialNumberItem::ToolTipRequested() const
{
    return CreateToolTip(tr("Serial Number"));
}

} // namespace CorvelGui
