// SPDX-License-Identifier: MIT
#include "viewrest.h"

#include "ruler_p.h"

#include <algorithm>
#include <utility>

namespace CorvelGui {

namespace {

constexpr int settlingTime = 150; // milliseconds

} // namespace

ViewRest::ViewRest(Ruler* ruler, Ruler::Private& rulerState)
    : QObject(ruler), m_ruler(ruler), d(rulerState), m_timer(this)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(settlingTime);
    connect(&m_timer, &QTimer::timeout, this, &ViewRest::tell);
}

void ViewRest::listen()
{
    if (!std::exchange(m_listening, true))
        m_timer.start();
}

void ViewRest::notice()
{
    const TimeScale::View view = d.scale.shownView();
    if (std::exchange(m_noticed, view) != view && m_listening)
        m_timer.start();
}

void ViewRest::tell()
{
    if (!d.scale.hasView()) {
        m_told = {};
        return;
    }
    const TimeSpan view = m_ruler->view();
    const TimeSpan known{std::max(view.begin, d.scale.beginLimitMs()),
                         std::min(view.end, d.scale.endLimitMs())};
    const TimeSpans added = difference(joined({known}), joined({std::exchange(m_told, known)}));
    Q_EMIT m_ruler->viewSettled(view, QList<TimeSpan>(added.begin(), added.end()));
}

} // namespace CorvelGui
