// SPDX-License-Identifier: MIT
#include "vectoriconengine.h"

#include <QHash>
#include <QPaintDevice>
#include <QPainter>
#include <QPixmap>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Hueloft {

struct VectorIconEngine::Private
{
    const Draw draw;
    const int nominalSize;
    QHash<std::pair<QIcon::Mode, QIcon::State>, QPixmap> replacements{};
};

VectorIconEngine::VectorIconEngine(const Draw& draw, int nominalSize)
    : d(new Private{.draw = draw, .nominalSize = nominalSize})
{}

VectorIconEngine::VectorIconEngine(const Private& other) : d(std::make_unique<Private>(other)) {}

VectorIconEngine::~VectorIconEngine() = default;

void VectorIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
                             QIcon::State state)
{
    const int side = std::min(rect.width(), rect.height());
    if (side <= 0)
        return;
    const QRect square(rect.x() + (rect.width() - side) / 2, rect.y() + (rect.height() - side) / 2,
                       side, side);

    painter->save();
    if (const auto replacement = d->replacements.constFind({mode, state});
        replacement != d->replacements.cend()) {
        const QSize pixels = square.size() * painter->device()->devicePixelRatioF();
        painter->drawPixmap(
            square, replacement->scaled(pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    } else {
        painter->setRenderHint(QPainter::Antialiasing);
        d->draw(*painter, square, mode);
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
    QList<QSize> sizes{QSize(d->nominalSize, d->nominalSize)};
    for (const int side : {16, 24, 32, 48, 64, 128, 256}) {
        if (side != d->nominalSize)
            sizes << QSize(side, side);
    }
    return sizes;
}

void VectorIconEngine::addPixmap(const QPixmap& pixmap, QIcon::Mode mode, QIcon::State state)
{
    d->replacements.insert({mode, state}, pixmap);
}

QString VectorIconEngine::key() const
{
    return u"Hueloft::VectorIconEngine"_s;
}

QIconEngine* VectorIconEngine::clone() const
{
    return new VectorIconEngine(*d);
}

} // namespace Hueloft
