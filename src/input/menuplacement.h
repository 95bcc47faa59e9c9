// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QPoint>
#include <QRect>
#include <QSize>

class QMenu;
class QWidget;

namespace CorvelGui {

/// Where a menu of the size @p menu drops down from @p button, on a screen that has @p available to
/// offer, all in screen coordinates: below the button, above it where there is no room below, and
/// from its right edge in right-to-left layout.
CORVELGUI_INTERNAL_EXPORT QPoint menuPosition(const QRect& button, const QRect& available,
                                              QSize menu, Qt::LayoutDirection direction);

/// Runs @p menu modally at @p button. Any of both may be gone when it returns.
void execMenuAtWidget(QMenu* menu, const QWidget* button);

} // namespace CorvelGui
