#pragma once

#include <CorvelGui/RulerMarker>

#include <array>

namespace Review {

/// How bad an event is.
using Severity = CorvelGui::RulerMarker::Severity;

/// What files call them, in their order.
constexpr std::array severityWords{"none", "information", "warning", "alarm"};
static_assert(severityWords.size() == CorvelGui::RulerMarker::severityCount);

} // namespace Review
