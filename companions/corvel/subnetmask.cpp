// SPDX-License-Identifier: MIT
#include "subnetmask.h"

#include <QHostAddress>

namespace Corvel {

QString SubNetMask::fromPrefixLength(unsigned char prefixLength)
{
    constexpr int addressBits = 32;
    if (prefixLength > addressBits)
        return {};
    // In 64 bits, because a shift by all the bits of a number is undefined.
    const quint64 mask = ~quint64(0) << (addressBits - prefixLength);
    return QHostAddress(quint32(mask)).toString();
}

} // namespace Corvel
