// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QToolBar>

namespace CorvelGui {

/// Tool bar that can carry bold, coloured captions at its far end.
class CORVELGUI_EXPORT ToolBarWithLabel : public QToolBar
{
    Q_OBJECT

public:
    ToolBarWithLabel(const QString& title, QWidget* parent);

    /// Appends an expanding spacer and then a label with @p text in @p color. The text is rich
    /// text: escape what does not come from the program itself. Labels of earlier calls stay.
    void addLabel(const QString& text, const QColor& color);
};

} // namespace CorvelGui
