// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace Review {

/// IPv4 addresses of devices, as numbers that sort.
class DeviceAddress
{
public:
    DeviceAddress() = delete;

    /// Four decimal numbers from 0 to 255 with dots between them, and nothing else.
    static std::optional<quint32> parse(const QString& text);
    static QString text(quint32 address);

    /// How many devices a network has room for. Its first address is its own, its last one speaks
    /// to all. @p prefix is from 1 to 30.
    static qint64 roomIn(int prefix);
    /// The addresses of these devices, in order. @p address is any of the network.
    static QList<quint32> network(quint32 address, int prefix);
};

} // namespace Review
