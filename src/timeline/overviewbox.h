// SPDX-License-Identifier: MIT
#pragma once

#include "timescale.h"

#include <algorithm>
#include <cmath>

namespace CorvelGui {

/// From and to relative positions in the period.
struct OverviewRange
{
    double begin;
    double end;

    double length() const { return end - begin; }
    bool operator==(const OverviewRange&) const = default;
};

/// Where relative positions stand on a strip that lies under a ruler of the same width: in the
/// columns of that ruler while it shows the whole period.
class OverviewScale
{
public:
    explicit OverviewScale(int width) : m_width(width) {}

    double left() const { return TimeScale::margin(); }
    double length() const { return std::max(m_width - 2 * TimeScale::margin(), 1.0); }
    double xAt(double position) const { return left() + length() * position; }
    double positionAt(double x) const { return (x - left()) / length(); }
    int width() const { return m_width; }

private:
    int m_width;
};

/// The box that stands for the view, on such a scale. It is what the strip can show of the view,
/// and no narrower than a hand can hold.
class OverviewBox
{
public:
    enum class Part { Outside, Begin, Inside, End };

    OverviewBox(const OverviewScale& scale, const OverviewRange& view)
    {
        const double most = scale.width() - 1.0;
        const double x1 = std::clamp(kept(scale.xAt(view.begin)), 1.0, std::max(most, 1.0));
        const double x2 = std::clamp(kept(scale.xAt(view.end)), 1.0, std::max(most, 1.0));
        const double missing = std::max(minimumWidth - (x2 - x1), 0.0);
        m_left = std::clamp(x1 - missing / 2, 1.0, std::max(most - minimumWidth, 1.0));
        m_right = std::max(x2, m_left + minimumWidth);
    }

    double left() const { return m_left; }
    double right() const { return m_right; }

    /// The edges reach a little way outside, and inside only where that leaves room to hold the box
    /// itself.
    Part partAt(double x) const
    {
        const double inside = std::min(edgeReach, (m_right - m_left) / 4);
        if (x < m_left - edgeReach || x > m_right + edgeReach)
            return Part::Outside;
        if (x <= m_left + inside)
            return Part::Begin;
        return x >= m_right - inside ? Part::End : Part::Inside;
    }

private:
    static constexpr double minimumWidth = 5.0;
    static constexpr double edgeReach = 4.0;

    static double kept(double x) { return std::isnan(x) ? 0.0 : x; }

    double m_left;
    double m_right;
};

/// One edge of the view that is moved, while the other one stays. The view does not reach beyond
/// the period, unless it did before, and does not become shorter than @p shortest.
inline OverviewRange withEdgeAt(const OverviewRange& view, OverviewBox::Part edge, double position,
                                double shortest)
{
    if (edge == OverviewBox::Part::Begin)
        return {std::min(std::max(position, std::min(view.begin, 0.0)), view.end - shortest),
                view.end};
    return {view.begin,
            std::max(std::min(position, std::max(view.end, 1.0)), view.begin + shortest)};
}

} // namespace CorvelGui
