// SPDX-License-Identifier: MIT
#include "ptablewidgetitem.h"

#include <CorvelGui/ToolTipHelper>
#include <Hueloft/POrvGuiTheme>

#include <QApplication>
#include <QPalette>

using Hueloft::POrvGuiTheme;

namespace CorvelGui {

PTableWidgetItem::PTableWidgetItem(int type) : QTableWidgetItem(type) {}

PTableWidgetItem::PTableWidgetItem(const QString& text, int type) : QTableWidgetItem(text, type) {}

QVariant PTableWidgetItem::data(int role) const
{
    return role == Qt::ToolTipRole ? ToolTipRequested() : QTableWidgetItem::data(role);
}

void PTableWidgetItem::SetRedText(const QString& text)
{
    setTextColor(POrvGuiTheme::statusRed());
    setText(text);
}

void PTableWidgetItem::SetNormalText(const QString& text)
{
    setTextColor(QApplication::palette().color(QPalette::Text));
    setText(text);
}

QVariant PTableWidgetItem::ToolTipRequested() const
{
    return {};
}

QString PTableWidgetItem::CreateToolTip(const QString& label) const
{
    ToolTipHelper toolTip;
    toolTip.AddRow(label, text());
    return toolTip.GetToolTip();
}

void PTableWidgetItem::setTextColor(const QColor& color)
{
    QBrush brush = foreground();
    // A fresh cell has no brush: it would take the colour and draw nothing with it.
    if (brush.style() == Qt::NoBrush)
        brush.setStyle(Qt::SolidPattern);
    brush.setColor(color);
    setForeground(brush);
}

} // namespace CorvelGui
