// SPDX-License-Identifier: MIT
#include "rulermarkerbutton.h"

#include "frame/stringhelper.h"
#include "markerbadge.h"
#include "rulericonset.h"

#include <Hueloft/POrvGuiTheme>

#include <QPainter>

using Hueloft::POrvGuiTheme;

namespace CorvelGui {

namespace {

constexpr QSize initialIconSize(16, 16);
constexpr QSize initialButtonSize(16, 18);

} // namespace

RulerMarkerButton::RulerMarkerButton(const RulerIconSet* mergedIcons, QWidget* ruler)
    : QPushButton(ruler), m_mergedIcons(mergedIcons), m_badge(std::make_unique<MarkerBadge>())
{
    setFlat(true);
    setFocusPolicy(Qt::NoFocus);
    setMouseTracking(true);
    setCursor(Qt::PointingHandCursor);
    setIconSize(initialIconSize);
    setFixedSize(initialButtonSize);
}

RulerMarkerButton::~RulerMarkerButton() = default;

void RulerMarkerButton::setMarker(const RulerMarker& marker, const RulerIconSet* icons)
{
    m_marker = marker;
    m_icons = icons;
    m_hovered = false;
    m_alternativeHover = false;
    resetToolTip();
    setAccessibleName(marker.text);
    redraw();
}

void RulerMarkerButton::setMerge(Merge merge)
{
    if (m_merge == merge)
        return;
    m_merge = merge;
    resetToolTip();
    redraw();
}

void RulerMarkerButton::setBadge(const MarkerBadge& badge)
{
    if (*m_badge == badge)
        return;
    *m_badge = badge;
    setAccessibleDescription(badge.count > 1 ? tr("Markers: %1").arg(badge.count) : QString());
    redraw();
}

QSize RulerMarkerButton::badgeSize() const
{
    return m_badge->size(font());
}

void RulerMarkerButton::setHovered(bool hovered)
{
    if (m_hovered == hovered)
        return;
    m_hovered = hovered;
    redraw();
}

void RulerMarkerButton::setAlternativeHover(bool on)
{
    if (m_alternativeHover == on)
        return;
    m_alternativeHover = on;
    redraw();
}

void RulerMarkerButton::setOrvaneGuiTheme(bool on)
{
    if (m_theme == on)
        return;
    m_theme = on;
    redraw();
}

void RulerMarkerButton::moveTo(int centerX, const QRect& markerArea)
{
    m_centerX = centerX;
    move(centerX - width() / 2, markerArea.top() + (markerArea.height() - height()) / 2);
}

void RulerMarkerButton::resetToolTip()
{
    setToolTip(StringHelper::plainToolTip(m_marker.text));
}

void RulerMarkerButton::redraw()
{
    if (parentWidget())
        parentWidget()->update(geometry());
}

void RulerMarkerButton::draw(QPainter& painter) const
{
    // Painted here and not by a style sheet, because there are many of these.
    if (m_hovered && m_theme) {
        QColor backdrop = POrvGuiTheme::colorPanther;
        backdrop.setAlpha(140);
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(backdrop);
        painter.drawRoundedRect(rect(), 3, 3);
        painter.restore();
    }
    const QPixmap picture = shownPicture();
    if (picture.isNull())
        return;
    const QSize free = size() - picture.deviceIndependentSize().toSize();
    const int top = m_badge->isNull() ? free.height() / 2 : 0;
    painter.drawPixmap(free.width() / 2, top, picture);
    m_badge->draw(painter, font(), rect());
}

void RulerMarkerButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    draw(painter);
}

void RulerMarkerButton::showEvent(QShowEvent* event)
{
    QPushButton::showEvent(event);
    redraw();
}

void RulerMarkerButton::hideEvent(QHideEvent* event)
{
    QPushButton::hideEvent(event);
    redraw();
}

QPixmap RulerMarkerButton::shownPicture() const
{
    using State = RulerIconSet::State;
    if (m_merge == Merge::MergedAway && !m_hovered)
        return {};
    const RulerIconSet& icons = m_merge == Merge::Representative ? *m_mergedIcons : *m_icons;
    const State state = !m_hovered           ? State::Normal
                        : m_alternativeHover ? State::AlternativeHover
                                             : State::Hover;
    return icons.picture(state, iconSize().boundedTo(size()), devicePixelRatioF());
}

} // namespace CorvelGui
