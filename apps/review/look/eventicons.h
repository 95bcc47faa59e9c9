// SPDX-License-Identifier: MIT
#pragma once

#include "data/eventkind.h"

#include <CorvelGui/RulerMarker>

namespace Review {

/// The icons of events, one for each kind, distinct by shape and by colour. A marker's icon index
/// is the kind's number.
class EventIcons : public CorvelGui::IRulerMarkerIconProvider
{
public:
    /// For the timeline, which is dark in both looks.
    static QIcon onTimeline(EventKind kind);
    /// For lists: in the colours of the look that is active at the time of painting.
    static QIcon inList(EventKind kind);

    int iconKey(int iconIndex) override { return iconIndex; }
    QIcon icon(int iconIndex) override { return onTimeline(EventKind(iconIndex)); }
};

} // namespace Review
