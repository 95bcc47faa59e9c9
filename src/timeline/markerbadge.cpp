// SPDX-License-Identifier: MIT
#include "markerbadge.h"

#include "severitycolors.h"

#include <Hueloft/POrvGuiTheme>

#include <QFontMetrics>
#include <QPainter>
#include <QPixmapCache>

#include <algorithm>

using Hueloft::POrvGuiTheme;
using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr int badgeHeight = 11;
constexpr int badgeTextHeight = 9;
constexpr int badgePadding = 3;
constexpr int dotSize = 6;

QFont badgeFont(QFont font)
{
    font.setPixelSize(badgeTextHeight);
    font.setBold(true);
    return font;
}

} // namespace

QString MarkerBadge::text() const
{
    if (count <= 1)
        return {};
    constexpr qsizetype thousand = 1'000;
    constexpr qsizetype million = thousand * thousand;
    if (count >= million)
        return QString::number(count / million) + u'M';
    return count >= thousand ? QString::number(count / thousand) + u'k' : QString::number(count);
}

QSize MarkerBadge::size(const QFont& font) const
{
    if (isNull())
        return {0, 0};
    if (count == 1)
        return {dotSize, dotSize};
    const int width = QFontMetrics(badgeFont(font)).horizontalAdvance(text());
    return {std::max(width + 2 * badgePadding, badgeHeight), badgeHeight};
}

// There are few that look different, and hundreds in a frame.
void MarkerBadge::draw(QPainter& painter, const QFont& font, const QRect& area) const
{
    if (isNull())
        return;
    const qreal ratio = painter.device()->devicePixelRatioF();
    const QString key =
        u"corvelgui-badge-%1-%2-%3-%4"_s.arg(text(), font.family()).arg(int(severity)).arg(ratio);
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        const QSize badge = size(font);
        picture = QPixmap(QSizeF(badge * ratio).toSize());
        picture.setDevicePixelRatio(ratio);
        picture.fill(Qt::transparent);
        QPainter drawing(&picture);
        drawOn(drawing, font, badge);
        drawing.end();
        QPixmapCache::insert(key, picture);
    }
    const QSize badge = picture.deviceIndependentSize().toSize();
    painter.drawPixmap(area.left() + (area.width() - badge.width()) / 2,
                       area.bottom() + 1 - badge.height(), picture);
}

void MarkerBadge::drawOn(QPainter& painter, const QFont& font, const QSize& badge) const
{
    const QRectF area(QPointF(), badge);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(POrvGuiTheme::colorPanther, 1));
    painter.setBrush(severityColor(severity));
    const double radius = area.height() / 2;
    painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter.setPen(POrvGuiTheme::colorBlack);
    painter.setFont(badgeFont(font));
    painter.drawText(area, Qt::AlignCenter, text());
}

} // namespace CorvelGui
