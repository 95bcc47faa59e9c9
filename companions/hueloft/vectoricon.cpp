// SPDX-License-Identifier: MIT
#include "vectoricon.h"

#include "vectoriconengine.h"

#include <QPaintDevice>
#include <QPainter>

namespace Hueloft {

namespace {

void draw(const VectorIcon& icon, QPainter& painter, const QRect& square, QIcon::Mode mode)
{
    const IconGrid grid(qRound(square.width() * painter.device()->devicePixelRatioF()));
    const qreal pixelSize = square.width() / grid.toPixels(IconGrid::units);
    painter.translate(square.topLeft());
    painter.scale(pixelSize, pixelSize);
    const QPainterPath outline = icon.shape(grid);
    if (icon.outlined) {
        constexpr QColor rim(16, 18, 20);
        painter.fillPath(grid.stroked(outline, 2.0 * grid.strokeWidth()), rim);
    }
    painter.fillPath(outline, iconColor(icon.ink, mode));
}

} // namespace

QIcon vectorIcon(const VectorIcon& icon)
{
    const auto drawIcon = [icon](QPainter& painter, const QRect& square, QIcon::Mode mode) {
        draw(icon, painter, square, mode);
    };
    return QIcon(new VectorIconEngine(drawIcon, icon.nominalSize));
}

} // namespace Hueloft
