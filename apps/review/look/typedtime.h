// SPDX-License-Identifier: MIT
#pragma once

#include "timetexts.h"

#include <optional>

namespace Review {

/// Reads what a user typed: a date and a time, or one of them, with the other one taken from
/// @p shown. Numbers need no leading zeros, seconds can be missing, and a date that begins with the
/// year is understood in every format. Empty for what is no date and time.
std::optional<QDateTime> readTypedTime(const QString& text, const TimeFormat& format,
                                       const QDateTime& shown);

} // namespace Review
