#pragma once

#include "base/internalexport.h"

#include <cstddef>
#include <span>
#include <vector>

namespace CorvelGui {

/// Where a marker stands, and how far its picture reaches to each side, in pixels.
struct MarkerPlace
{
    int x;
    int halfWidth;

    bool overlaps(const MarkerPlace& other) const
    {
        return x + halfWidth >= other.x - other.halfWidth &&
               x - halfWidth <= other.x + other.halfWidth;
    }
};

/// Consecutive markers that are shown as one.
struct MarkerRun
{
    std::size_t first;
    std::size_t last; ///< belongs to the run
    std::size_t representative;

    bool isMerged() const { return first != last; }
    bool operator==(const MarkerRun&) const = default;
};

/// Groups markers, given from left to right. A run grows marker by marker for as long as its middle
/// marker overlaps both its first one and the next; that middle marker then stands for all of them.
CORVELGUI_INTERNAL_EXPORT std::vector<MarkerRun> mergeMarkers(std::span<const MarkerPlace> places);

/// How far the picture of a button of @p width pixels reaches to each side of its centre when @p
/// visibleFraction of the picture's width is not transparent.
CORVELGUI_INTERNAL_EXPORT int visibleHalfWidth(int width, double visibleFraction);

} // namespace CorvelGui
