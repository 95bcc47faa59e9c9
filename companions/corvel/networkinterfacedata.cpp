// SPDX-License-Identifier: MIT
#include "networkinterfacedata.h"

namespace Corvel {

NetworkInterfaceData::NetworkInterfaceData(const QHostAddress& hostAddress,
                                           const QString& broadcast, const QString& netmask,
                                           const QString& readableName)
    : m_hostAddress(hostAddress)
    , m_broadcast(broadcast)
    , m_netmask(netmask)
    , m_readableName(readableName)
{}

} // namespace Corvel
