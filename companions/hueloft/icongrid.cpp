// SPDX-License-Identifier: MIT
#include "icongrid.h"

#include <QPainterPathStroker>
#include <QTransform>

namespace Hueloft {

namespace {

constexpr qreal strokeUnits = 1.4;

qreal rounded(qreal value)
{
    return qreal(qRound(value));
}

QPainterPath windingPath()
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    return path;
}

} // namespace

QPainterPath withHole(const QPainterPath& outer, const QPainterPath& inner)
{
    QPainterPath path = outer;
    path.setFillRule(Qt::WindingFill);
    path.addPath(inner.toReversed());
    return path;
}

IconGrid::IconGrid(int side)
    : m_side(qMax(1, side))
    , m_unit(qreal(m_side) / units)
    , m_stroke(qMax(1, qRound(strokeUnits * m_unit)))
{}

QRectF IconGrid::snapped(const QRectF& area) const
{
    const QPointF topLeft(rounded(area.left() * m_unit), rounded(area.top() * m_unit));
    const QPointF bottomRight(rounded(area.right() * m_unit), rounded(area.bottom() * m_unit));
    return QRectF(topLeft, bottomRight);
}

QPainterPath IconGrid::block(const QRectF& area) const
{
    QPainterPath path = windingPath();
    path.addRect(snapped(area));
    return path;
}

QPainterPath IconGrid::box(const QRectF& area) const
{
    QPainterPath hole;
    hole.addRect(snapped(area).adjusted(m_stroke, m_stroke, -m_stroke, -m_stroke));
    return withHole(block(area), hole);
}

QPainterPath IconGrid::hBar(QPointF from, qreal length) const
{
    QPainterPath path = windingPath();
    const qreal left = rounded(from.x() * m_unit);
    const qreal right = rounded((from.x() + length) * m_unit);
    path.addRect(left, rounded(from.y() * m_unit - m_stroke / 2.0), right - left, m_stroke);
    return path;
}

QPainterPath IconGrid::polygon(const QList<QPointF>& corners) const
{
    QPolygonF pixels;
    for (const QPointF& corner : corners)
        pixels << QPointF(rounded(corner.x() * m_unit), rounded(corner.y() * m_unit));
    QPainterPath path = windingPath();
    path.addPolygon(pixels);
    path.closeSubpath();
    return path;
}

QPainterPath IconGrid::line(const QList<QPointF>& points) const
{
    // Centre lines of an odd width run through pixel centres, those of an even width along pixel
    // borders.
    const qreal offset = m_stroke % 2 ? 0.5 : 0.0;
    const auto onGrid = [this, offset](QPointF point) {
        return QPointF(rounded(point.x() * m_unit - offset) + offset,
                       rounded(point.y() * m_unit - offset) + offset);
    };
    QPainterPath path(onGrid(points.first()));
    for (const QPointF& point : points.sliced(1))
        path.lineTo(onGrid(point));
    return stroked(path, m_stroke);
}

QPainterPath IconGrid::closedLine(const QList<QPointF>& points) const
{
    return line(points + QList<QPointF>{points.first()});
}

QPainterPath IconGrid::stroked(const QPainterPath& pixels, qreal width) const
{
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    stroker.setCurveThreshold(0.1);
    QPainterPath path = stroker.createStroke(pixels);
    path.setFillRule(Qt::WindingFill);
    return path;
}

QPainterPath IconGrid::disc(QPointF center, qreal radius) const
{
    QPainterPath path = windingPath();
    path.addEllipse(
        snapped(QRectF(center - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius))));
    return path;
}

QPainterPath IconGrid::ring(QPointF center, qreal radius) const
{
    const QPainterPath outer = disc(center, radius);
    QPainterPath hole;
    hole.addEllipse(outer.boundingRect().adjusted(m_stroke, m_stroke, -m_stroke, -m_stroke));
    return withHole(outer, hole);
}

QPainterPath IconGrid::arc(QPointF center, qreal radius, qreal start, qreal sweep) const
{
    const QPointF c = toPixels(center);
    const qreal r = toPixels(radius);
    const QRectF circle(c.x() - r, c.y() - r, 2 * r, 2 * r);
    QPainterPath path;
    path.arcMoveTo(circle, start);
    path.arcTo(circle, start, sweep);
    return stroked(path, m_stroke);
}

QPainterPath IconGrid::mirrored(const QPainterPath& pixels) const
{
    return QTransform(-1, 0, 0, 1, m_side, 0).map(pixels);
}

} // namespace Hueloft
