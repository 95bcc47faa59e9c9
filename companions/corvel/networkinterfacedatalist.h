// SPDX-License-Identifier: MIT
#pragma once

#include "networkinterfacedata.h"

#include <Corvel/corvel_export.h>

#include <QList>

namespace Corvel {

/// What a host's network interfaces were when it was asked.
class CORVEL_EXPORT NetworkInterfaceDataList
{
public:
    NetworkInterfaceDataList() = default;
    explicit NetworkInterfaceDataList(const QList<NetworkInterfaceData>& list);

    /// In the order in which they are shown.
    QList<NetworkInterfaceData> getList() const;

private:
    QList<NetworkInterfaceData> m_list;
};

} // namespace Corvel
