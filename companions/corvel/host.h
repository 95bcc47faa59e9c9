// SPDX-License-Identifier: MIT
#pragma once

#include "networkinterfacedatalist.h"

#include <Corvel/corvel_export.h>

namespace Corvel {

/// The machine on which the program runs.
class CORVEL_EXPORT Host
{
public:
    /// The IPv4 addresses of the interfaces that are up, one entry for each, without loopback. The
    /// order stays the same for as long as the interfaces do. Asks the system at every call.
    NetworkInterfaceDataList getNetworkInterfaceList() const;
};

} // namespace Corvel
