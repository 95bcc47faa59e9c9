// SPDX-License-Identifier: MIT
#include "rulerhover.h"

#include "base/whilealive.h"
#include "rulermarkers.h"
#include "timescale.h"

#include <QCursor>
#include <QDateTime>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <utility>

namespace CorvelGui {

namespace {

constexpr int timerInterval = 100; // milliseconds

} // namespace

RulerHover::RulerHover(QWidget* ruler, const TimeScale& scale, RulerMarkers& markers)
    : QObject(ruler), m_ruler(ruler), m_scale(scale), m_markers(markers), m_timer(this)
{
    m_timer.setInterval(timerInterval);
    connect(&m_timer, &QTimer::timeout, this, &RulerHover::onMouseTimerTimeout);
    connect(&markers, &RulerMarkers::hovered, this, &RulerHover::movedOnMarker);
}

void RulerHover::setUsable(bool usable)
{
    m_usable = usable;
    if (!usable && (m_timer.isActive() || m_stopUntold))
        stop();
}

void RulerHover::setEnabled(bool enabled)
{
    m_enabled = enabled;
    if (!enabled) {
        m_visible = false;
        stop();
    } else if (m_hovering) {
        start(m_ruler->mapFromGlobal(QCursor::pos()));
    }
}

void RulerHover::setPreview(bool visible, bool pending)
{
    m_visible = visible;
    m_pending = pending;
}

void RulerHover::enter(QPoint position)
{
    m_hovering = true;
    m_inArea = isInArea(position);
    start(position);
}

void RulerHover::leave()
{
    m_hovering = false;
    m_inArea = false;
    m_markers.hoverNothing();
    stopLater();
}

void RulerHover::abandon()
{
    m_hovering = false;
    m_inArea = false;
    if (m_timer.isActive())
        stopLater();
}

void RulerHover::moved(QPoint position)
{
    m_rules.mouseMoved(position, HoverPreview::Clock::now());
    m_inArea = isInArea(position);
}

void RulerHover::movedOnMarker(QPoint position)
{
    m_rules.mouseMoved(position, HoverPreview::Clock::now());
    if (!m_timer.isActive())
        start(position);
}

void RulerHover::movedOnIndicator(QPoint position)
{
    m_rules.mouseMoved(position, HoverPreview::Clock::now());
}

void RulerHover::hover(QPoint position)
{
    m_markers.hoverAt(position);
    if (!m_inArea && m_timer.isActive())
        stop();
    else if (m_inArea && !m_timer.isActive())
        start(position);
}

void RulerHover::resume(QPoint position)
{
    if (m_inArea)
        start(position);
}

bool RulerHover::isInArea(QPoint position) const
{
    return position.y() >= 0 && position.y() <= m_areaHeight;
}

void RulerHover::start(QPoint position)
{
    if (!m_usable || !m_enabled || !m_ruler->isVisible())
        return;
    m_rules.start(position, m_scale.viewStartMs(), HoverPreview::Clock::now());
    m_timer.start();
}

void RulerHover::stop()
{
    m_timer.stop();
    m_stopUntold = true;
    tellStop();
}

// Within the events that call this Qt still holds the ruler and its parents, which a receiver may
// want to delete.
void RulerHover::stopLater()
{
    m_timer.stop();
    m_stopUntold = true;
    QTimer::singleShot(0, this, &RulerHover::tellStop);
}

void RulerHover::tellStop()
{
    if (std::exchange(m_stopUntold, false))
        Q_EMIT previewPositionChanged(0, m_rules.mousePosition(), false);
}

void RulerHover::onMouseTimerTimeout()
{
    HoverPreview::Situation situation{.dragging = m_dragging,
                                      .visible = m_visible,
                                      .pending = m_pending,
                                      .markerHovered = m_markers.hoveredButton() != nullptr,
                                      .viewStart = m_scale.viewStartMs()};
    // Close up, half a second may be more than the whole view.
    constexpr double smallestMove = 3; // pixels
    if (m_scale.isBetweenLevels())
        situation.smallestViewMove = std::min(
            situation.smallestViewMove, qint64(smallestMove / m_scale.lengthPerMillisecond()));
    if (m_rules.isDue(situation, HoverPreview::Clock::now()))
        emitPrviewPositionChanged();
}

void RulerHover::emitPrviewPositionChanged()
{
    const auto previewMarker = [this] {
        const RulerMarkerButton* button = m_markers.takeHovered();
        if (!button)
            return;
        const qint64 msecs = button->marker().time.toMSecsSinceEpoch();
        if (m_scale.isWithinLimits(msecs))
            Q_EMIT previewPositionChanged(quint64(msecs), button->geometry().center(), true);
    };
    const auto previewMousePosition = [this] {
        m_rules.emitted(m_scale.viewStartMs());
        const QPoint position = m_rules.mousePosition();
        if (!m_scale.isOnScale(position.x()) || !m_scale.hasView())
            return;
        const qint64 msecs = m_scale.msecsAt(position.x());
        if (m_scale.isWithinLimits(msecs))
            Q_EMIT previewPositionChanged(quint64(msecs), position, false);
    };
    whileAlive(this, previewMarker, previewMousePosition);
}

void RulerHover::checkPreviewLine(const QDateTime& previewTime)
{
    if (!previewTime.isValid() || !m_scale.hasView())
        return;
    const double x = m_scale.xAt(previewTime.toMSecsSinceEpoch());
    const int column =
        int(std::lround(std::max(std::min(x, m_scale.sightEnd()), TimeScale::halfMargin())));
    if (column != m_rules.lastPosition().x())
        Q_EMIT previewIndicatorPositionChanged(QPoint(column, m_rules.lastPosition().y()));
}

} // namespace CorvelGui
