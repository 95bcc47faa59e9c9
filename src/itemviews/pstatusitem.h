// SPDX-License-Identifier: MIT
#pragma once

#include "ptablewidgetitem.h"

#include <QStringList>

namespace CorvelGui {

/// A cell that collects status lines of a device. It shows the latest of them; its tooltip lists
/// all, numbered from 1.
class CORVELGUI_EXPORT PStatusItem : public PTableWidgetItem
{
    Q_DECLARE_TR_FUNCTIONS(CorvelGui::PStatusItem)

public:
    explicit PStatusItem(int type = Type);
    /// Shows @p text, which is not a status line.
    explicit PStatusItem(const QString& text, int type = Type);

    /// "3 days System uptime"
    void AddStatusSystemUpTime(const QString& upTime);
    /// "3 days Application uptime"
    void AddApplicationSystemUpTime(const QString& upTime);
    /// "End of Software Maintenance 2027-01-31 (14 Month(s))"; without the months if @p months is
    /// empty or the number 0.
    void AddMaintenanceInfo(const QString& date, const QString& months);
    /// Shows @p text in the theme's status red; the other lines have the normal colour.
    void AddRedStatus(const QString& text);

protected:
    QVariant ToolTipRequested() const override;

private:
    void addNormalStatus(const QString& line);

    QStringList m_lines;
};

} // namespace CorvelGui
