// SPDX-License-Identifier: MIT
#pragma once

#include "ptablewidgetitem.h"

namespace CorvelGui {

/// A cell with the serial number of a device.
class CORVELGUI_EXPORT PSerialNumberItem : public PTableWidgetItem
{
    Q_DECLARE_TR_FUNCTIONS(CorvelGui::PSerialNumberItem)

public:
    explicit PSerialNumberItem(int type = Type);
    explicit PSerialNumberItem(const QString& text, int type = Type);

protected:
    QVariant ToolTipRequested() const override;
};

} // namespace CorvelGui
