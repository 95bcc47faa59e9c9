// SPDX-License-Identifier: MIT
#pragma once

#include "icongrid.h"

/// The outlines of all icons, each a function from the pixel grid to a closed outline.
namespace Hueloft::IconShapes {

QPainterPath plus(const IconGrid& grid);
QPainterPath minus(const IconGrid& grid);
QPainterPath copy(const IconGrid& grid);
QPainterPath copyRows(const IconGrid& grid);
QPainterPath open(const IconGrid& grid);
QPainterPath refresh(const IconGrid& grid);
QPainterPath settings(const IconGrid& grid);
QPainterPath lock(const IconGrid& grid);
QPainterPath tabClose(const IconGrid& grid);
QPainterPath visible(const IconGrid& grid);
QPainterPath invisible(const IconGrid& grid);
QPainterPath dateTime(const IconGrid& grid);

QPainterPath marker(const IconGrid& grid);
QPainterPath mergedMarkers(const IconGrid& grid);

QPainterPath play(const IconGrid& grid);
QPainterPath playReverse(const IconGrid& grid);
QPainterPath pause(const IconGrid& grid);
QPainterPath fastForward(const IconGrid& grid);
QPainterPath fastRewind(const IconGrid& grid);
QPainterPath startSingle(const IconGrid& grid);
QPainterPath endSingle(const IconGrid& grid);
QPainterPath startDouble(const IconGrid& grid);
QPainterPath endDouble(const IconGrid& grid);

QPainterPath failure(const IconGrid& grid);
QPainterPath warning(const IconGrid& grid);
QPainterPath information(const IconGrid& grid);
QPainterPath question(const IconGrid& grid);

} // namespace Hueloft::IconShapes
