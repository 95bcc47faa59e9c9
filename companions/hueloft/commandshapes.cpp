// SPDX-License-Identifier: MIT
#include "iconshapes.h"

#include <QTransform>

#include <cmath>
#include <numbers>

namespace Hueloft::IconShapes {

QPainterPath plus(const IconGrid& grid)
{
    QPainterPath path = grid.block({7, 2, 2, 12});
    path.addPath(minus(grid));
    return path;
}

QPainterPath minus(const IconGrid& grid)
{
    return grid.block({2, 7, 12, 2});
}

namespace {

// The upper left one of two sheets, as far as it shows behind the other.
QPainterPath sheetBehind(const IconGrid& grid)
{
    return grid.box({2, 2, 9, 9}).subtracted(grid.block({4.2, 4.2, 12, 12}));
}

} // namespace

QPainterPath copy(const IconGrid& grid)
{
    return sheetBehind(grid).united(grid.box({5, 5, 9, 9}));
}

QPainterPath copyRows(const IconGrid& grid)
{
    QPainterPath path = copy(grid);
    path.addPath(grid.hBar({7, 8.3}, 5));
    path.addPath(grid.hBar({7, 10.8}, 5));
    path.setFillRule(Qt::WindingFill);
    return path;
}

QPainterPath open(const IconGrid& grid)
{
    QPainterPath path = grid.line({{2, 13}, {2, 3}, {6, 3}, {8, 5}, {13, 5}, {13, 7}});
    path.addPath(grid.closedLine({{2, 13}, {4, 7}, {15, 7}, {13, 13}}));
    return path;
}

QPainterPath refresh(const IconGrid& grid)
{
    constexpr QPointF center(8, 8);
    constexpr qreal radius = 5.5;
    const QPainterPath half =
        grid.arc(center, radius, 20, 130).united(grid.polygon({{9, 7}, {15, 7}, {15, 1}}));

    const QPointF middle = grid.toPixels(center);
    const QTransform halfTurn(-1, 0, 0, -1, 2 * middle.x(), 2 * middle.y());
    return half.united(halfTurn.map(half));
}

QPainterPath settings(const IconGrid& grid)
{
    constexpr int teeth = 8;
    constexpr qreal root = 5.2;
    constexpr qreal tip = 7.2;
    constexpr qreal toothAngle = 2 * std::numbers::pi / teeth;

    const QPointF center = grid.toPixels(QPointF(8, 8));
    const auto at = [&grid, center](qreal radius, qreal angle) {
        return center + grid.toPixels(radius) * QPointF(std::cos(angle), std::sin(angle));
    };
    QPolygonF rim;
    for (int tooth = 0; tooth < teeth; ++tooth) {
        const qreal angle = tooth * toothAngle;
        rim << at(root, angle - 0.30 * toothAngle) << at(tip, angle - 0.19 * toothAngle)
            << at(tip, angle + 0.19 * toothAngle) << at(root, angle + 0.30 * toothAngle);
    }
    QPainterPath wheel;
    wheel.addPolygon(rim);
    wheel.closeSubpath();
    QPainterPath hole;
    hole.addEllipse(center, grid.toPixels(2.4), grid.toPixels(2.4));
    return withHole(wheel, hole);
}

QPainterPath lock(const IconGrid& grid)
{
    QPainterPath shackle(grid.toPixels(QPointF(5, 8)));
    shackle.lineTo(grid.toPixels(QPointF(5, 5)));
    shackle.arcTo(QRectF(grid.toPixels(QPointF(5, 2)), grid.toPixels(QPointF(11, 8))), 180, -180);
    shackle.lineTo(grid.toPixels(QPointF(11, 8)));

    QPainterPath path = withHole(grid.block({3, 7, 10, 8}), grid.disc({8, 11}, 1.3));
    path.addPath(grid.stroked(shackle, grid.strokeWidth()));
    return path;
}

QPainterPath tabClose(const IconGrid& grid)
{
    QPainterPath path = grid.line({{4, 4}, {12, 12}});
    path.addPath(grid.line({{12, 4}, {4, 12}}));
    return path;
}

QPainterPath visible(const IconGrid& grid)
{
    QPainterPath lids(grid.toPixels(QPointF(1, 8)));
    lids.quadTo(grid.toPixels(QPointF(8, -0.5)), grid.toPixels(QPointF(15, 8)));
    lids.quadTo(grid.toPixels(QPointF(8, 16.5)), grid.toPixels(QPointF(1, 8)));
    lids.closeSubpath();

    QPainterPath path = grid.stroked(lids, grid.strokeWidth());
    path.addPath(grid.disc({8, 8}, 2.2));
    return path;
}

QPainterPath invisible(const IconGrid& grid)
{
    const QPainterPath slash = grid.line({{3, 14}, {13, 2}});
    const QPainterPath gap = slash.united(grid.stroked(slash, 2.0 * grid.strokeWidth()));
    QPainterPath path = visible(grid).simplified().subtracted(gap);
    path.addPath(slash);
    path.setFillRule(Qt::WindingFill);
    return path;
}

QPainterPath dateTime(const IconGrid& grid)
{
    constexpr QPointF clockCenter(11.5, 11.5);
    constexpr qreal clockRadius = 3.5;

    QPainterPath sheet = grid.box({1, 2, 12, 12});
    sheet.addPath(grid.block({1, 2, 12, 4}));
    sheet.addPath(grid.block({4, 1, 1.4, 2}));
    sheet.addPath(grid.block({9, 1, 1.4, 2}));
    QPainterPath path = sheet.simplified().subtracted(grid.disc(clockCenter, clockRadius + 0.9));
    path.addPath(grid.ring(clockCenter, clockRadius));
    path.addPath(grid.line({{11.5, 9.8}, {11.5, 11.5}, {12.8, 11.5}}));
    path.setFillRule(Qt::WindingFill);
    return path;
}

} // namespace Hueloft::IconShapes
