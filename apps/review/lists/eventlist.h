// SPDX-License-Identifier: MIT
#pragma once

#include "data/reviewdata.h"

#include <QBitArray>
#include <QSet>

namespace Review {

/// The events, what their tracks are called, and which of them are left out because the user does
/// not want to see their tracks. Copies share the events.
class EventList
{
public:
    EventList() = default;
    explicit EventList(const ReviewData& review);

    const Events& events() const { return m_events; }
    /// What the tracks of Events::tracks() are called; an event without a track has an empty name.
    const QStringList& trackNames() const { return m_trackNames; }
    const QString& trackName(qsizetype event) const
    {
        return m_trackNames[m_events.trackAt(event)];
    }

    /// Leaves out the events of these tracks; at first none. Returns whether that was a change.
    bool setHiddenTracks(const QSet<QString>& identifiers);
    bool showsAll() const { return m_hidden.count(true) == 0; }
    bool isShown(qsizetype event) const { return !m_hidden.testBit(m_events.trackAt(event)); }
    /// Whether the events of @p other are known to come first, and the same ones of them are left
    /// out.
    bool continues(const EventList& other) const;
    /// Those that are not left out and happened within @p span.
    QList<qsizetype> eventsIn(const CorvelGui::TimeSpan& span) const;

private:
    Events m_events;
    QStringList m_trackNames;
    QBitArray m_hidden; ///< by the numbers of the tracks
};

} // namespace Review
