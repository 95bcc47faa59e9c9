// SPDX-License-Identifier: MIT
#include "pdeviceitem.h"

namespace CorvelGui {

PDeviceItem::PDeviceItem(int type) : PTableWidgetItem(type) {}

PDeviceItem::PDeviceItem(const QString& text, int type) : PTableWidgetItem(text, type) {}

QVariant PDeviceItem::ToolTipRequested() const
{
    return CreateToolTip(tr("Device"));
}

} // namespace CorvelGui
