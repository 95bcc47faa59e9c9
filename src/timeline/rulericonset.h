#pragma once

#include <QIcon>

namespace CorvelGui {

/// The pictures of one icon in the states of a marker button.
struct RulerIconSet
{
    QIcon normal;
    QIcon hover;
    QIcon alternativeHover;
    /// Width of what is not transparent, as a fraction of the picture's width.
    double visibleFraction = 0.0;
};

/// Makes the set for an icon. A null icon gives an empty set.
RulerIconSet setupRulerIconSet(const QIcon& icon);

/// The picture of merged markers, which also covers the others of its run with transparency.
struct MergedRulerIcons
{
    RulerIconSet merged;
    QIcon transparent;
};

MergedRulerIcons setupMergedRulerIcons();

} // namespace CorvelGui
