// SPDX-License-Identifier: MIT
#pragma once

#include "eventkind.h"

#include <CorvelGui/RulerMarker>

#include <QCoreApplication>

#include <array>

namespace Review {

/// How bad an event is.
using Severity = CorvelGui::RulerMarker::Severity;

/// What files call them, in their order.
constexpr std::array severityWords{"none", "information", "warning", "alarm"};
static_assert(severityWords.size() == CorvelGui::RulerMarker::severityCount);

/// What severities mean.
class Severities
{
    Q_DECLARE_TR_FUNCTIONS(Review::Severities)

public:
    /// How bad events of a kind are that do not say it themselves.
    static Severity ofKind(EventKind kind);
    /// What the user reads; nothing for none.
    static QString text(Severity severity);
};

} // namespace Review
