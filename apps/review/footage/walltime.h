#pragma once

#include <QDateTime>

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

    bool operator==(const WallTime&) const = default;
};

} // namespace Review
