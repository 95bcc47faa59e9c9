// SPDX-License-Identifier: MIT
#pragma once

#include <Corvel/corvel_export.h>

#include <QString>

namespace Corvel {

/// Conversions of IPv4 subnet masks.
class CORVEL_EXPORT SubNetMask
{
public:
    SubNetMask() = delete;

    /// The mask in dotted decimal form, such as "255.255.255.0" for 24. Empty above 32.
    static QString fromPrefixLength(unsigned char prefixLength);
};

} // namespace Corvel
