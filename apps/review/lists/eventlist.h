#pragma once

#include "data/reviewdata.h"

#include <QHash>
#include <QSet>

#include <vector>

namespace Review {

/// The events, what their tracks are called, and which of them are left out because the user does
/// not want to see their tracks. Events are known by their numbers in the order of time.
class EventList
{
public:
    EventList() = default;
    explicit EventList(const ReviewData& review);

    qsizetype size() const { return m_events.size(); }
    const Event& event(qsizetype index) const { return m_events[index]; }
    /// The name of the track that an event belongs to; empty if it belongs to none.
    QString trackName(qsizetype index) const;

    /// Leaves out the events of these tracks; at first none. Returns whether that was a change.
    bool setHiddenTracks(const QSet<QString>& identifiers);
    bool isShown(qsizetype index) const;
    /// Numbers of the events that are not left out, in their order.
    const std::vector<qsizetype>& shownEvents() const { return m_shown; }
    /// Those of them that happened within @p span.
    QList<Event> eventsIn(const CorvelGui::TimeSpan& span) const;

private:
    void findShown();

    QList<Event> m_events;
    QHash<QString, QString> m_trackNames;
    QSet<QString> m_hiddenTracks;
    std::vector<qsizetype> m_shown;
};

} // namespace Review
