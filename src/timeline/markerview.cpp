// SPDX-License-Identifier: MIT
#include "markerview.h"

#include "timescale.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace CorvelGui {

namespace {

constexpr int farthestColumn = 1'000'000;
constexpr int halfMargin = int(TimeScale::halfMargin());

int smallest(const std::vector<int>& numbers)
{
    return numbers.empty() ? 0 : *std::min_element(numbers.begin(), numbers.end());
}

int largest(const std::vector<int>& numbers)
{
    return numbers.empty() ? 0 : *std::max_element(numbers.begin(), numbers.end());
}

MarkerView::Indices markersWithin(const MarkerStore& store, const std::optional<TimeSpan>& range)
{
    if (!range)
        return {0, store.size()};
    return {store.firstFrom(range->begin), store.firstAfter(range->end)};
}

} // namespace

MarkerView::MarkerView(const MarkerStore& store, const Geometry& geometry, Icons icons,
                       const std::optional<TimeSpan>& range)
    : m_store(store)
    , m_geometry(geometry)
    , m_icons(std::move(icons))
    , m_narrowest(smallest(m_icons.halfWidths))
    , m_widest(largest(m_icons.halfWidths))
    , m_inRange(markersWithin(store, range))
{}

MarkerView::Indices MarkerView::around() const
{
    const int width = int(m_geometry.width);
    return between(halfMargin - width, width + 2 * m_icons.width);
}

MarkerView::Indices MarkerView::shown() const
{
    return between(halfMargin, int(m_geometry.width) - halfMargin);
}

std::vector<MarkerRun> MarkerView::runs() const
{
    const Indices inView = shown();
    if (inView.first == inView.last)
        return {};
    const Indices grouped = withNeighbourhood(inView);
    std::vector<MarkerRun> result = mergeMarkers(*this, grouped.first, grouped.last);
    std::erase_if(result, [&inView](const MarkerRun& run) {
        return run.representative < inView.first || run.representative >= inView.last;
    });
    return result;
}

std::optional<std::size_t> MarkerView::nearest(int x, int farthest) const
{
    const Indices around = between(x - farthest, x + farthest);
    if (around.first == around.last)
        return {};
    const std::size_t right = firstRightOf(x - 1, around.first);
    if (right == around.first)
        return right;
    const int leftX = xOf(right - 1);
    if (right < around.last && xOf(right) - x < x - leftX)
        return right;
    return firstRightOf(leftX - 1, around.first);
}

MarkerPlace MarkerView::place(std::size_t marker) const
{
    if (m_narrowest == m_widest) // a marker's record is far from its time
        return {xOf(marker), m_narrowest};
    const auto [time, icon] = m_store.timeAndIcon(marker);
    return {column(time), m_icons.halfWidths[icon]};
}

std::size_t MarkerView::firstRightOf(int x, std::size_t from) const
{
    return std::max(m_store.firstFrom(firstTimeRightOf(x)), from);
}

std::size_t MarkerView::firstNarrowerThan(int halfWidth, std::size_t from, std::size_t end) const
{
    if (halfWidth <= m_narrowest)
        return end;
    MarkerStore::Icons narrow;
    for (std::size_t icon = 0; icon < m_icons.halfWidths.size(); ++icon) {
        if (m_icons.halfWidths[icon] < halfWidth)
            narrow.insert(quint32(icon));
    }
    const auto isNarrow = [&](std::size_t marker) {
        return m_icons.halfWidths[m_store.icon(marker)] < halfWidth;
    };
    std::size_t marker = m_store.firstWithIcon(narrow, from, end);
    while (marker < end && !isNarrow(marker))
        marker = m_store.firstWithIcon(narrow, marker + 1, end);
    return marker;
}

int MarkerView::column(qint64 msecs) const
{
    const double offset = double(msecs) - double(m_geometry.start) - m_geometry.startFraction;
    const double x = TimeScale::margin() + m_geometry.pixelsPerMillisecond * offset;
    // Far outside the view the exact column does not matter.
    return int(std::clamp<double>(x, -farthestColumn, farthestColumn));
}

qint64 MarkerView::firstTimeRightOf(int x) const
{
    if (!(m_geometry.pixelsPerMillisecond > 0) || std::isinf(m_geometry.pixelsPerMillisecond) ||
        x >= farthestColumn)
        return std::numeric_limits<qint64>::max();
    // Columns left of 0 begin behind their left edge: column() cuts off towards 0.
    const double edge = x < 0 ? x : x + 1.0;
    constexpr double farthest = 8e18;
    const double offset = (edge - TimeScale::margin()) / m_geometry.pixelsPerMillisecond;
    auto msecs = qint64(std::clamp(double(m_geometry.start) + offset, -farthest, farthest));
    // What is left are rounding errors.
    while (column(msecs - 1) > x)
        --msecs;
    while (column(msecs) <= x)
        ++msecs;
    return msecs;
}

MarkerView::Indices MarkerView::between(int left, int right) const
{
    const auto inRange = [this](std::size_t marker) {
        return std::clamp(marker, m_inRange.first, m_inRange.last);
    };
    return {inRange(firstRightOf(left - 1, 0)), inRange(firstRightOf(right, 0))};
}

MarkerView::Indices MarkerView::withNeighbourhood(const Indices& shown) const
{
    // Runs start at a marker that does not touch the one before it. Where the markers stand so
    // close that there is none within a view's width, they start there. To the right a run reaches
    // four half widths at most.
    const Indices neighbours = around();
    std::size_t first = shown.first;
    while (first > neighbours.first && xOf(first) - xOf(first - 1) <= m_icons.width)
        first = firstRightOf(xOf(first) - m_icons.width - 1, neighbours.first);
    return {first, std::max(neighbours.last, shown.last)};
}

} // namespace CorvelGui
