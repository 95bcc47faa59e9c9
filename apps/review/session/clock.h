// SPDX-License-Identifier: MIT
#pragma once

#include "look/timetexts.h"

#include <QObject>

namespace Review {

/// The clock on which the whole window shows times: its zone, and how it writes. Who shows times
/// follows changed().
class Clock : public QObject
{
    Q_OBJECT

public:
    /// @p zoneName is an IANA or Windows name. An empty one means the zone of this machine.
    explicit Clock(const QString& zoneName, QObject* parent = nullptr);

    const TimeTexts& times() const { return m_times; }
    /// As it was set.
    const QString& zoneName() const { return m_zoneName; }

    void set(const QString& zoneName, const TimeFormat& format);
    void setZone(const QString& zoneName) { set(zoneName, m_times.format()); }

Q_SIGNALS:
    /// Emitted when zone or format are others.
    void changed();

private:
    QString m_zoneName;
    TimeTexts m_times;
};

} // namespace Review
