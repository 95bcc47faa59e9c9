// SPDX-License-Identifier: MIT
#pragma once

#include <Corvel/corvel_export.h>

#include <QHostAddress>
#include <QString>

namespace Corvel {

/// One IPv4 address of this machine, with the network interface that has it.
class CORVEL_EXPORT NetworkInterfaceData
{
public:
    NetworkInterfaceData() = default;
    NetworkInterfaceData(const QHostAddress& hostAddress, const QString& broadcast,
                         const QString& netmask, const QString& readableName);

    const QHostAddress& getHostAddress() const { return m_hostAddress; }
    /// Empty where the network has none, as with a tunnel.
    const QString& getBroadcast() const { return m_broadcast; }
    const QString& getNetmask() const { return m_netmask; }
    /// The name by which the system's user knows the interface, such as "Ethernet 2" or "eth0".
    const QString& getReadableName() const { return m_readableName; }

private:
    QHostAddress m_hostAddress;
    QString m_broadcast;
    QString m_netmask;
    QString m_readableName;
};

} // namespace Corvel
