// SPDX-License-Identifier: MIT
#include "loadinghatch.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr double hatchStep = 8;
constexpr QRgb hatchGround = qRgb(30, 33, 38);
constexpr QRgb hatchStripe = qRgb(78, 86, 98);

QPixmap hatchTile(double ratio)
{
    const int side = std::max(int(std::lround(hatchStep * ratio)), 3);
    const QString key = u"corvelgui-loading-%1-%2"_s.arg(side).arg(ratio);
    QPixmap cached;
    if (QPixmapCache::find(key, &cached))
        return cached;
    QImage tile(side, side, QImage::Format_RGB32);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x)
            tile.setPixel(x, y, (x + y) % side < side / 3 ? hatchStripe : hatchGround);
    }
    tile.setDevicePixelRatio(ratio);
    cached = QPixmap::fromImage(tile);
    QPixmapCache::insert(key, cached);
    return cached;
}

} // namespace

void fillLoading(QPainter& painter, const QList<QRectF>& areas)
{
    if (areas.isEmpty())
        return;
    const QPixmap tile = hatchTile(painter.device()->devicePixelRatioF());
    const QSizeF size = tile.deviceIndependentSize();
    for (const QRectF& area : areas)
        painter.drawTiledPixmap(
            area, tile, {std::fmod(area.x(), size.width()), std::fmod(area.y(), size.height())});
}

} // namespace CorvelGui
