// SPDX-License-Identifier: MIT
#include "edgescroll.h"

#include "ruler_p.h"

#include <algorithm>
#include <utility>

namespace CorvelGui {

namespace {

constexpr int scrollInterval = 40; // milliseconds
constexpr double slowestStep = 4;  // pixels
constexpr double fastestStep = 60;

} // namespace

EdgeScroll::EdgeScroll(Ruler* ruler, Ruler::Private& rulerState)
    : QObject(ruler), d(rulerState), m_timer(this)
{
    m_timer.setInterval(scrollInterval);
    connect(&m_timer, &QTimer::timeout, this, &EdgeScroll::step);
}

void EdgeScroll::dragTo(int x)
{
    m_x = x;
    if (way() == 0)
        m_timer.stop();
    else if (!m_timer.isActive())
        m_timer.start();
}

bool EdgeScroll::stop()
{
    m_timer.stop();
    return std::exchange(m_moved, false);
}

// What a step moves the view by, in pixels; negative towards earlier times.
double EdgeScroll::way() const
{
    const double left = TimeScale::margin();
    const double right = std::max(d.scale.width() - TimeScale::margin(), left);
    if (m_x <= left)
        return -std::min(left - m_x + slowestStep, fastestStep);
    if (m_x >= right)
        return std::min(m_x - right + slowestStep, fastestStep);
    return 0;
}

void EdgeScroll::step()
{
    const TimeScale::View before = d.scale.shownView();
    const double margin = TimeScale::margin();
    const auto scroll = [&] {
        d.gestures->moveViewSoThat(d.scale.fineTimeAt(margin), margin - way());
    };
    if (!whileAlive(this, scroll) || !m_timer.isActive())
        return;
    if (d.scale.shownView() == before) {
        m_timer.stop();
        return;
    }
    m_moved = true;
    Q_EMIT moved();
}

} // namespace CorvelGui
