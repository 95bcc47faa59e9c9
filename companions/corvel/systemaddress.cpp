// SPDX-License-Identifier: MIT
#include "systemaddress.h"

#include <algorithm>
#include <tuple>

namespace Corvel {

QList<SystemAddress> systemAddresses()
{
    QList<SystemAddress> result;
    const QList<QNetworkInterface> interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface& networkInterface : interfaces) {
        const QList<QNetworkAddressEntry> entries = networkInterface.addressEntries();
        for (const QNetworkAddressEntry& entry : entries) {
            result.append({networkInterface.index(), networkInterface.flags(),
                           NetworkInterfaceData(entry.ip(), entry.broadcast().toString(),
                                                entry.netmask().toString(),
                                                networkInterface.humanReadableName())});
        }
    }
    return result;
}

QList<NetworkInterfaceData> reachableAddresses(QList<SystemAddress> all)
{
    all.removeIf([](const SystemAddress& address) {
        const QHostAddress& host = address.data.getHostAddress();
        return !address.flags.testFlag(QNetworkInterface::IsUp) ||
               address.flags.testFlag(QNetworkInterface::IsLoopBack) ||
               host.protocol() != QAbstractSocket::IPv4Protocol;
    });
    std::ranges::sort(all, {}, [](const SystemAddress& address) {
        return std::tuple(address.interfaceIndex, address.data.getHostAddress().toIPv4Address());
    });

    QList<NetworkInterfaceData> result;
    for (const SystemAddress& address : std::as_const(all))
        result.append(address.data);
    return result;
}

} // namespace Corvel
