// SPDX-License-Identifier: MIT
#pragma once

#include "times.h"
#include "timescale.h"

/// A scale with 1000 pixels of a period from @p begin, with @p level in view from the begin.
inline CorvelGui::TimeScale scaleOf(qint64 duration, int level = 1, qint64 begin = monday,
                                    const QTimeZone& zone = QTimeZone::utc())
{
    CorvelGui::TimeScale scale;
    scale.setWidth(1020);
    scale.setTimeZone(zone);
    scale.setTimeLimits(quint64(begin), quint64(begin + duration));
    scale.changeLevel(level, 0.0);
    return scale;
}
