// SPDX-License-Identifier: MIT
#pragma once

#include "ptablewidgetitem.h"

namespace CorvelGui {

/// A cell with an IPv4 address, sorted by its number: 10.0.0.2 stands before 10.0.0.10. What is no
/// IPv4 address counts as 0 and stands first.
///
/// The number is stored by the constructor and by setIp(); setText() leaves it as it was.
class CORVELGUI_EXPORT PIpItem : public PTableWidgetItem
{
    Q_DECLARE_TR_FUNCTIONS(CorvelGui::PIpItem)

public:
    explicit PIpItem(int type = Type);
    /// As setIp().
    explicit PIpItem(const QString& text, int type = Type);

    /// Shows @p ip, whatever it is, and stores its number.
    void setIp(const QString& ip);
    /// The stored number; 0 at first.
    quint32 getIp() const;

    /// The path of an icon, kept for the caller: the cell does not load it.
    void setIconResource(const QString& path);
    QString getIconResource() const;

    bool operator<(const QTableWidgetItem& other) const override;

protected:
    QVariant ToolTipRequested() const override;

private:
    quint32 m_ip = 0;
    QString m_iconResource;
};

} // namespace CorvelGui
