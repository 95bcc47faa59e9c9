// SPDX-License-Identifier: MIT
#include "timelinemenu.h"

#include "session/clock.h"
#include "timelinepane.h"

#include <QClipboard>
#include <QGuiApplication>

using CorvelGui::RulerContext;
using CorvelGui::TimeSpan;

namespace Review {

TimelineMenu::TimelineMenu(TimelinePane* timeline, const RulerContext& context, const Clock& clock)
    : QMenu(timeline), m_timeline(timeline), m_time(context.time.value_or(0))
{
    setAttribute(Qt::WA_DeleteOnClose);
    const QString time = clock.times().exactDateTime(m_time);
    addAction(tr("Go to %1").arg(time), this, [this] { Q_EMIT timeWanted(m_time); });
    addAction(tr("Copy this time"), this, [time] { QGuiApplication::clipboard()->setText(time); });
    addAction(tr("Zoom in here"), this, [this] {
        const TimeSpan view = m_timeline->view();
        m_timeline->showAround(m_time, (view.end - view.begin) / 4);
    })->setEnabled(timeline->canZoomIn());
    addSeparator();
    addAction(tr("Previous event"), this, [this] { Q_EMIT eventWanted(m_time, -1); });
    addAction(tr("Next event"), this, [this] { Q_EMIT eventWanted(m_time, +1); });
    addSeparator();
    addRangeActions();
}

void TimelineMenu::addRangeActions()
{
    addAction(tr("Range begins here"), this, [this] { m_timeline->beginRangeAt(m_time); });
    addAction(tr("Range ends here"), this, [this] { m_timeline->endRangeAt(m_time); });
    const TimeSpan range = m_timeline->selectedRange();
    QAction* zoom = addAction(tr("Zoom to the selected range"), this,
                              [this, range] { m_timeline->showRange(range); });
    QAction* clear = addAction(tr("Clear the selected range"), this,
                               [this] { m_timeline->setSelectedRange({}); });
    for (QAction* action : {zoom, clear})
        action->setEnabled(!range.isEmpty());
}

} // namespace Review
