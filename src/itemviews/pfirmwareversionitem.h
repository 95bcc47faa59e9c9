// SPDX-License-Identifier: MIT
#pragma once

#include "ptablewidgetitem.h"

namespace CorvelGui {

/// A cell with the version of a device's software.
class CORVELGUI_EXPORT PFirmwareVersionItem : public PTableWidgetItem
{
    Q_DECLARE_TR_FUNCTIONS(CorvelGui::PFirmwareVersionItem)

public:
    explicit PFirmwareVersionItem(int type = Type);
    explicit PFirmwareVersionItem(const QString& text, int type = Type);

protected:
    QVariant ToolTipRequested() const override;
};

} // namespace CorvelGui
