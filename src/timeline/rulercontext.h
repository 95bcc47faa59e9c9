// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/RulerMarker>

#include <QFlags>
#include <QList>
#include <QPoint>
#include <QString>

#include <optional>

namespace CorvelGui {

/// What is at a place of a timeline, for context menus and tooltips.
struct RulerContext
{
    enum Range { SearchRange = 0x1, ResultRange = 0x2, SelectedRange = 0x4 };
    Q_DECLARE_FLAGS(Ranges, Range)

    /// Where the place is on the screen.
    QPoint globalPosition = {};
    /// In milliseconds since the Unix epoch, within the limits; nothing beside the scale.
    std::optional<qint64> time = {};
    /// Identifier of the track whose lane is there; empty elsewhere.
    QString track = {};
    /// Those that the symbol there stands for, 100 at most, and how many it stands for.
    QList<RulerMarker> markers = {};
    qsizetype markerCount = 0;
    /// The ranges that are shown there. The begin of a range belongs to it, its end does not.
    Ranges ranges = {};
};

Q_DECLARE_OPERATORS_FOR_FLAGS(RulerContext::Ranges)

} // namespace CorvelGui
