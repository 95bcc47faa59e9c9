// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QIcon>

#include <functional>

class QWidget;

namespace CorvelGui {

/// A square of the colour, on a chequered ground where it is transparent; sharp at every scale.
QIcon colorSwatch(const QColor& color);

/// The colour as "#rrggbb", or as "#aarrggbb" if it is transparent.
QString colorCode(const QColor& color);

/// Lets the user choose a colour in a dialog that is modal to the window of @p parent. @p take gets
/// it from the event loop, so that it may delete @p parent; nothing happens if the user cancels.
void openColorDialog(QWidget* parent, const QString& title, const QColor& initial, bool hasAlpha,
                     const std::function<void(const QColor&)>& take);

} // namespace CorvelGui
