// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>

namespace Hueloft {

/// What the style sheet needs to know of a look. The names are those of the `$tokens$` in look.qss.
struct LookColors
{
    QColor window;
    QColor base;
    QColor alternateBase;
    QColor raised; ///< headers and tabs in the background
    QColor hover;  ///< what is under the mouse, and the selected menu entry
    QColor line;   ///< quiet borders between areas
    QColor edge;   ///< borders of things that can be used
    QColor text;
    QColor disabledText;
    QColor toolTip;
    QColor accent; ///< selections and checked boxes
    QColor accentText;
    QColor focus;
    QColor chunk; ///< filled part of a progress bar; the text of the bar stands on it
};

extern const LookColors darkLook;
extern const LookColors lightLook;

/// The application style sheet in these colours. It ends with a complete rule, so rules can be
/// appended.
QString lookSheet(const LookColors& look);

} // namespace Hueloft
