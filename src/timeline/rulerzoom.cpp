// SPDX-License-Identifier: MIT
// How the ruler zooms: to a level or to any length of the view, and back.

#include "ruler_p.h"

#include <utility>

namespace CorvelGui {

namespace {

constexpr double middleOfView = 0.5;
constexpr double stepFactor = 2.0;

} // namespace

void Ruler::changeLevel(int level, double anchor)
{
    // About another place than the middle, the view is the user's.
    zoom(level, anchor, d->follower.mode() == FollowMode::Centered);
}

void Ruler::zoom(int level, double anchor, bool keepIndicator)
{
    const TimeScale::View before = d->scale.shownView();
    d->scale.changeLevel(level, anchor);
    if (keepIndicator)
        followIndicator();
    whileAlive(
        this, [&] { viewZoomed({.before = before, .how = ViewHistory::Zoom::Turn}); },
        [this] { repaint(); });
}

void Ruler::zoomAbout(double factor, double x)
{
    zoomTo(d->scale.exactSpan() / factor, d->scale.fineTimeAt(x), x, false);
}

void Ruler::zoomTo(double span, const FineTime& time, double x, bool moving)
{
    const TimeScale::View before = d->scale.shownView();
    d->scale.zoomTo(span, time, x);
    if (d->follower.mode() == FollowMode::Centered)
        followIndicator();
    if (d->scale.shownView() == before) {
        Q_EMIT changeSliderZoom(d->scale.level());
        return;
    }
    viewZoomed({.before = before,
                .how = isHeld() ? ViewHistory::Zoom::Gesture : ViewHistory::Zoom::Turn,
                .moving = moving});
}

void Ruler::setLevelFromTimeRange(const QDateTime& from, const QDateTime& to)
{
    const TimeScale::View before = d->scale.shownView();
    if (d->scale.setLevelFromTimeRange(from, to))
        viewZoomed({.before = before});
}

void Ruler::viewZoomed(const Zoomed& zoomed)
{
    const TimeScale::View now = d->scale.shownView();
    if (now != zoomed.before)
        followView();
    if (zoomed.remembered && d->zoomHistory && now.span != zoomed.before.span)
        d->history.zoomed(zoomed.before, zoomed.how, ViewHistory::Clock::now());
    whileAlive(
        this, [this] { updateChildren(true); },
        [this] { Q_EMIT changeSliderZoom(d->scale.level()); },
        [this] { Q_EMIT centerPositionChanged(getCurrentCenterPosition()); },
        [&] { changedTimeLineView(zoomed.moving); }, [this] { noticeView(); },
        [this] { reportZoomHistory(); });
}

void Ruler::onZoomerIn(int level, double anchor)
{
    const bool isShown = level == d->scale.level() && !d->scale.isBetweenLevels();
    if (!isShown && level >= 0)
        zoom(level, anchor, true);
}

void Ruler::onZoomerOut(int level, double anchor)
{
    const bool isShown = level == d->scale.level() && !d->scale.isBetweenLevels();
    if (isShown || level > TimeScale::wholeRangeLevel)
        return;
    if (d->scale.canZoomOut())
        zoom(level, anchor, true);
    else
        Q_EMIT changeSliderZoom(d->scale.level());
}

void Ruler::zoomIn()
{
    if (d->continuousZoom)
        zoomAbout(stepFactor, d->zoomColumn(width()));
    else
        onZoomerIn(d->scale.level() - 1, middleOfView);
}

void Ruler::zoomOut()
{
    if (d->continuousZoom)
        zoomAbout(1 / stepFactor, d->zoomColumn(width()));
    else
        onZoomerOut(d->scale.level() + 1, middleOfView);
}

double Ruler::Private::zoomColumn(int width) const
{
    const double x = scale.xAt(qint64(exactIndicator));
    return indicatorTime.isValid() && scale.isInSight(x) ? x : width / 2.0;
}

bool Ruler::canZoomIn() const
{
    if (!d->scale.hasView())
        return false;
    return d->continuousZoom ? d->scale.exactSpan() > d->scale.closestSpan() : d->scale.level() > 0;
}

bool Ruler::canZoomOut() const
{
    return d->scale.hasView() && d->scale.exactSpan() < double(d->scale.totalDuration());
}

bool Ruler::isContinuousZoom() const
{
    return d->continuousZoom;
}

void Ruler::setContinuousZoom(bool on)
{
    if (d->continuousZoom == on)
        return;
    d->continuousZoom = on;
    whileAlive(
        this,
        [this] {
            if (d->scale.isBetweenLevels())
                zoom(d->scale.level(), middleOfView, true);
            else
                updateChildren(false);
        },
        [this] {
            // Views between the levels are no longer possible.
            if (!d->continuousZoom)
                d->history.clear();
            update();
        },
        [this] { reportZoomHistory(); }, [&] { Q_EMIT continuousZoomChanged(on); });
}

bool Ruler::keepsZoomHistory() const
{
    return d->zoomHistory;
}

void Ruler::setZoomHistory(bool on)
{
    if (d->zoomHistory == on)
        return;
    d->zoomHistory = on;
    d->history.clear();
    whileAlive(
        this, [this] { reportZoomHistory(); }, [&] { Q_EMIT zoomHistoryChanged(on); });
}

bool Ruler::canZoomBack() const
{
    return d->history.canGoBack();
}

bool Ruler::canZoomForward() const
{
    return d->history.canGoForward();
}

void Ruler::zoomBack()
{
    goInZoomHistory(true);
}

void Ruler::zoomForward()
{
    goInZoomHistory(false);
}

void Ruler::goInZoomHistory(bool back)
{
    const TimeScale::View before = d->scale.shownView();
    const auto view = back ? d->history.back(before) : d->history.forward(before);
    if (!view || !d->scale.hasView())
        return;
    d->scale.show(*view);
    viewZoomed({.before = before, .remembered = false});
}

void Ruler::reportZoomHistory()
{
    const std::pair now(canZoomBack(), canZoomForward());
    if (std::exchange(d->historyReported, now) != now)
        Q_EMIT zoomHistoryMoved();
}

} // namespace CorvelGui
