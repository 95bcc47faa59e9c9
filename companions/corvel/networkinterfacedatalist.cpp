// SPDX-License-Identifier: MIT
#include "networkinterfacedatalist.h"

namespace Corvel {

NetworkInterfaceDataList::NetworkInterfaceDataList(const QList<NetworkInterfaceData>& list)
    : m_list(list)
{}

QList<NetworkInterfaceData> NetworkInterfaceDataList::getList() const
{
    return m_list;
}

} // namespace Corvel
