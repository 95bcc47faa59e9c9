// SPDX-License-Identifier: MIT
#include "ppathitem.h"

namespace CorvelGui {

PPathItem::PPathItem(int type) : PTableWidgetItem(type) {}

PPathItem::PPathItem(const QString& text, int type) : PTableWidgetItem(text, type) {}

QVariant PPathItem::ToolTipRequested() const
{
    return CreateToolTip(tr("Group Path"));
}

} // namespace CorvelGui
