// SPDX-License-Identifier: MIT
#pragma once

#include "lists/eventlist.h"
#include "look/eventicons.h"

#include <QObject>
#include <QTimer>

namespace Review {

class TimelinePane;

/// Puts the markers of events on the timeline: some milliseconds at a time, so that a million of
/// them keep nothing waiting. They say their texts when they are looked at.
class MarkerFeed : public QObject, private EventIcons
{
    Q_OBJECT

public:
    /// Belongs to @p timeline.
    explicit MarkerFeed(TimelinePane* timeline);

    /// Replaces all markers by those of the events that are not left out.
    void show(const EventList& events);
    /// The same where there are none before those that are shown already: these stay.
    void goOn(const EventList& events);
    /// Whether there are markers still to come.
    bool isBusy() const { return m_timer.isActive(); }

Q_SIGNALS:
    /// Emitted when all of the markers are there.
    void finished();

private:
    QString text(const CorvelGui::RulerMarker& marker) const override;
    void begin(const EventList& events);
    void feed();

    TimelinePane* const m_timeline;
    EventList m_events;
    QList<EventKind> m_kinds; ///< by their numbers
    qsizetype m_next = 0;
    QTimer m_timer;
};

} // namespace Review
