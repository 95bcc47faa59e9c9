// SPDX-License-Identifier: MIT
#include "host.h"

#include "systemaddress.h"

namespace Corvel {

NetworkInterfaceDataList Host::getNetworkInterfaceList() const
{
    return NetworkInterfaceDataList(reachableAddresses(systemAddresses()));
}

} // namespace Corvel
