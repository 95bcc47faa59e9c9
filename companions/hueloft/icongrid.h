// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>

namespace Hueloft {

/// A drawing grid of 16 by 16 units on a square of device pixels.
///
/// It turns shapes in units into closed outlines in pixels that are meant to be filled with
/// Qt::WindingFill. Straight edges are moved to pixel borders and strokes are whole pixels wide, so
/// that small icons stay crisp.
class IconGrid
{
public:
    static constexpr int units = 16;

    /// @p side is the side of the square in pixels, at least 1.
    explicit IconGrid(int side);

    /// The width of strokes in pixels.
    int strokeWidth() const { return m_stroke; }

    qreal toPixels(qreal length) const { return length * m_unit; }
    QPointF toPixels(QPointF point) const { return point * m_unit; }

    /// A filled rectangle.
    QPainterPath block(const QRectF& area) const;
    /// The frame of a rectangle; its outer edge is the border of @p area.
    QPainterPath box(const QRectF& area) const;
    /// A horizontal bar of stroke width that begins at @p from and is centred on its line.
    QPainterPath hBar(QPointF from, qreal length) const;
    /// A filled polygon, its corners on pixel corners.
    QPainterPath polygon(const QList<QPointF>& corners) const;
    /// A stroked line through the points, with round caps and joins.
    QPainterPath line(const QList<QPointF>& points) const;
    QPainterPath closedLine(const QList<QPointF>& points) const;
    /// A stroked outline; @p pixels is in pixels.
    QPainterPath stroked(const QPainterPath& pixels, qreal width) const;
    /// A filled circle, and a circle line whose outer radius is @p radius.
    QPainterPath disc(QPointF center, qreal radius) const;
    QPainterPath ring(QPointF center, qreal radius) const;
    /// A stroked arc; angles in degrees, counter-clockwise from three o'clock.
    QPainterPath arc(QPointF center, qreal radius, qreal start, qreal sweep) const;

    /// The same outline, left and right exchanged.
    QPainterPath mirrored(const QPainterPath& pixels) const;

private:
    QRectF snapped(const QRectF& area) const;

    int m_side;
    qreal m_unit;
    int m_stroke;
};

/// @p inner cut out of @p outer, where it lies wholly inside.
QPainterPath withHole(const QPainterPath& outer, const QPainterPath& inner);

} // namespace Hueloft
