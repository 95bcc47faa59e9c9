// SPDX-License-Identifier: MIT
#pragma once

#include "data/eventkind.h"

#include <QImage>
#include <QSize>

#include <optional>

namespace Review {

/// A drawn street as one camera of the sample sees it, by day or without colour at night.
class Scene
{
public:
    static constexpr QSize size{640, 360};

    /// Someone or something on its way through the picture.
    struct Visitor
    {
        EventKind kind;
        /// From 0, where it enters on the left, to 1, where it leaves on the right.
        double progress;
    };

    /// Each camera has surroundings of its own, the same on every machine.
    Scene(int camera, bool atNight);

    /// @p seconds move what is never still.
    QImage draw(double seconds, const std::optional<Visitor>& visitor) const;

private:
    double m_light; ///< from 0 at night to 1 at noon
    QImage m_surroundings;
};

} // namespace Review
