// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <chrono>

namespace Corvel {

/// What a request may take at most. The defaults suit small texts, such as a version file.
struct RequestLimits
{
    std::chrono::milliseconds deadline{30'000}; ///< for the whole request, with its redirects
    std::chrono::milliseconds silence{15'000};  ///< between two signs of life of the server
    qint64 size = 1024 * 1024;                  ///< of the body, in bytes

    bool operator==(const RequestLimits&) const = default;
};

} // namespace Corvel
