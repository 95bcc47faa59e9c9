#include "vectoriconengine.h"

#include <QPaintDevice>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Hueloft {

VectorIconEngine::VectorIconEngine(const VectorIcon& icon) : m_icon(icon) {}

void VectorIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
                             QIcon::State state)
{
    const int side = std::min(rect.width(), rect.height());
    if (side <= 0)
        return;
    const QRect square(rect.x() + (rect.width() - side) / 2, rect.y() + (rect.height() - side) / 2,
                       side, side);

    painter->save();
    if (const auto replacement = m_replacements.constFind({mode, state});
        replacement != m_replacements.cend()) {
        const QSize pixels = square.size() * painter->device()->devicePixelRatioF();
        painter->drawPixmap(
            square, replacement->scaled(pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    } else {
        const IconGrid grid(qRound(side * painter->device()->devicePixelRatioF()));
        const qreal pixelSize = side / grid.toPixels(IconGrid::units);
        painter->translate(square.topLeft());
        painter->scale(pixelSize, pixelSize);
        painter->setRenderHint(QPainter::Antialiasing);
        const QPainterPath outline = m_icon.shape(grid);
        if (m_icon.outlined) {
            constexpr QColor rim(16, 18, 20);
            painter->fillPath(grid.stroked(outline, 2.0 * grid.strokeWidth()), rim);
        }
        painter->fillPath(outline, iconColor(m_icon.ink, mode));
    }
    painter->restore();
}

QPixmap VectorIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state)
{
    QPixmap pixmap(actualSize(size, mode, state));
    if (pixmap.isNull())
        return pixmap;
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, pixmap.rect(), mode, state);
    return pixmap;
}

QPixmap VectorIconEngine::scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                                       qreal /*scale*/)
{
    // The size is in device pixels already.
    return pixmap(size, mode, state);
}

QSize VectorIconEngine::actualSize(const QSize& size, QIcon::Mode /*mode*/, QIcon::State /*state*/)
{
    const int side = std::max(0, std::min(size.width(), size.height()));
    return QSize(side, side);
}

QList<QSize> VectorIconEngine::availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/)
{
    QList<QSize> sizes{QSize(m_icon.nominalSize, m_icon.nominalSize)};
    for (const int side : {16, 24, 32, 48, 64, 128, 256}) {
        if (side != m_icon.nominalSize)
            sizes << QSize(side, side);
    }
    return sizes;
}

void VectorIconEngine::addPixmap(const QPixmap& pixmap, QIcon::Mode mode, QIcon::State state)
{
    m_replacements.insert({mode, state}, pixmap);
}

QString VectorIconEngine::key() const
{
    return u"Hueloft::VectorIconEngine"_s;
}

QIconEngine* VectorIconEngine::clone() const
{
    return new VectorIconEngine(*this);
}

QIcon vectorIcon(const VectorIcon& icon)
{
    return QIcon(new VectorIconEngine(icon));
}

} // namespace Hueloft
