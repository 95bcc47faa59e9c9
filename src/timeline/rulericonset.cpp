// SPDX-License-Identifier: MIT
#include "rulericonset.h"

#include <Hueloft/POrvGuiTheme>

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <iterator>
#include <map>
#include <vector>

using Hueloft::POrvGuiTheme;

namespace CorvelGui {

namespace {

constexpr QSize masterSize(1000, 1000);

/// The shape of @p picture filled with one colour.
QPixmap filled(const QPixmap& picture, const QColor& color)
{
    QPixmap result = picture;
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(result.rect(), color);
    return result;
}

double visibleWidthFraction(const QImage& image)
{
    int left = image.width();
    int right = -1;
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        const auto* end = line + image.width();
        const auto isVisible = [](QRgb pixel) {
            return qAlpha(pixel) != 0;
        };
        const auto* first = std::find_if(line, end, isVisible);
        if (first == end)
            continue;
        const auto last =
            std::find_if(std::reverse_iterator(end), std::reverse_iterator(first), isVisible);
        left = std::min(left, int(first - line));
        right = std::max(right, int(last.base() - line) - 1);
    }
    return right < left ? 0.0 : double(right - left + 1) / image.width();
}

QPixmap fitted(const QImage& master, const QSize& size, qreal devicePixelRatio)
{
    const bool isSmaller = master.width() <= size.width() && master.height() <= size.height();
    const QSize logical =
        isSmaller ? master.size() : master.size().scaled(size, Qt::KeepAspectRatio);
    const QSize pixels = (QSizeF(logical) * devicePixelRatio).toSize().expandedTo({1, 1});
    QPixmap picture =
        QPixmap::fromImage(master.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    picture.setDevicePixelRatio(devicePixelRatio);
    return picture;
}

} // namespace

struct RulerIconSet::Pictures
{
    QSize size;
    qreal devicePixelRatio;
    QPixmap normal;
    QPixmap hover;
    QPixmap alternativeHover;
};

/// What copies of an icon have in common.
struct RulerIconSet::Source
{
    QIcon icon;
    double visibleFraction = 0.0;
    std::vector<std::weak_ptr<const Pictures>> pictures = {}; ///< each of another size
};

RulerIconSet::RulerIconSet(const QIcon& icon) : m_source(sourceOf(icon)) {}

double RulerIconSet::visibleFraction(const QSize& size, qreal devicePixelRatio) const
{
    provide(size, devicePixelRatio);
    return m_source->visibleFraction;
}

QPixmap RulerIconSet::picture(State state, const QSize& size, qreal devicePixelRatio) const
{
    provide(size, devicePixelRatio);
    switch (state) {
    case State::Hover:
        return m_pictures->hover;
    case State::AlternativeHover:
        return m_pictures->alternativeHover;
    default:
        return m_pictures->normal;
    }
}

std::shared_ptr<RulerIconSet::Source> RulerIconSet::sourceOf(const QIcon& icon)
{
    static std::map<qint64, std::weak_ptr<Source>> sources;
    std::erase_if(sources, [](const auto& entry) { return entry.second.expired(); });
    std::weak_ptr<Source>& known = sources[icon.cacheKey()];
    std::shared_ptr<Source> source = known.lock();
    if (!source)
        known = source = std::make_shared<Source>(Source{.icon = icon});
    return source;
}

void RulerIconSet::provide(const QSize& size, qreal devicePixelRatio) const
{
    const auto fits = [&](const Pictures& pictures) {
        return pictures.size == size && pictures.devicePixelRatio == devicePixelRatio;
    };
    if (m_pictures && fits(*m_pictures))
        return;
    std::erase_if(m_source->pictures, [](const auto& pictures) { return pictures.expired(); });
    for (const std::weak_ptr<const Pictures>& known : m_source->pictures) {
        if (const auto shared = known.lock(); fits(*shared)) {
            m_pictures = shared;
            return;
        }
    }
    auto pictures = std::make_shared<Pictures>(Pictures{size, devicePixelRatio, {}, {}, {}});
    const QImage master = m_source->icon.pixmap(masterSize, 1.0, QIcon::Active, QIcon::Off)
                              .toImage()
                              .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (!master.isNull()) {
        m_source->visibleFraction = visibleWidthFraction(master);
        pictures->normal = fitted(master, size, devicePixelRatio);
        pictures->hover = filled(pictures->normal, POrvGuiTheme::colorLightRed);
        pictures->alternativeHover = filled(pictures->normal, POrvGuiTheme::colorOrange);
    }
    m_source->pictures.push_back(pictures);
    m_pictures = std::move(pictures);
}

} // namespace CorvelGui
