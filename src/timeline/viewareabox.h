// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>

namespace CorvelGui {

/// The box on the overview strip that stands for the view, in whole pixels, and the positions that
/// moves of the box mean. Pixel 0 and the last pixel of the strip are its border.
class ViewAreaBox
{
public:
    /// @p stripWidth in pixels; @p viewArea and @p position (of the centre) as fractions of the
    /// period. Any value is allowed.
    ViewAreaBox(int stripWidth, double viewArea, double position)
        : m_last(stripWidth - 1)
        , m_width(std::max(pixels((m_last - 1) * viewArea), minimumWidth))
        , m_center(kept(pixels((m_last - 1) * position + 1.0)))
    {}

    int width() const { return m_width; }
    int center() const { return m_center; }
    /// The first pixel of the box.
    int left() const { return std::max(m_center - half(), 1); }
    /// The first pixel behind the box; a press there still counts as one on the box.
    int right() const { return std::min(m_center + (m_width + 1) / 2, m_last); }
    bool contains(int x) const { return left() <= x && x <= right(); }

    /// The position when the box is dragged to have its centre at @p center.
    double draggedTo(int center) const { return m_last > 0 ? double(kept(center)) / m_last : 0.0; }
    /// The position when the box jumps by @p step pixels. Dividing by one pixel more than in a drag
    /// is intended.
    double pagedBy(int step) const
    {
        return m_last >= 0 ? double(kept(m_center + step)) / (m_last + 1) : 0.0;
    }

    /// Truncates, and keeps what is no number or far outside every screen computable.
    static int pixels(double value)
    {
        constexpr double limit = 1 << 28;
        return std::isnan(value) ? 0 : int(std::clamp(value, -limit, limit));
    }

private:
    static constexpr int minimumWidth = 5;

    int half() const { return m_width / 2; }
    int kept(int center) const { return std::min(std::max(center, half()), m_last - half() + 1); }

    int m_last;
    int m_width;
    int m_center;
};

} // namespace CorvelGui
