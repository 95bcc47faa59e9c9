// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QCoreApplication>
#include <QTableWidgetItem>

namespace CorvelGui {

/// A cell of a device table. Its tooltip is made when it is asked for; a tooltip that was stored
/// with setToolTip() is not shown.
class CORVELGUI_EXPORT PTableWidgetItem : public QTableWidgetItem
{
public:
    explicit PTableWidgetItem(int type = Type);
    explicit PTableWidgetItem(const QString& text, int type = Type);

    QVariant data(int role) const override;

    /// Shows @p text in the theme's status red. The colour is that of the look at the time of the
    /// call; call it again when the look changes.
    void SetRedText(const QString& text);
    /// Shows @p text in the text colour of the application's palette at the time of the call.
    void SetNormalText(const QString& text);

protected:
    /// The tooltip; an invalid value, as here, is none.
    virtual QVariant ToolTipRequested() const;

    /// A tooltip with one row: @p label and the text of the cell.
    QString CreateToolTip(const QString& label) const;

private:
    void setTextColor(const QColor& color);
};

} // namespace CorvelGui
