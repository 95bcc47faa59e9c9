// SPDX-License-Identifier: MIT
#include "iconshapes.h"

namespace Hueloft::IconShapes {

namespace {

QPainterPath triangle(const IconGrid& grid, qreal left, qreal right, qreal height)
{
    const qreal top = (IconGrid::units - height) / 2;
    return grid.polygon({{left, top}, {right, IconGrid::units / 2.0}, {left, top + height}});
}

} // namespace

QPainterPath play(const IconGrid& grid)
{
    return triangle(grid, 4, 14, 12);
}

QPainterPath playReverse(const IconGrid& grid)
{
    return grid.mirrored(play(grid));
}

QPainterPath pause(const IconGrid& grid)
{
    QPainterPath path = grid.block({3, 2, 4, 12});
    path.addPath(grid.block({9, 2, 4, 12}));
    return path;
}

QPainterPath fastForward(const IconGrid& grid)
{
    QPainterPath path = triangle(grid, 1, 8, 10);
    path.addPath(triangle(grid, 8, 15, 10));
    return path;
}

QPainterPath fastRewind(const IconGrid& grid)
{
    return grid.mirrored(fastForward(grid));
}

QPainterPath endSingle(const IconGrid& grid)
{
    QPainterPath path = triangle(grid, 3, 11, 10);
    path.addPath(grid.block({11, 3, 2, 10}));
    return path;
}

QPainterPath startSingle(const IconGrid& grid)
{
    return grid.mirrored(endSingle(grid));
}

QPainterPath endDouble(const IconGrid& grid)
{
    QPainterPath path = triangle(grid, 1, 7, 10);
    path.addPath(triangle(grid, 7, 13, 10));
    path.addPath(grid.block({13, 3, 2, 10}));
    return path;
}

QPainterPath startDouble(const IconGrid& grid)
{
    return grid.mirrored(endDouble(grid));
}

} // namespace Hueloft::IconShapes
