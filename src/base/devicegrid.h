// SPDX-License-Identifier: MIT
#pragma once

#include <QPaintDevice>
#include <QPainter>
#include <QRectF>

#include <algorithm>
#include <cmath>

namespace CorvelGui {

/// Keeps edges on whole device pixels, so that bands and lines stay crisp at any scale factor. It
/// expects a painter whose origin lies on a device pixel, as that of a widget does.
class DeviceGrid
{
public:
    explicit DeviceGrid(const QPainter& painter) : m_ratio(painter.device()->devicePixelRatioF()) {}

    double edge(double position) const { return std::round(position * m_ratio) / m_ratio; }

    QRectF aligned(const QRectF& rect) const
    {
        return {QPointF(edge(rect.left()), edge(rect.top())),
                QPointF(edge(rect.right()), edge(rect.bottom()))};
    }

    /// The width nearest to @p width that is a whole number of device pixels, one at least.
    double lineWidth(double width) const
    {
        return std::max(std::round(width * m_ratio), 1.0) / m_ratio;
    }

    /// The middle of the line of @p lineWidth that covers the device pixels at @p position.
    double lineCenter(double position, double lineWidth) const
    {
        const double left = std::floor((position + 0.5 / m_ratio - lineWidth / 2) * m_ratio);
        return left / m_ratio + lineWidth / 2;
    }

private:
    double m_ratio;
};

} // namespace CorvelGui
