// SPDX-License-Identifier: MIT
#include "pfirmwareversionitem.h"

namespace CorvelGui {

PFirmwareVersionItem::PFirmwareVersionItem(int type) : PTableWidgetItem(type) {}

PFirmwareVersionItem::PFirmwareVersionItem(const QString& text, int type)
    : PTableWidgetItem(text, type)
{}

QVariant PFirmwareVersionItem::ToolTipRequested() const
{
    return CreateToolTip(tr("Software"));
}

} // namespace CorvelGui
