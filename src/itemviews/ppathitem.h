// SPDX-License-Identifier: MIT
#pragma once

#include "ptablewidgetitem.h"

namespace CorvelGui {

/// A cell with the path of the groups that a device belongs to.
class CORVELGUI_EXPORT PPathItem : public PTableWidgetItem
{
    Q_DECLARE_TR_FUNCTIONS(CorvelGui::PPathItem)

public:
    explicit PPathItem(int type = Type);
    explicit PPathItem(const QString& text, int type = Type);

protected:
    QVariant ToolTipRequested() const override;
};

} // namespace CorvelGui
