// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>

namespace CorvelGui {

/// Lanes of equal height below each other, of which an area shows those from an offset on.
struct LaneLayout
{
    int count;
    int laneHeight; ///< in pixels, at least 1
    int height;     ///< of the area
    int offset;     ///< of its upper edge from that of the first lane

    int maximumOffset() const { return std::max(count * laneHeight - height, 0); }
    int top(int lane) const { return lane * laneHeight - offset; }
    /// The lane at @p y of the area; -1 where there is none.
    int laneAt(int y) const
    {
        const int lane = y + offset < 0 ? -1 : (y + offset) / laneHeight;
        return lane < count ? lane : -1;
    }
    /// The lanes of which something is seen: from first() up to but not including end().
    int first() const { return std::clamp(offset / laneHeight, 0, count); }
    int end() const
    {
        return std::clamp((offset + height + laneHeight - 1) / laneHeight, first(), count);
    }
    /// The offset nearest to the current one that shows the whole lane.
    int offsetShowing(int lane) const
    {
        const int least = (lane + 1) * laneHeight - height;
        return std::clamp(std::clamp(offset, std::min(least, lane * laneHeight), lane * laneHeight),
                          0, maximumOffset());
    }
};

} // namespace CorvelGui
