// SPDX-License-Identifier: MIT
#pragma once

#include "data/reviewdata.h"

#include <QUuid>

namespace Review {

/// What markers have of their events, and how to find the event of a marker again.
class EventMarkers
{
public:
    EventMarkers() = delete;

    /// Kind and text of an event; the text is left out where it only repeats the kind.
    static QString textOf(const Event& event);
    static QUuid identifierOf(qsizetype index);
    /// The number of the event; -1 for an identifier that is not of an event.
    static qsizetype indexOf(const QUuid& identifier);
};

} // namespace Review
