// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <cstddef>
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

/// Markers from left to right. There may be millions of them, on few pixel columns: the grouping
/// asks for what it needs and never walks over them.
class CORVELGUI_INTERNAL_EXPORT MarkerRow
{
public:
    virtual ~MarkerRow();

    virtual MarkerPlace place(std::size_t marker) const = 0;
    /// The first marker, not before @p from, that stands right of a pixel column; the number of
    /// markers if there is none.
    virtual std::size_t firstRightOf(int x, std::size_t from) const = 0;
    /// The first marker from @p from up to but not including @p end that reaches less far to each
    /// side than @p halfWidth; @p end if there is none.
    virtual std::size_t firstNarrowerThan(int halfWidth, std::size_t from,
                                          std::size_t end) const = 0;
    /// No marker reaches less far than this.
    virtual int narrowest() const = 0;
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

/// Groups the markers from @p first up to but not including @p last. A run grows marker by marker
/// for as long as its middle marker overlaps both its first one and the next; that middle marker
/// then stands for all of them.
///
/// The cost follows the pixel columns that the markers take, not their number.
CORVELGUI_INTERNAL_EXPORT std::vector<MarkerRun> mergeMarkers(const MarkerRow& row,
                                                              std::size_t first, std::size_t last);

/// How far the picture of a button of @p width pixels reaches to each side of its centre when @p
/// visibleFraction of the picture's width is not transparent.
CORVELGUI_INTERNAL_EXPORT int visibleHalfWidth(int width, double visibleFraction);

} // namespace CorvelGui
