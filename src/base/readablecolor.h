// SPDX-License-Identifier: MIT
#pragma once

#include "internalexport.h"

#include <QColor>

namespace CorvelGui {

/// Both colours together, with @p share of the second from 0 to 1.
CORVELGUI_INTERNAL_EXPORT QColor mixed(const QColor& one, const QColor& other, float share);

/// The shade of @p color that is nearest to it and stands out from @p ground as text must: with a
/// contrast ratio of 4.5 by WCAG 2.
CORVELGUI_INTERNAL_EXPORT QColor readableOn(const QColor& color, const QColor& ground);

} // namespace CorvelGui
