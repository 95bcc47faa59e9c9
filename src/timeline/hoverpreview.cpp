// SPDX-License-Identifier: MIT
#include "hoverpreview.h"

using namespace std::chrono_literals;

namespace CorvelGui {

namespace {

constexpr auto restTime = 100ms;
// A whole millisecond more than the round figures: a preview comes after them, not with them.
constexpr auto visibleDelay = 101ms;
constexpr auto pendingDelay = 151ms;
constexpr auto firstDelay = 301ms;
constexpr int smallestMove = 3; // pixels

} // namespace

void HoverPreview::start(QPoint position, qint64 viewStart, Clock::time_point now)
{
    m_lastPosition = QPoint(-1, -1);
    m_lastViewStart = viewStart;
    mouseMoved(position, now);
}

void HoverPreview::mouseMoved(QPoint position, Clock::time_point now)
{
    m_mousePosition = position;
    m_lastMove = now;
}

bool HoverPreview::isDue(const Situation& situation, Clock::time_point now) const
{
    const auto resting = now - m_lastMove;
    if (situation.dragging || resting < restTime)
        return false;
    if (!situation.visible)
        return resting >= (situation.pending ? pendingDelay : firstDelay);

    const bool mouseMoved = qAbs(m_mousePosition.x() - m_lastPosition.x()) > smallestMove;
    const bool viewMoved = qAbs(situation.viewStart - m_lastViewStart) > situation.smallestViewMove;
    return (situation.markerHovered || mouseMoved || viewMoved) && resting >= visibleDelay;
}

void HoverPreview::emitted(qint64 viewStart)
{
    m_lastPosition = m_mousePosition;
    m_lastViewStart = viewStart;
}

} // namespace CorvelGui
