#pragma once

#include "data/reviewdata.h"

#include <CorvelGui/RulerMarker>

#include <QUuid>

namespace Review {

/// Makes markers of events, and finds a marker's event again.
class EventMarkers
{
public:
    EventMarkers() = delete;

    /// A marker for the event with the number @p index.
    static CorvelGui::RulerMarker marker(const Event& event, qsizetype index,
                                         const QString& trackName);

    /// Kind and text of an event; the text is left out where it only repeats the kind.
    static QString textOf(const Event& event);
    static QUuid identifierOf(qsizetype index);
    /// The number of the event; -1 for an identifier that is not of an event.
    static qsizetype indexOf(const QUuid& identifier);
};

} // namespace Review
