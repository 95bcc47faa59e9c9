// SPDX-License-Identifier: MIT
#pragma once

#include "timespans.h"

#include <optional>
#include <vector>

namespace CorvelGui {

/// The ranges and lines of a ruler that are on display.
struct RulerRanges
{
    std::optional<TimeSpan> search = {};
    std::optional<TimeSpan> selected = {};
    std::vector<qint64> resultMarks = {};
    std::optional<qint64> preview = {};

    bool operator==(const RulerRanges&) const = default;
};

} // namespace CorvelGui
