// SPDX-License-Identifier: MIT
#include "porvguitheme.h"

#include "looksheet.h"

namespace Hueloft {

// Initialised before any code runs, so that static objects of other files may use them.
constinit QColor POrvGuiTheme::colorBlack(0, 0, 0);
constinit QColor POrvGuiTheme::colorPanther(22, 24, 27);
constinit QColor POrvGuiTheme::colorShark(34, 37, 41);
constinit QColor POrvGuiTheme::colorTuna(56, 86, 106);
constinit QColor POrvGuiTheme::colorElephant(78, 85, 95);
constinit QColor POrvGuiTheme::colorGreyhound(112, 119, 130);
constinit QColor POrvGuiTheme::colorKoala(156, 163, 173);
constinit QColor POrvGuiTheme::colorLightRed(255, 112, 84);
constinit QColor POrvGuiTheme::colorOrange(222, 120, 20);
constinit QColor POrvGuiTheme::colorYellow(255, 205, 60);
constinit QColor POrvGuiTheme::colorGreen(12, 160, 130);
constinit QColor POrvGuiTheme::colorBlue(60, 144, 224);
constinit QColor POrvGuiTheme::colorDarkBlue(30, 112, 192);
constinit QColor POrvGuiTheme::colorPurple(196, 120, 220);

constinit bool POrvGuiTheme::bPantherTheme = false;

QColor POrvGuiTheme::statusRed()
{
    return bPantherTheme ? QColor(252, 92, 64) : QColor(192, 28, 36);
}

QString POrvGuiTheme::darkTheme()
{
    return lookSheet(darkLook);
}

QString POrvGuiTheme::whiteTheme()
{
    return lookSheet(lightLook);
}

void POrvGuiTheme::SetDarkPalette(QPalette& palette)
{
    const LookColors& look = darkLook;

    const struct
    {
        QPalette::ColorRole role;
        QColor color;
    } everywhere[] = {
        {QPalette::Window, look.window},
        {QPalette::WindowText, look.text},
        {QPalette::Base, look.base},
        {QPalette::AlternateBase, look.alternateBase},
        {QPalette::Text, look.text},
        {QPalette::PlaceholderText, QColor(148, 155, 164)},
        {QPalette::Button, QColor(56, 61, 69)},
        {QPalette::ButtonText, look.text},
        {QPalette::BrightText, QColor(255, 255, 255)},
        {QPalette::ToolTipBase, look.toolTip},
        {QPalette::ToolTipText, look.text},
        {QPalette::Highlight, look.accent},
        {QPalette::HighlightedText, look.accentText},
        {QPalette::Link, QColor(104, 176, 242)},
        {QPalette::LinkVisited, QColor(190, 152, 238)},
        {QPalette::Light, QColor(82, 89, 99)},
        {QPalette::Midlight, QColor(66, 72, 81)},
        {QPalette::Mid, QColor(46, 51, 57)},
        {QPalette::Dark, QColor(20, 22, 25)},
        {QPalette::Shadow, QColor(0, 0, 0)},
    };
    for (const auto& entry : everywhere)
        palette.setColor(QPalette::All, entry.role, entry.color);

    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(QPalette::Disabled, role, look.disabledText);
    palette.setColor(QPalette::Disabled, QPalette::Base, look.window);
    palette.setColor(QPalette::Disabled, QPalette::Button, QColor(42, 46, 52));
    palette.setColor(QPalette::Disabled, QPalette::PlaceholderText, look.disabledText);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(62, 68, 76));
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, QColor(176, 182, 190));
    palette.setColor(QPalette::Disabled, QPalette::Link, look.disabledText);
    palette.setColor(QPalette::Disabled, QPalette::LinkVisited, look.disabledText);
}

} // namespace Hueloft
