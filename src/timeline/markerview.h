// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"
#include "markermerge.h"
#include "markerstore.h"
#include "timespans.h"

#include <optional>
#include <vector>

namespace CorvelGui {

/// The markers of a store as they stand on the pixel columns of a view. Cheap to make; the store
/// must not change meanwhile.
///
/// Whatever is asked costs searches for pixel columns, however many markers share them.
class CORVELGUI_INTERNAL_EXPORT MarkerView final : public MarkerRow
{
public:
    struct Geometry
    {
        qint64 start = 0; ///< instant at the left margin, in milliseconds since the epoch
        double pixelsPerMillisecond = 0.0;
        double width = 0.0;         ///< of the ruler
        double startFraction = 0.0; ///< of a millisecond, that the start is later

        bool operator==(const Geometry&) const = default;
    };
    struct Icons
    {
        int width;
        std::vector<int> halfWidths; ///< what is visible of each icon of the store
    };
    /// Markers from first up to but not including last.
    struct Indices
    {
        std::size_t first;
        std::size_t last;

        std::size_t count() const { return last - first; }
    };

    /// Only the markers within @p range count, if there is one.
    MarkerView(const MarkerStore& store, const Geometry& geometry, Icons icons,
               const std::optional<TimeSpan>& range);

    int xOf(std::size_t marker) const { return column(m_store.time(marker)); }
    /// Those that the grouping may depend on.
    Indices around() const;
    /// Those in view.
    Indices shown() const;
    /// The groups of markers whose representative is in view.
    std::vector<MarkerRun> runs() const;
    /// The first of those markers that are nearest to a column, at most @p farthest columns away.
    std::optional<std::size_t> nearest(int x, int farthest) const;

    MarkerPlace place(std::size_t marker) const override;
    std::size_t firstRightOf(int x, std::size_t from) const override;
    std::size_t firstNarrowerThan(int halfWidth, std::size_t from, std::size_t end) const override;
    int narrowest() const override { return m_narrowest; }

private:
    int column(qint64 msecs) const;
    qint64 firstTimeRightOf(int x) const;
    Indices between(int left, int right) const;
    Indices withNeighbourhood(const Indices& shown) const;

    const MarkerStore& m_store;
    const Geometry m_geometry;
    const Icons m_icons;
    const int m_narrowest;
    const int m_widest;
    const Indices m_inRange;
};

} // namespace CorvelGui
