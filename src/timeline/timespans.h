#pragma once

#include "base/internalexport.h"
#include "trackdescription.h"

#include <vector>

namespace CorvelGui {

/// Time spans in order, with a gap between any two.
using TimeSpans = std::vector<TimeSpan>;

/// Sorts @p spans, joins what overlaps or touches, and drops what is empty.
CORVELGUI_INTERNAL_EXPORT TimeSpans joined(TimeSpans spans);

/// What @p spans cover and @p without does not.
CORVELGUI_INTERNAL_EXPORT TimeSpans difference(const TimeSpans& spans, const TimeSpans& without);

} // namespace CorvelGui
