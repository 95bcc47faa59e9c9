// SPDX-License-Identifier: MIT
#pragma once

#include "walltime.h"

#include <QString>

namespace Review {

/// The time that a path tells in one of the common ways of recorders and cameras: date and time,
/// together or over several folders, or seconds or milliseconds since 1970. What is nearest to the
/// file counts. None where the path says nothing. @p path has slashes.
std::optional<WallTime> timeInPath(QStringView path);

} // namespace Review
