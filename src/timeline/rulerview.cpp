// SPDX-License-Identifier: MIT
// What clients ask of the ruler's view, and how it follows the indicator.

#include "ruler_p.h"

#include <QMetaMethod>

#include <utility>

namespace CorvelGui {

TimeSpan Ruler::view() const
{
    if (!d->scale.hasView())
        return {};
    return {.begin = d->scale.viewStartMs(), .end = d->scale.viewEndMs()};
}

qint64 Ruler::timeAt(double x) const
{
    return d->scale.hasView() ? d->scale.msecsAt(x) : 0;
}

double Ruler::xAt(qint64 msecs) const
{
    return d->scale.hasView() ? d->scale.xAt(msecs) : 0.0;
}

void Ruler::setView(qint64 from, qint64 to)
{
    showRange(from, to, false);
}

void Ruler::showRange(qint64 from, qint64 to, bool isOneOfSeveral)
{
    TimeScale& scale = d->scale;
    const TimeScale::View before = scale.shownView();
    const bool shown = d->continuousZoom ? scale.showSpan(from, to) : scale.setView(from, to);
    if (shown && scale.shownView() != before)
        viewZoomed({.before = before,
                    .how = isOneOfSeveral ? ViewHistory::Zoom::Turn : ViewHistory::Zoom::Whole});
}

void Ruler::centerOn(qint64 msecs)
{
    TimeScale& scale = d->scale;
    const qint64 start = scale.startAround(msecs);
    if (!scale.hasView() || start == scale.viewStartMs())
        return;
    scale.setViewStart(scale.inZone(start));
    viewMovedByUser(false);
}

void Ruler::connectNotify(const QMetaMethod& signal)
{
    if (signal == QMetaMethod::fromSignal(&Ruler::viewSettled))
        d->rest->listen();
}

Ruler::FollowMode Ruler::followMode() const
{
    return d->follower.mode();
}

void Ruler::setFollowMode(FollowMode mode)
{
    if (d->follower.mode() == mode)
        return;
    d->follower.setMode(mode);
    whileAlive(
        this, [&] { Q_EMIT followModeChanged(mode); }, [this] { resumeFollowing(); });
}

bool Ruler::isFollowing() const
{
    return d->follower.isFollowing();
}

void Ruler::resumeFollowing()
{
    d->follower.resume();
    whileAlive(
        this,
        [this] {
            if (followIndicator())
                viewMoved(false);
        },
        [this] { reportFollowing(); });
}

bool Ruler::followIndicator()
{
    return d->exactIndicator != 0 && !isHeld() &&
           d->follower.follow(d->scale, qint64(d->exactIndicator));
}

// For a user who moves the indicator, even where the view has yielded to him.
bool Ruler::bringIndicatorIntoView()
{
    return isFollowing() ? followIndicator() : d->scale.pageTo(d->indicatorTime);
}

void Ruler::noticeView()
{
    if (d->exactIndicator != 0 && d->scale.hasView())
        d->follower.notice(d->scale, qint64(d->exactIndicator));
    reportFollowing();
}

void Ruler::reportFollowing()
{
    if (std::exchange(d->followingReported, isFollowing()) != isFollowing())
        Q_EMIT followingChanged(isFollowing());
}

} // namespace CorvelGui
