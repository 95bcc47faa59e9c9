// SPDX-License-Identifier: MIT
#pragma once

#include <Hueloft/hueloft_export.h>

#include <QColor>
#include <QPalette>
#include <QString>

namespace Hueloft {

/// The named colours, and the dark and the light look of an application.
///
/// The colours are the same in both looks: the video surfaces that use them (timeline, player) stay
/// dark, so that pictures are not outshone. What changes with the look is the palette and the style
/// sheet of the application.
class HUELOFT_EXPORT POrvGuiTheme
{
public:
    POrvGuiTheme() = delete;

    static QColor colorElephant;
    static QColor colorKoala;
    static QColor colorPanther;
    static QColor colorLightRed;
    static QColor colorPurple;
    static QColor colorDarkBlue;
    static QColor colorBlack;
    static QColor colorShark;
    static QColor colorOrange;
    static QColor colorTuna;
    static QColor colorGreen;
    static QColor colorYellow;
    static QColor colorBlue;
    static QColor colorGreyhound;

    /// True while the dark look is active. Written by the application's look switch only.
    static bool bPantherTheme;

    /// The colour of error and failure texts; readable in the active look.
    static QColor statusRed();

    /// The application style sheet of the dark look.
    static QString darkTheme();

    /// The application style sheet of the light look.
    static QString whiteTheme();

    /// Turns @p palette into the palette of the dark look. Roles that the look does not define stay
    /// as they are.
    static void SetDarkPalette(QPalette& palette);
};

} // namespace Hueloft
