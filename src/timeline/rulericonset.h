// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QIcon>
#include <QPixmap>
#include <QSize>

#include <memory>

namespace CorvelGui {

/// The pictures of one icon in the states of a marker button, at the size they are shown at.
///
/// They are made when they are first needed, and again for another size or device. Copies of one
/// QIcon share them, on all rulers.
class CORVELGUI_INTERNAL_EXPORT RulerIconSet
{
public:
    enum class State { Normal, Hover, AlternativeHover };

    /// A null icon has no pictures.
    explicit RulerIconSet(const QIcon& icon);

    /// Width of what is not transparent, as a fraction of the picture's width.
    double visibleFraction(const QSize& size, qreal devicePixelRatio) const;
    /// The picture as it fits into @p size, in logical pixels. Smaller icons keep their size.
    QPixmap picture(State state, const QSize& size, qreal devicePixelRatio) const;

private:
    struct Pictures;
    struct Source;

    static std::shared_ptr<Source> sourceOf(const QIcon& icon);
    void provide(const QSize& size, qreal devicePixelRatio) const;

    std::shared_ptr<Source> m_source;
    mutable std::shared_ptr<const Pictures> m_pictures; ///< of the size asked for last
};

} // namespace CorvelGui
