// SPDX-License-Identifier: MIT
#pragma once

#include "walltime.h"

#include <QByteArray>

namespace Review {

/// How much of the begin of a file exifTime() needs to see.
inline constexpr qint64 exifReach = 128 * 1024;

/// When a picture was taken, by the EXIF data of a JPEG file. @p jpeg is the begin of the file,
/// from anybody; none where it does not say.
std::optional<WallTime> exifTime(const QByteArray& jpeg);

} // namespace Review
