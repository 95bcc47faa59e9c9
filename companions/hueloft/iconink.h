// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QIcon>

namespace Hueloft {

/// Which surface an icon is drawn for.
enum class IconInk {
    Look,    ///< the surfaces of the active look: light strokes on dark, dark ones on light
    Neutral, ///< any surface: a mid tone that shows on dark and on light
    Bright,  ///< the player and timeline surfaces, which are dark in both looks
};

/// The colour of an icon in @p mode, in the look that is active now.
QColor iconColor(IconInk ink, QIcon::Mode mode);

} // namespace Hueloft
