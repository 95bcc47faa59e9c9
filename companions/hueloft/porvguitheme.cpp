#include "porvguitheme.h"

namespace Hueloft {

QColor POrvGuiTheme::colorBlack(0, 0, 0);
QColor POrvGuiTheme::colorPanther(22, 24, 27);
QColor POrvGuiTheme::colorShark(34, 37, 41);
QColor POrvGuiTheme::colorTuna(58, 63, 71);
QColor POrvGuiTheme::colorElephant(92, 99, 110);
QColor POrvGuiTheme::colorGreyhound(110, 117, 128);
QColor POrvGuiTheme::colorKoala(154, 161, 171);
QColor POrvGuiTheme::colorLightRed(255, 112, 97);
QColor POrvGuiTheme::colorOrange(240, 150, 40);
QColor POrvGuiTheme::colorYellow(255, 205, 60);
QColor POrvGuiTheme::colorGreen(62, 190, 140);
QColor POrvGuiTheme::colorBlue(86, 165, 236);
QColor POrvGuiTheme::colorDarkBlue(28, 78, 128);
QColor POrvGuiTheme::colorPurple(196, 120, 220);

bool POrvGuiTheme::bPantherTheme = false;

} // namespace Hueloft
