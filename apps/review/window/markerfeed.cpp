// SPDX-License-Identifier: MIT
#include "markerfeed.h"

#include "timeline/eventmarkers.h"
#include "timeline/timelinepane.h"

#include <QDateTime>
#include <QDeadlineTimer>

using CorvelGui::RulerMarker;
using namespace Qt::StringLiterals;

namespace Review {

namespace {

constexpr std::chrono::milliseconds slice(8);
constexpr qsizetype markersBetweenLooks = 256;

} // namespace

MarkerFeed::MarkerFeed(TimelinePane* timeline) : QObject(timeline), m_timeline(timeline)
{
    connect(&m_timer, &QTimer::timeout, this, &MarkerFeed::feed);
}

void MarkerFeed::show(const EventList& events)
{
    m_timeline->clearMarkers();
    m_next = 0;
    begin(events);
}

void MarkerFeed::goOn(const EventList& events)
{
    if (events.continues(m_events))
        begin(events);
    else
        show(events);
}

void MarkerFeed::begin(const EventList& events)
{
    m_events = events;
    m_kinds.clear();
    for (const QString& kind : m_events.events().kinds())
        m_kinds.append(EventKinds::parse(kind));
    m_timer.start(0);
    feed();
}

void MarkerFeed::feed()
{
    const QDeadlineTimer deadline(slice);
    const Events& events = m_events.events();
    QList<RulerMarker> markers;
    for (; m_next < events.size(); ++m_next) {
        if (m_next % markersBetweenLooks == 0 && deadline.hasExpired())
            break;
        if (!m_events.isShown(m_next))
            continue;
        const EventKind kind = m_kinds[events.kindAt(m_next)];
        markers.append({.identifier = EventMarkers::identifierOf(m_next),
                        .time = QDateTime::fromMSecsSinceEpoch(events.timeAt(m_next), Qt::UTC),
                        .kind = RulerMarker::providedIconKind,
                        .iconIndex = int(kind),
                        .text = {},
                        .iconProvider = this,
                        .duration = events.durationAt(m_next),
                        .severity = events.severityAt(m_next).value_or(Severities::ofKind(kind))});
    }
    m_timeline->addMarkers(markers);
    if (m_next < events.size())
        return;
    m_timer.stop();
    Q_EMIT finished();
}

QString MarkerFeed::text(const RulerMarker& marker) const
{
    const qsizetype event = EventMarkers::indexOf(marker.identifier);
    if (event < 0 || event >= m_events.events().size())
        return {};
    const QString text = EventMarkers::textOf(m_events.events()[event]);
    const QString& track = m_events.trackName(event);
    return track.isEmpty() ? text : text + u" – "_s + track;
}

} // namespace Review
