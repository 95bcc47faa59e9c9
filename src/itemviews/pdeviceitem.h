// SPDX-License-Identifier: MIT
#pragma once

#include "ptablewidgetitem.h"

namespace CorvelGui {

/// A cell with the name or kind of a device.
class CORVELGUI_EXPORT PDeviceItem : public PTableWidgetItem
{
    Q_DECLARE_TR_FUNCTIONS(CorvelGui::PDeviceItem)

public:
    explicit PDeviceItem(int type = Type);
    explicit PDeviceItem(const QString& text, int type = Type);

protected:
    QVariant ToolTipRequested() const override;
};

} // namespace CorvelGui
