// SPDX-License-Identifier: MIT
#pragma once

#include "internalexport.h"
#include "networkinterfacedata.h"

#include <QList>
#include <QNetworkInterface>

namespace Corvel {

/// An address as the system lists it, of any kind.
struct SystemAddress
{
    int interfaceIndex = 0;
    QNetworkInterface::InterfaceFlags flags;
    NetworkInterfaceData data;
};

/// All addresses of this machine.
QList<SystemAddress> systemAddresses();

/// Those at which other machines reach this one: IPv4, of interfaces that are up and no loopback.
/// They stand in the order of the interfaces' indexes, those of one interface by value, so that
/// the order stays whatever the system lists first.
CORVEL_INTERNAL_EXPORT QList<NetworkInterfaceData> reachableAddresses(QList<SystemAddress> all);

} // namespace Corvel
