// SPDX-License-Identifier: MIT
#include "colourspage.h"

#include <Hueloft/POrvGuiTheme>

#include <QPainter>

#include <iterator>

using Hueloft::POrvGuiTheme;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

struct NamedColor
{
    QLatin1StringView name;
    const QColor& color;
};

const NamedColor namedColors[] = {
    {"colorBlack"_L1, POrvGuiTheme::colorBlack},
    {"colorPanther"_L1, POrvGuiTheme::colorPanther},
    {"colorShark"_L1, POrvGuiTheme::colorShark},
    {"colorElephant"_L1, POrvGuiTheme::colorElephant},
    {"colorGreyhound"_L1, POrvGuiTheme::colorGreyhound},
    {"colorKoala"_L1, POrvGuiTheme::colorKoala},
    {"colorTuna"_L1, POrvGuiTheme::colorTuna},
    {"colorDarkBlue"_L1, POrvGuiTheme::colorDarkBlue},
    {"colorBlue"_L1, POrvGuiTheme::colorBlue},
    {"colorGreen"_L1, POrvGuiTheme::colorGreen},
    {"colorYellow"_L1, POrvGuiTheme::colorYellow},
    {"colorOrange"_L1, POrvGuiTheme::colorOrange},
    {"colorLightRed"_L1, POrvGuiTheme::colorLightRed},
    {"colorPurple"_L1, POrvGuiTheme::colorPurple},
};

constexpr int columns = 4;
constexpr int margin = 16;
constexpr QSize tile(240, 96);
constexpr int gap = 12;

QColor textOn(const QColor& ground)
{
    return qGray(ground.rgb()) > 100 ? Qt::black : Qt::white;
}

QString valueText(const QColor& color)
{
    return u"%1   %2, %3, %4"_s.arg(color.name())
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue());
}

void drawTile(QPainter& painter, const QRect& area, const QString& name, const QColor& color)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(area, 4, 4);
    painter.setPen(textOn(color));
    const QRect text = area.adjusted(12, 12, -12, -12);
    painter.drawText(text, Qt::AlignLeft | Qt::AlignTop, name);
    painter.drawText(text, Qt::AlignLeft | Qt::AlignBottom, valueText(color));
}

QRect tileArea(int index)
{
    return QRect(QPoint(margin + index % columns * (tile.width() + gap),
                        margin + index / columns * (tile.height() + gap)),
                 tile);
}

} // namespace

ColoursPage::ColoursPage(QWidget* parent) : QWidget(parent)
{
    setMinimumSize(tileArea(columns - 1).right() + margin,
                   tileArea(int(std::size(namedColors))).bottom() + 3 * tile.height());
}

void ColoursPage::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    int index = 0;
    for (const NamedColor& entry : namedColors)
        drawTile(painter, tileArea(index++), entry.name, entry.color);
    drawTile(painter, tileArea(index++), u"statusRed()"_s, POrvGuiTheme::statusRed());

    // The labels of the time indicator, and status texts on the ground of the look.
    const int rowsTop = tileArea(index).bottom() + 2 * gap;
    QFont bold = font();
    bold.setBold(true);
    int x = margin;
    for (const QColor& color :
         {POrvGuiTheme::colorYellow, POrvGuiTheme::colorGreen, POrvGuiTheme::colorBlue}) {
        const QRect label(x, rowsTop, 140, 26);
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawRoundedRect(label, 5, 5);
        painter.setPen(Qt::black);
        painter.setFont(bold);
        painter.drawText(label, Qt::AlignCenter, u"31.03.24 14:30:05"_s);
        x += label.width() + gap;
    }

    painter.setFont(font());
    const std::pair<QString, QColor> states[] = {{u"Recording"_s, POrvGuiTheme::colorGreen},
                                                 {u"Updating"_s, POrvGuiTheme::colorBlue},
                                                 {u"Disk nearly full"_s, POrvGuiTheme::colorOrange},
                                                 {u"No connection"_s, POrvGuiTheme::statusRed()}};
    QRect ground(margin, rowsTop + 44, 4 * 150 + 24, 36);
    for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base}) {
        painter.fillRect(ground, palette().color(role));
        QRect text = ground.adjusted(12, 0, 0, 0);
        for (const auto& [state, color] : states) {
            painter.setPen(color);
            painter.drawText(text, Qt::AlignVCenter | Qt::AlignLeft, state);
            text.setLeft(text.left() + 150);
        }
        ground.translate(0, ground.height());
    }
}

} // namespace Gallery
