// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"
#include "trackdescription.h"

#include <optional>
#include <vector>

namespace CorvelGui {

/// Time spans in order, with a gap between any two.
using TimeSpans = std::vector<TimeSpan>;

/// Sorts @p spans, joins what overlaps or touches, and drops what is empty.
CORVELGUI_INTERNAL_EXPORT TimeSpans joined(TimeSpans spans);

/// What @p spans cover and @p without does not.
CORVELGUI_INTERNAL_EXPORT TimeSpans difference(const TimeSpans& spans, const TimeSpans& without);

/// Adds what @p span covers. What follows in @p spans moves; nothing else is looked at.
CORVELGUI_INTERNAL_EXPORT void unite(TimeSpans& spans, const TimeSpan& span);

/// Takes away what @p span covers, at the same cost.
CORVELGUI_INTERNAL_EXPORT void subtract(TimeSpans& spans, const TimeSpan& span);

/// How far two instants lie apart.
constexpr quint64 distanceOf(qint64 a, qint64 b)
{
    return a < b ? quint64(b) - quint64(a) : quint64(a) - quint64(b);
}

/// The begin or end of one of @p spans that is the nearest to an instant.
CORVELGUI_INTERNAL_EXPORT std::optional<qint64> nearestEdge(const TimeSpans& spans, qint64 msecs);

} // namespace CorvelGui
