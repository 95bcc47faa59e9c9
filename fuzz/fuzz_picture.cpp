// SPDX-License-Identifier: MIT
// Pictures of strangers: what is read keeps within the limits, and the rest is refused with words.

#include "fuzzing.h"

#include <CorvelGui/ImageHelper>

using CorvelGui::ImageHelper;
using Fuzzing::require;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    // A copy of its own, so that the sanitizer sees what is read beyond it.
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    const ImageHelper::Limits limits{.pixels = 1'000'000, .size = {64, 48}};
    const ImageHelper::Picture picture = ImageHelper::read(bytes, limits);
    require(picture.image.isNull() != picture.error.isEmpty(), "either a picture or a reason");
    if (picture.image.isNull())
        return 0;
    require(picture.image.width() <= 64 && picture.image.height() <= 48, "it was reduced");
    require(qint64(picture.fullSize.width()) * picture.fullSize.height() <= limits.pixels,
            "a large one is refused");
    require(picture.image.width() <= picture.fullSize.width() &&
                picture.image.height() <= picture.fullSize.height(),
            "nothing is enlarged");
    require(!ImageHelper::rounded(picture.image).isNull(), "it can be worked on");
    return 0;
}
