// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QString>

#include <compare>
#include <optional>

namespace CorvelGui {

/// The version of a release: four numbers, compared one after the other.
struct ReleaseVersion
{
    qint32 major = 0;
    qint32 minor = 0;
    qint32 build = 0;
    qint32 revision = 0;

    auto operator<=>(const ReleaseVersion&) const = default;

    /// Reads "2.1.0.5". Missing numbers are 0, what follows the numbers is ignored, and a number
    /// beyond 32 bits is taken as the nearest one inside. Nothing if @p text begins with no number.
    CORVELGUI_INTERNAL_EXPORT static std::optional<ReleaseVersion> parse(const QString& text);

    /// The numbers with dots between; the revision only when @p withRevision.
    CORVELGUI_INTERNAL_EXPORT QString text(bool withRevision) const;
};

} // namespace CorvelGui
