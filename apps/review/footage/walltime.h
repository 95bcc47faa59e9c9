// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QTimeZone>

#include <optional>

namespace Review {

/// What a camera's clock showed, and how far ahead of UTC it was, if it says so.
struct WallTime
{
    QDateTime clock = {};           ///< claims to be UTC
    std::optional<int> offset = {}; ///< seconds

    static WallTime utc(qint64 msecs)
    {
        return {QDateTime::fromMSecsSinceEpoch(msecs, Qt::UTC), 0};
    }

    /// Milliseconds since 1970. Where the offset is not known, the clock is one of @p zone.
    qint64 instantIn(const QTimeZone& zone) const
    {
        if (offset)
            return clock.toMSecsSinceEpoch() - *offset * qint64(1'000);
        return QDateTime(clock.date(), clock.time(), zone).toMSecsSinceEpoch();
    }

    bool operator==(const WallTime&) const = default;
};

} // namespace Review
