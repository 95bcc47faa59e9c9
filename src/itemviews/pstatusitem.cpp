// SPDX-License-Identifier: MIT
#include "pstatusitem.h"

#include <CorvelGui/ToolTipHelper>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

bool isZero(const QString& text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber && number == 0;
}

} // namespace

PStatusItem::PStatusItem(int type) : PTableWidgetItem(type) {}

PStatusItem::PStatusItem(const QString& text, int type) : PTableWidgetItem(text, type) {}

// Deliberately different: the uptimes have their label behind the value, the maintenance before.
void PStatusItem::AddStatusSystemUpTime(const QString& upTime)
{
    addNormalStatus(upTime + u' ' + tr("System uptime"));
}

void PStatusItem::AddApplicationSystemUpTime(const QString& upTime)
{
    addNormalStatus(upTime + u' ' + tr("Application uptime"));
}

void PStatusItem::AddMaintenanceInfo(const QString& date, const QString& months)
{
    QString line = tr("End of Software Maintenance") + u' ' + date;
    if (!months.isEmpty() && !isZero(months))
        line += u' ' + tr("(%1 Month(s))").arg(months);
    addNormalStatus(line);
}

void PStatusItem::AddRedStatus(const QString& text)
{
    m_lines.append(text);
    SetRedText(text);
}

QVariant PStatusItem::ToolTipRequested() const
{
    if (m_lines.isEmpty())
        return {};
    ToolTipHelper toolTip;
    int number = 0;
    for (const QString& line : m_lines)
        toolTip.AddRow(QString::number(++number), line);
    return toolTip.GetToolTip();
}

void PStatusItem::addNormalStatus(const QString& line)
{
    m_lines.append(line);
    SetNormalText(line);
}

} // namespace CorvelGui
