// SPDX-License-Identifier: MIT
#include "deviceaddress.h"

#include <QHostAddress>
#include <QStringList>

namespace Review {

std::optional<quint32> DeviceAddress::parse(const QString& text)
{
    const QStringList parts = text.split(u'.');
    if (parts.size() != 4)
        return {};
    quint32 address = 0;
    for (const QString& part : parts) {
        bool isNumber = false;
        const uint value = part.toUInt(&isNumber);
        // Signs and blanks would pass as parts of a number.
        if (!isNumber || value > 255 || !part.front().isDigit() || !part.back().isDigit())
            return {};
        address = address << 8 | value;
    }
    return address;
}

QString DeviceAddress::text(quint32 address)
{
    return QHostAddress(address).toString();
}

qint64 DeviceAddress::roomIn(int prefix)
{
    return (qint64(1) << (32 - prefix)) - 2;
}

QList<quint32> DeviceAddress::network(quint32 address, int prefix)
{
    const quint32 own = address & ~quint32(0) << (32 - prefix);
    QList<quint32> addresses;
    for (qint64 i = 1; i <= roomIn(prefix); ++i)
        addresses.append(own + quint32(i));
    return addresses;
}

} // namespace Review
