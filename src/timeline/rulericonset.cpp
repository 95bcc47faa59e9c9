#include "rulericonset.h"

#include <Hueloft/PIconHelper>
#include <Hueloft/POrvGuiTheme>

#include <QImage>
#include <QPainter>
#include <QPixmap>

#include <algorithm>

using Hueloft::PIconHelper;
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

double visibleWidthFraction(const QPixmap& picture)
{
    const QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
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

QIcon iconInBothStates(const QPixmap& picture)
{
    QIcon icon;
    icon.addPixmap(picture, QIcon::Normal, QIcon::Off);
    icon.addPixmap(picture, QIcon::Normal, QIcon::On);
    return icon;
}

} // namespace

RulerIconSet setupRulerIconSet(const QIcon& icon)
{
    RulerIconSet set;
    const QPixmap picture = icon.pixmap(masterSize, 1.0, QIcon::Active, QIcon::Off);
    if (picture.isNull())
        return set;
    set.normal = iconInBothStates(picture);
    set.normal.addPixmap(icon.pixmap(masterSize, 1.0, QIcon::Normal, QIcon::Off), QIcon::Active);
    set.hover = iconInBothStates(filled(picture, POrvGuiTheme::colorLightRed));
    set.alternativeHover = iconInBothStates(filled(picture, POrvGuiTheme::colorOrange));
    set.visibleFraction = visibleWidthFraction(picture);
    return set;
}

MergedRulerIcons setupMergedRulerIcons()
{
    QPixmap transparent(masterSize);
    transparent.fill(Qt::transparent);
    return {setupRulerIconSet(PIconHelper::GetMergerd_48x48(true)), iconInBothStates(transparent)};
}

} // namespace CorvelGui
