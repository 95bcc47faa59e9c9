// SPDX-License-Identifier: MIT
#include "iconshapes.h"

namespace Hueloft::IconShapes {

namespace {

constexpr QPointF center(8, 8);

QPainterPath exclamation(const IconGrid& grid, qreal top, qreal bottom)
{
    QPainterPath path = grid.block({7, top, 2, bottom - top - 3});
    path.addPath(grid.block({7, bottom - 2, 2, 2}));
    return path;
}

} // namespace

QPainterPath failure(const IconGrid& grid)
{
    QPainterPath cross = grid.polygon({{5, 4},
                                       {8, 7},
                                       {11, 4},
                                       {12, 5},
                                       {9, 8},
                                       {12, 11},
                                       {11, 12},
                                       {8, 9},
                                       {5, 12},
                                       {4, 11},
                                       {7, 8},
                                       {4, 5}});
    return withHole(grid.disc(center, 7), cross);
}

QPainterPath warning(const IconGrid& grid)
{
    QPainterPath path = grid.polygon({{8, 1}, {15.5, 15}, {0.5, 15}});
    return withHole(path, exclamation(grid, 5, 13.5));
}

QPainterPath information(const IconGrid& grid)
{
    QPainterPath letter = grid.block({7, 4, 2, 2});
    letter.addPath(grid.block({7, 7, 2, 5}));
    return withHole(grid.disc(center, 7), letter);
}

QPainterPath question(const IconGrid& grid)
{
    QPainterPath hook(grid.toPixels(QPointF(5.6, 6.2)));
    hook.cubicTo(grid.toPixels(QPointF(5.6, 2.8)), grid.toPixels(QPointF(10.6, 2.8)),
                 grid.toPixels(QPointF(10.4, 6.0)));
    hook.cubicTo(grid.toPixels(QPointF(10.2, 7.8)), grid.toPixels(QPointF(8.0, 7.6)),
                 grid.toPixels(QPointF(8, 9.4)));
    const QPainterPath sign =
        grid.stroked(hook, grid.toPixels(1.8)).united(grid.disc({8, 11.8}, 1.1));
    return grid.disc(center, 7).subtracted(sign);
}

} // namespace Hueloft::IconShapes
