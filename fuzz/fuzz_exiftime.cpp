// SPDX-License-Identifier: MIT
// When a JPEG file from anybody says that it was taken.

#include "fuzzing.h"

#include "footage/exiftime.h"

using Fuzzing::require;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    // A copy of its own, so that the sanitizer sees what is read beyond it.
    const QByteArray jpeg(reinterpret_cast<const char*>(data), qsizetype(size));
    if (const auto time = Review::exifTime(jpeg))
        require(time->clock.isValid() && qAbs(time->offset.value_or(0)) <= 24 * 60 * 60,
                "a time is one");
    return 0;
}
