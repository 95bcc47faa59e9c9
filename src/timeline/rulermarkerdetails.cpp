// SPDX-License-Identifier: MIT
// What symbols show and do beyond standing for markers: counts, severities, durations, lists.

#include "markerbars.h"
#include "rulermarkers.h"
#include "timescale.h"

#include <QMouseEvent>

#include <algorithm>
#include <cstdlib>

namespace CorvelGui {

void RulerMarkers::setDetailed(bool on)
{
    m_detailed = on;
    m_changed = true;
}

MarkerBars RulerMarkers::bars(const TimeScale& scale) const
{
    return m_detailed && m_shown ? markerBars(m_store, scale, m_range) : MarkerBars();
}

MarkerBadge RulerMarkers::badgeOf(const Symbol& symbol) const
{
    if (!m_detailed)
        return {};
    return {qsizetype(symbol.last - symbol.first) + 1,
            m_store.worstSeverity(symbol.first, symbol.last + 1)};
}

QList<RulerMarker> RulerMarkers::markersOf(const MarkerSymbol& symbol, qsizetype most) const
{
    QList<RulerMarker> markers;
    for (std::size_t i = symbol.first; i <= symbol.last && markers.size() < most; ++i)
        markers.append(m_store.marker(i));
    return markers;
}

TimeSpan RulerMarkers::spanOf(const MarkerSymbol& symbol) const
{
    return {m_store.time(symbol.first), m_store.time(symbol.last)};
}

std::optional<qint64> RulerMarkers::nearestTime(qint64 msecs) const
{
    if (!m_shown)
        return {};
    const std::size_t first = m_range ? m_store.firstFrom(m_range->begin) : 0;
    const std::size_t end = m_range ? m_store.firstAfter(m_range->end) : m_store.size();
    const std::size_t next = std::clamp(m_store.firstFrom(msecs), first, end);
    std::optional<qint64> nearest;
    if (next > first)
        nearest = m_store.time(next - 1);
    if (next < end &&
        (!nearest || distanceOf(m_store.time(next), msecs) < distanceOf(*nearest, msecs)))
        nearest = m_store.time(next);
    return nearest;
}

std::optional<MarkerSymbol> RulerMarkers::mergedNear(int x) const
{
    const Symbol* nearest = nullptr;
    for (const Symbol& symbol : m_symbols) {
        if (symbol.first != symbol.last && std::abs(symbol.x - x) <= m_iconSize.width() &&
            (!nearest || std::abs(symbol.x - x) < std::abs(nearest->x - x)))
            nearest = &symbol;
    }
    return nearest ? std::optional(symbolWithPlace(*nearest)) : std::nullopt;
}

std::optional<MarkerSymbol> RulerMarkers::symbolAt(QPoint position) const
{
    const auto isThere = [position](const Symbol& symbol) {
        return symbol.button && symbol.button->geometry().contains(position);
    };
    const auto symbol = std::find_if(m_symbols.begin(), m_symbols.end(), isThere);
    return symbol != m_symbols.end() ? std::optional(symbolWithPlace(*symbol)) : std::nullopt;
}

std::optional<MarkerSymbol> RulerMarkers::mergedOn(const RulerMarkerButton* button) const
{
    for (const Symbol& symbol : m_symbols) {
        if (symbol.button == button && symbol.first != symbol.last)
            return symbolWithPlace(symbol);
    }
    return {};
}

MarkerSymbol RulerMarkers::symbolWithPlace(const Symbol& symbol) const
{
    const QPoint top(symbol.x, symbol.button ? symbol.button->y() : m_view.area.top());
    return {symbol.first, symbol.last, top};
}

// As a button does: pressed and released on it.
bool RulerMarkers::mergedEvent(RulerMarkerButton* button, const QMouseEvent* event)
{
    const std::optional<MarkerSymbol> symbol = m_opensMerged ? mergedOn(button) : std::nullopt;
    if (!symbol)
        return false;
    const bool isRelease = event->type() == QEvent::MouseButtonRelease;
    button->setAlternativeHover(!isRelease);
    if (isRelease && button->rect().contains(event->position().toPoint()))
        Q_EMIT mergedActivated(*symbol);
    return true;
}

} // namespace CorvelGui
