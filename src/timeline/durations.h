// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// Lengths of time in milliseconds. A day is one without a clock change.
namespace CorvelGui {

inline constexpr qint64 second = 1000;
inline constexpr qint64 minute = 60 * second;
inline constexpr qint64 hour = 60 * minute;
inline constexpr qint64 day = 24 * hour;

} // namespace CorvelGui
