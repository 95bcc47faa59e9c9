// SPDX-License-Identifier: MIT
#include "iconshapes.h"

#include <QTransform>

namespace Hueloft::IconShapes {

namespace {

// A drop that points down to its instant.
QPainterPath pin(const IconGrid& grid, qreal centerX, qreal top, qreal width, qreal bottom)
{
    const qreal radius = width / 2;
    const QPointF head(centerX, top + radius);
    QPainterPath units(QPointF(centerX, bottom));
    units.cubicTo(QPointF(centerX - radius * 0.35, head.y() + radius * 1.35),
                  QPointF(centerX - radius, head.y() + radius * 0.75),
                  QPointF(centerX - radius, head.y()));
    units.arcTo(QRectF(head.x() - radius, head.y() - radius, width, width), 180, -180);
    units.cubicTo(QPointF(centerX + radius, head.y() + radius * 0.75),
                  QPointF(centerX + radius * 0.35, head.y() + radius * 1.35),
                  QPointF(centerX, bottom));
    units.closeSubpath();

    QPainterPath path = QTransform::fromScale(grid.toPixels(1.0), grid.toPixels(1.0)).map(units);
    path.setFillRule(Qt::WindingFill);
    return path;
}

} // namespace

QPainterPath marker(const IconGrid& grid)
{
    QPainterPath hole;
    const qreal radius = grid.toPixels(1.8);
    hole.addEllipse(grid.toPixels(QPointF(8, 6.5)), radius, radius);
    return withHole(pin(grid, 8, 1.5, 10, 14.5), hole);
}

QPainterPath mergedMarkers(const IconGrid& grid)
{
    const QPainterPath front = pin(grid, 8, 1.5, 7.8, 14.5);
    const QPainterPath clearance = front.united(grid.stroked(front, 2.0 * grid.strokeWidth()));
    QPainterPath behind = pin(grid, 5, 2.2, 7, 12.8);
    behind.addPath(pin(grid, 11, 2.2, 7, 12.8));

    const QPainterPath plus = grid.block({7, 3, 2, 5}).united(grid.block({5.5, 4.5, 5, 2}));
    QPainterPath path = behind.simplified().subtracted(clearance);
    path.addPath(front.subtracted(plus));
    return path;
}

} // namespace Hueloft::IconShapes
