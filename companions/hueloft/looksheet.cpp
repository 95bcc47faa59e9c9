// SPDX-License-Identifier: MIT
#include "looksheet.h"

#include "porvguitheme.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace Hueloft {

constinit const LookColors darkLook{
    .window = QColor(34, 37, 41),
    .base = QColor(22, 24, 27),
    .alternateBase = QColor(28, 31, 35),
    .raised = QColor(46, 50, 57),
    .hover = QColor(54, 68, 84),
    .line = QColor(64, 70, 79),
    .edge = QColor(112, 119, 130),
    .text = QColor(228, 231, 235),
    .disabledText = QColor(128, 134, 142),
    .toolTip = QColor(56, 61, 69),
    .accent = QColor(31, 111, 178),
    .accentText = QColor(255, 255, 255),
    .focus = QColor(104, 176, 242),
    .chunk = QColor(28, 97, 156),
};

constinit const LookColors lightLook{
    .window = QColor(239, 239, 239),
    .base = QColor(255, 255, 255),
    .alternateBase = QColor(246, 248, 250),
    .raised = QColor(226, 229, 233),
    .hover = QColor(208, 227, 244),
    .line = QColor(190, 195, 202),
    .edge = QColor(118, 125, 134),
    .text = QColor(22, 25, 29),
    .disabledText = QColor(116, 122, 130),
    .toolTip = QColor(252, 252, 246),
    .accent = QColor(31, 111, 178),
    .accentText = QColor(255, 255, 255),
    .focus = QColor(31, 111, 178),
    .chunk = QColor(150, 198, 240),
};

QString lookSheet(const LookColors& look)
{
    QFile file(u":/Hueloft/look.qss"_s);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The style sheet is missing in the resources of Hueloft.");
    QString sheet = QString::fromUtf8(file.readAll());

    const struct
    {
        QLatin1StringView token;
        QColor color;
    } tokens[] = {
        {"$window$"_L1, look.window},
        {"$base$"_L1, look.base},
        {"$alternateBase$"_L1, look.alternateBase},
        {"$raised$"_L1, look.raised},
        {"$hover$"_L1, look.hover},
        {"$line$"_L1, look.line},
        {"$edge$"_L1, look.edge},
        {"$text$"_L1, look.text},
        {"$disabledText$"_L1, look.disabledText},
        {"$toolTip$"_L1, look.toolTip},
        {"$accent$"_L1, look.accent},
        {"$accentText$"_L1, look.accentText},
        {"$focus$"_L1, look.focus},
        {"$chunk$"_L1, look.chunk},
        {"$player$"_L1, POrvGuiTheme::colorPanther},
        {"$playerText$"_L1, darkLook.text},
        {"$playerHover$"_L1, darkLook.raised},
        {"$playerChecked$"_L1, POrvGuiTheme::colorDarkBlue},
        {"$playerEdge$"_L1, POrvGuiTheme::colorBlue},
    };
    for (const auto& entry : tokens)
        sheet.replace(entry.token, entry.color.name());
    // The pictures of a look are those for text of its colour.
    const bool isDark = look.text.lightness() > look.window.lightness();
    return sheet.replace("$look$"_L1, isDark ? "dark"_L1 : "light"_L1);
}

} // namespace Hueloft
