// SPDX-License-Identifier: MIT
#pragma once

#include "ptablewidgetitem.h"

namespace CorvelGui {

/// A cell whose tooltip is its own text, for texts that are wider than their column. Cells are
/// sorted by text.
class CORVELGUI_EXPORT PTextWidgetItem : public PTableWidgetItem
{
public:
    explicit PTextWidgetItem(int type = Type);
    explicit PTextWidgetItem(const QString& text, int type = Type);

    bool operator<(const QTableWidgetItem& other) const override;

protected:
    /// The text as it stands; if it looks like markup, wrapped so that it is shown as it stands.
    QVariant ToolTipRequested() const override;
};

} // namespace CorvelGui
