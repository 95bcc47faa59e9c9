// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/RulerMarker>

#include <array>
#include <vector>

namespace CorvelGui {

/// What is known of a period and how much happened in it, in columns of equal duration.
struct TimelineActivity
{
    /// The most that is known of some instant of a column.
    enum class Recording : quint8 { Unknown, Gap, Recorded };

    /// What is known of one of these parts of the period.
    struct Column
    {
        Recording recording = Recording::Unknown;
        /// How many events begin in the column, by their RulerMarker::Severity.
        std::array<quint32, RulerMarker::severityCount> events = {};

        bool operator==(const Column&) const = default;
    };

    std::vector<Column> columns = {};
};

} // namespace CorvelGui
