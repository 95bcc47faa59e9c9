#pragma once

class QWidget;

namespace CorvelGui {

/// Lets the icons of Qt's print preview be seen on a dark tool bar: Qt draws them dark.
void lightenPreviewIcons(QWidget& preview);

} // namespace CorvelGui
