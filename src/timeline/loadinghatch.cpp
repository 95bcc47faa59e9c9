#include "loadinghatch.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <cmath>

namespace CorvelGui {

namespace {

constexpr double hatchStep = 8;
constexpr QRgb hatchGround = qRgb(30, 33, 38);
constexpr QRgb hatchStripe = qRgb(78, 86, 98);

QPixmap hatchTile(double ratio)
{
    const int side = std::max(int(std::lround(hatchStep * ratio)), 3);
    QImage tile(side, side, QImage::Format_RGB32);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x)
            tile.setPixel(x, y, (x + y) % side < side / 3 ? hatchStripe : hatchGround);
    }
    tile.setDevicePixelRatio(ratio);
    return QPixmap::fromImage(tile);
}

} // namespace

void fillLoading(QPainter& painter, const QRectF& rect)
{
    const QPixmap tile = hatchTile(painter.device()->devicePixelRatioF());
    const QSizeF size = tile.deviceIndependentSize();
    painter.drawTiledPixmap(
        rect, tile, {std::fmod(rect.x(), size.width()), std::fmod(rect.y(), size.height())});
}

} // namespace CorvelGui
