// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace Fuzzing {

/// Ends the program, with the finding as libFuzzer reports it, unless @p holds.
inline void require(bool holds, const char* property)
{
    if (holds)
        return;
    std::fprintf(stderr, "This does not hold: %s\n", property);
    std::abort();
}

/// Bytes as a text. UTF-16 has more broken texts than UTF-8, and UTF-8 is found sooner.
inline QString toText(const uint8_t* data, size_t size, bool utf16)
{
    if (!utf16)
        return QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size));
    QString text;
    for (size_t index = 0; index + 1 < size; index += 2)
        text += QChar(char16_t(data[index] | data[index + 1] << 8));
    return text;
}

} // namespace Fuzzing
