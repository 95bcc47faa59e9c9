// SPDX-License-Identifier: MIT
#include "colorchoice.h"

#include <Hueloft/VectorIconEngine>

#include <QColorDialog>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

#include <algorithm>

namespace CorvelGui {

namespace {

constexpr int opaque = 255;

void drawSwatch(QPainter& painter, const QRect& square, const QColor& color, QIcon::Mode mode)
{
    constexpr qreal disabledOpacity = 0.4;
    constexpr int cells = 4;
    if (mode == QIcon::Disabled)
        painter.setOpacity(disabledOpacity);
    painter.setRenderHint(QPainter::Antialiasing, false);
    const int rim = std::max(1, square.width() / 16);
    const QRect inside = square.adjusted(rim, rim, -rim, -rim);
    // The rim shows on every ground, whatever the colour is.
    QColor edge = QGuiApplication::palette().color(QPalette::WindowText);
    edge.setAlphaF(0.6F);
    painter.setPen(Qt::NoPen);
    painter.setBrush(edge);
    painter.drawRect(square);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(inside, Qt::white);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    if (color.alpha() < opaque) {
        const auto edgeOf = [&inside](int cell) {
            return cell * inside.width() / cells;
        };
        for (int row = 0; row < cells; ++row)
            for (int column = row % 2; column < cells; column += 2)
                painter.fillRect(
                    QRect(inside.topLeft() + QPoint(edgeOf(column), edgeOf(row)),
                          inside.topLeft() + QPoint(edgeOf(column + 1) - 1, edgeOf(row + 1) - 1)),
                    Qt::lightGray);
    }
    painter.fillRect(inside, color);
}

} // namespace

QIcon colorSwatch(const QColor& color)
{
    const auto draw = [color](QPainter& painter, const QRect& square, QIcon::Mode mode) {
        drawSwatch(painter, square, color, mode);
    };
    return QIcon(new Hueloft::VectorIconEngine(draw));
}

QString colorCode(const QColor& color)
{
    return color.name(color.alpha() < opaque ? QColor::HexArgb : QColor::HexRgb);
}

void openColorDialog(QWidget* parent, const QString& title, const QColor& initial, bool hasAlpha,
                     const std::function<void(const QColor&)>& take)
{
    auto* dialog = new QColorDialog(initial, parent);
    dialog->setOption(QColorDialog::ShowAlphaChannel, hasAlpha);
    dialog->setWindowTitle(title);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QColorDialog::colorSelected, parent, take, Qt::QueuedConnection);
    dialog->open();
}

} // namespace CorvelGui
