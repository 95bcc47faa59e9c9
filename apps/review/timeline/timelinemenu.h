// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/RulerContext>

#include <QMenu>

namespace Review {

class Clock;
class TimelinePane;

/// What can be done at a time on the timeline: its context menu. Deletes itself when it is closed.
class TimelineMenu : public QMenu
{
    Q_OBJECT

public:
    /// @p context has a time.
    TimelineMenu(TimelinePane* timeline, const CorvelGui::RulerContext& context,
                 const Clock& clock);

Q_SIGNALS:
    void timeWanted(qint64 msecs);
    /// The next event (+1) or the previous one (-1) is wanted.
    void eventWanted(qint64 msecs, int direction);

private:
    void addRangeActions();

    TimelinePane* const m_timeline;
    const qint64 m_time;
};

} // namespace Review
