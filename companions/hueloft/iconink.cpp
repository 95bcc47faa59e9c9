// SPDX-License-Identifier: MIT
#include "iconink.h"

#include "porvguitheme.h"

namespace Hueloft {

namespace {

struct ModeColors
{
    QColor normal;
    QColor disabled;
    QColor active;
    QColor selected;
};

constexpr ModeColors onDarkLook{QColor(206, 211, 218), QColor(104, 111, 121), QColor(255, 255, 255),
                                QColor(255, 255, 255)};
constexpr ModeColors onLightLook{QColor(66, 73, 82), QColor(148, 154, 162), QColor(12, 78, 138),
                                 QColor(255, 255, 255)};
constexpr ModeColors onAnything{QColor(118, 128, 140), QColor(118, 128, 140, 120),
                                QColor(50, 134, 206), QColor(255, 255, 255)};
constexpr ModeColors onPlayer{QColor(206, 211, 218), QColor(104, 111, 121), QColor(255, 255, 255),
                              QColor(255, 226, 140)};

const ModeColors& modeColors(IconInk ink)
{
    switch (ink) {
    case IconInk::Look:
        return POrvGuiTheme::bPantherTheme ? onDarkLook : onLightLook;
    case IconInk::Neutral:
        return onAnything;
    case IconInk::Bright:
        break;
    }
    return onPlayer;
}

} // namespace

QColor iconColor(IconInk ink, QIcon::Mode mode)
{
    const ModeColors& colors = modeColors(ink);
    switch (mode) {
    case QIcon::Disabled:
        return colors.disabled;
    case QIcon::Active:
        return colors.active;
    case QIcon::Selected:
        return colors.selected;
    case QIcon::Normal:
        break;
    }
    return colors.normal;
}

} // namespace Hueloft
