// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"
#include "pinputdatetimewithrange.h"

namespace CorvelGui {

/// A stretch of time whose ends are in one zone.
struct MomentRange
{
    QDateTime from;
    QDateTime to;

    bool operator==(const MomentRange&) const = default;
};

/// The range of @p preset at the moment @p now, in its zone; of invalid moments for a range of the
/// user's own.
CORVELGUI_INTERNAL_EXPORT MomentRange presetRange(PInputDateTimeWithRange::Preset preset,
                                                  const QDateTime& now);

} // namespace CorvelGui
