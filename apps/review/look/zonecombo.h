// SPDX-License-Identifier: MIT
#pragma once

#include "translated.h"

#include <QComboBox>

namespace Review {

/// Offers all time zones for choice and for search.
class ZoneCombo : public Translated<QComboBox>
{
    Q_OBJECT

public:
    /// @p zoneName is an IANA or Windows name; an empty one stands for the zone of this machine.
    explicit ZoneCombo(const QString& zoneName, QWidget* parent = nullptr);

    /// Named as for the constructor.
    QString zone() const { return m_zone; }
    /// Emits nothing.
    void setZone(const QString& zoneName);

Q_SIGNALS:
    /// Emitted when the user chose another zone; named as for the constructor.
    void zoneChanged(const QString& name);
    /// Emitted when the user entered what is no zone. The zone stays.
    void zoneRefused(const QString& text);

protected:
    void retranslate() final;

private:
    void takeEntry();
    void showZone();

    QString m_zone;
};

} // namespace Review
