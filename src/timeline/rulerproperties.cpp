// SPDX-License-Identifier: MIT
// What clients set of the ruler, read again.

#include "ruler_p.h"

namespace CorvelGui {

QString Ruler::timeZone() const
{
    const QTimeZone& zone = d->scale.timeZone();
    return zone.isValid() ? QString::fromUtf8(zone.id()) : QString();
}

bool Ruler::isIndicatorDragEnabled() const
{
    return d->indicatorDragEnabled;
}

bool Ruler::isPreviewEnabled() const
{
    return d->hover->isEnabled();
}

bool Ruler::isSearchTimeRangeDisplayed() const
{
    return d->searchDisplayed;
}

TimeSpan Ruler::searchTimeRange() const
{
    return d->searchRange.value_or(TimeSpan());
}

TimeSpan Ruler::resultTimeRange() const
{
    return d->resultRange.value_or(TimeSpan());
}

bool Ruler::areMarkersVisible() const
{
    return d->markers->isShown();
}

void Ruler::setMarkersVisible(bool visible)
{
    if (visible)
        onShowMarkers();
    else
        onHideMarkers();
}

QSize Ruler::iconSize() const
{
    return d->iconSize;
}

bool Ruler::hasOrvaneGuiTheme() const
{
    return d->theme;
}

unsigned int Ruler::fontSize() const
{
    return d->fontSize;
}

QString Ruler::dateFormat() const
{
    return d->dateFormat;
}

QColor Ruler::headerColor() const
{
    return d->painter.colors.header;
}

QColor Ruler::bodyColor() const
{
    return d->painter.colors.body;
}

bool Ruler::isResultMode() const
{
    return d->resultMode;
}

bool Ruler::isPlayMode() const
{
    return d->playMode;
}

void Ruler::makeActive(bool active)
{
    setActive(active, d->blocked);
}

bool Ruler::isActive() const
{
    return d->active;
}

void Ruler::setBlocked(bool blocked)
{
    setActive(d->active, blocked);
}

bool Ruler::isBlocked() const
{
    return d->blocked;
}

} // namespace CorvelGui
