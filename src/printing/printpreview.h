// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace CorvelGui {

/// Makes up for what Qt's print preview lacks: Tab goes to the buttons of its tool bar, and their
/// icons, which are for light tool bars, can be seen on a dark one.
void adaptPrintPreview(QWidget& preview);

} // namespace CorvelGui
