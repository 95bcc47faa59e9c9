// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <algorithm>
#include <limits>

namespace CorvelGui {

/// Two values within limits, the lower one at least a distance below the upper one.
struct RangeValues
{
    int minimum = 0;
    int maximum = 100;
    int lower = 0;
    int upper = 100;
    int distance = 0; ///< not more than there is between the limits

    /// As far as the other value and the limits allow.
    void moveLower(qint64 to) { lower = bounded(to, minimum, qint64(upper) - distance); }
    void moveUpper(qint64 to) { upper = bounded(to, qint64(lower) + distance, maximum); }
    /// Both, without changing what is between them.
    void moveBoth(qint64 by)
    {
        const qint64 moved = std::clamp(by, qint64(minimum) - lower, qint64(maximum) - upper);
        lower = int(lower + moved);
        upper = int(upper + moved);
    }

    /// In either order. What is too near together is moved apart, the upper one first.
    void set(int one, int other)
    {
        const auto [low, high] = std::minmax(one, other);
        lower = bounded(low, minimum, qint64(maximum) - distance);
        upper = bounded(high, qint64(lower) + distance, maximum);
    }

    /// A maximum below the minimum counts as the minimum, a negative distance as none.
    void setLimits(int least, int most, qint64 between)
    {
        minimum = least;
        maximum = std::max(least, most);
        const qint64 room = qint64(maximum) - minimum;
        distance = bounded(between, 0, std::min<qint64>(room, std::numeric_limits<int>::max()));
        set(lower, upper);
    }

    bool operator==(const RangeValues&) const = default;

private:
    static int bounded(qint64 value, qint64 least, qint64 most)
    {
        return int(std::clamp(value, least, most));
    }
};

} // namespace CorvelGui
