// SPDX-License-Identifier: MIT
#include "viewfollower.h"

#include "timescale.h"

#include <algorithm>
#include <cmath>

namespace CorvelGui {

void ViewFollower::setMode(Mode mode)
{
    m_mode = mode;
    m_yielded = false;
}

bool ViewFollower::follow(TimeScale& scale, qint64 now) const
{
    if (!isFollowing() || !scale.hasView())
        return false;
    const qint64 start = startFor(scale, now);
    if (start == scale.viewStartMs())
        return false;
    scale.setViewStart(scale.inZone(start));
    return true;
}

void ViewFollower::notice(const TimeScale& scale, qint64 now)
{
    const double offset = double(startFor(scale, now) - scale.viewStartMs());
    m_yielded = std::abs(offset) * scale.lengthPerMillisecond() >= 1.0;
}

qint64 ViewFollower::startFor(const TimeScale& scale, qint64 now) const
{
    if (m_mode == Mode::Centered)
        return scale.startAround(now);
    const qint64 start = scale.viewStartMs();
    const qint64 span = scale.viewEndMs() - start;
    if (m_mode == Mode::Smooth)
        return scale.startWithinLimits(std::clamp(start, now - (span - span / 4), now - span / 4));
    if (start <= now && now <= scale.viewEndMs())
        return start;
    const qint64 distance = now - start;
    const qint64 pages = distance / span - (distance % span < 0 ? 1 : 0);
    return scale.startWithinLimits(start + pages * span);
}

} // namespace CorvelGui
