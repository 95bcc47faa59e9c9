// SPDX-License-Identifier: MIT
#pragma once

#include "icongrid.h"
#include "iconink.h"

namespace Hueloft {

/// The outline of an icon, in the pixels of @p grid, to be filled with Qt::WindingFill.
using IconShape = QPainterPath (*)(const IconGrid& grid);

/// An icon of one outline in the colour of the look that is active at the time of painting.
struct VectorIcon
{
    IconShape shape;
    IconInk ink;
    int nominalSize;       ///< side in pixels; the first of the available sizes
    bool outlined = false; ///< with a dark rim, for icons that stand on coloured ground
};

QIcon vectorIcon(const VectorIcon& icon);

} // namespace Hueloft
