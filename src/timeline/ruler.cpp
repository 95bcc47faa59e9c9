// SPDX-License-Identifier: MIT
#include "activityhistogram.h"
#include "ruler_p.h"

#include <Corvel/TimeZoneHelper>

#include <QLocale>

#include <utility>

using Corvel::TimeZoneHelper;
using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr int initialHeight = 60;
constexpr int minimumRulerWidth = 800;

std::optional<TimeSpan> span(const QDateTime& from, const QDateTime& to)
{
    if (!from.isValid() || !to.isValid() || !(from < to))
        return {};
    return TimeSpan{from.toMSecsSinceEpoch(), to.toMSecsSinceEpoch()};
}

} // namespace

Ruler::Ruler(QWidget* parent) : QWidget(parent), d(std::make_unique<Private>())
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(minimumRulerWidth, initialHeight);
    setMaximumHeight(initialHeight);
    d->focus = new KeyboardFocus(this);

    d->dateFormat = u"dd.MM.yy"_s;
    d->headerHeight = initialHeight / 4;
    d->scale.setWidth(width());
    d->indicator = new Indicator(this);
    d->indicator->hide();
    d->range = std::make_unique<RulerRange>(this, *d);
    d->arrows = new RulerArrows(this);
    // Above the indicator, so that a double click on a marker does not end on an indicator that
    // followed the first.
    d->markers = new RulerMarkers(this, d->range->lowestWidget());
    connect(d->markers, &RulerMarkers::pressed, this, &Ruler::jumpToTime);
    connect(d->markers, &RulerMarkers::mergedActivated, this, &Ruler::openMerged);
    connect(d->markers, &RulerMarkers::doubleClicked, this, &Ruler::jumpToTrackTime);
    d->hover = std::make_unique<RulerHover>(this, d->scale, *d->markers);
    connect(d->hover.get(), &RulerHover::previewPositionChanged, this,
            &Ruler::previewPositionChanged);
    connect(d->hover.get(), &RulerHover::previewIndicatorPositionChanged, this,
            &Ruler::previewIndicatorPositionChanged);
    // An arrow covers the ruler, and is at no time of the scale.
    connect(d->arrows, &RulerArrows::entered, d->hover.get(), &RulerHover::abandon);
    d->hover->setAreaHeight(2 * d->headerHeight);
    d->gestures = std::make_unique<RulerGestures>(this, *d);
    d->rest = std::make_unique<ViewRest>(this, *d);
    d->zoomInput = std::make_unique<RulerZoomInput>(this, *d);
    d->touch = std::make_unique<RulerTouch>(this, *d);

    setUpAccessibility();
    applyLook();
    setActive(false, false);
    layOutChildren();
}

Ruler::~Ruler() = default;

void Ruler::setTimeLimits(quint64 begin, quint64 end)
{
    const QDateTime oldViewStart = d->scale.viewStart();
    const quint64 oldSpan = d->scale.millisecondsPerLevel();
    const auto [oldBegin, oldEnd] = getTimeLimits();
    d->scale.setTimeLimits(begin, end);
    // Views of quite another period are of no use.
    if (oldEnd <= begin || end <= oldBegin)
        d->history.clear();

    const auto announceFirstView = [&] {
        if (!oldViewStart.isValid() && d->scale.hasView())
            Q_EMIT centerPositionChanged(getCurrentCenterPosition());
    };
    const auto keepIndicatorWithinLimits = [this] {
        // No indicator counts as one at the epoch: it comes to the begin of the first period.
        const qint64 indicator = qint64(d->exactIndicator);
        if (indicator < d->scale.beginLimitMs())
            setIndicatorPosition(quint64(d->scale.beginLimitMs()));
        else if (d->scale.endLimitMs() < indicator)
            setIndicatorPosition(quint64(d->scale.endLimitMs()));
    };
    if (!whileAlive(this, announceFirstView, keepIndicatorWithinLimits,
                    [this] { d->range->followLimits(); }))
        return;

    const bool viewChanged = d->scale.hasView() && d->scale.viewStart() != oldViewStart;
    if (viewChanged || d->scale.millisecondsPerLevel() != oldSpan)
        followView();
    else
        updateTrackSegments();
    whileAlive(
        this, [&] { updateChildren(viewChanged); },
        [&] {
            if (viewChanged || d->segments.isTrackLimitChanged(d->scale))
                changedTimeLineView(false);
        },
        [this] { reportZoomHistory(); }, [this] { Q_EMIT activityChanged(); });
}

std::pair<quint64, quint64> Ruler::getTimeLimits() const
{
    return {quint64(d->scale.beginLimitMs()), quint64(d->scale.endLimitMs())};
}

quint64 Ruler::getTotalDuration() const
{
    return d->scale.totalDuration();
}

void Ruler::setTimeZone(const QString& name)
{
    const QTimeZone zone =
        name.isEmpty() ? QTimeZone() : QTimeZone(TimeZoneHelper::getTimeZone(name).toUtf8());
    d->scale.setTimeZone(zone);
    d->clock.setZone(zone);
}

void Ruler::applyTimeZone()
{
    d->scale.applyTimeZone();
    update();
    whileAlive(
        this, [this] { updateChildren(false); },
        [this] {
            if (d->scale.hasView())
                changedTimeLineView(false);
        });
}

quint64 Ruler::beginTime() const
{
    return quint64(d->scale.viewStartMs());
}

quint64 Ruler::endTime() const
{
    return quint64(d->scale.viewEndMs());
}

int Ruler::getNrOfZooomLevels() const
{
    return TimeScale::levelCount;
}

int Ruler::level() const
{
    return d->scale.level();
}

double Ruler::getCurrentCenterPosition() const
{
    return d->scale.getCurrentCenterPosition();
}

double Ruler::getPosition(const QDateTime& time) const
{
    return d->scale.getPosition(time.toMSecsSinceEpoch());
}

double Ruler::lengthPerMillisecond() const
{
    return d->scale.lengthPerMillisecond();
}

bool Ruler::setIndicatorPosition(quint64 msecs)
{
    const quint64 current = getIndicatorMSecs();
    const quint64 distance = msecs > current ? msecs - current : current - msecs;
    if (distance == 0 || double(distance) * lengthPerMillisecond() < 1.0) {
        showIndicatorTime(msecs);
        if (!d->gestures->isDraggingIndicator())
            d->exactIndicator = msecs;
        return false;
    }
    if (d->gestures->isDraggingIndicator())
        return true;
    if (msecs == 0) {
        setIndicatorTime(QDateTime());
        updateChildren(false);
        return true;
    }

    setIndicatorTime(d->scale.inZone(TimeScale::instant(msecs)));
    if (d->follower.mode() != FollowMode::Off) {
        const bool moved = followIndicator();
        whileAlive(
            this, [&] { moved ? viewMoved(false) : updateChildren(false); },
            [this] {
                if (!isFollowing())
                    noticeView();
            });
    } else if (d->scale.pageTo(d->indicatorTime)) {
        followView();
        whileAlive(
            this, [this] { updateChildren(true); }, [this] { changedTimeLineView(false); });
    } else {
        updateChildren(false);
    }
    return true;
}

quint64 Ruler::getIndicatorMSecs() const
{
    return d->indicatorTime.isValid() ? quint64(d->indicatorTime.toMSecsSinceEpoch()) : 0;
}

quint64 Ruler::exactIndicatorMSecs() const
{
    return d->exactIndicator;
}

double Ruler::getIndicatorPosition() const
{
    return d->scale.getPosition(qint64(getIndicatorMSecs()));
}

void Ruler::setSearchTimeRange(const QDateTime& from, const QDateTime& to, bool adjustZoom)
{
    d->searchRange = span(from, to);
    update();
    if (adjustZoom)
        setLevelFromTimeRange(from, to);
}

void Ruler::resetSearchTimeRange()
{
    setSearchTimeRange(QDateTime(), QDateTime(), false);
}

void Ruler::displaySearchTimeRange(bool display)
{
    if (d->searchDisplayed == display)
        return;
    d->searchDisplayed = display;
    update();
}

void Ruler::setResultTimeRange(const QDateTime& from, const QDateTime& to, bool markBegin,
                               bool markEnd, bool onlyInside, bool adjustZoom)
{
    d->resultRange = span(from, to);
    d->resultBeginMarked = markBegin;
    d->resultEndMarked = markEnd;
    d->markers->setRange(onlyInside ? d->resultRange : std::nullopt);
    whileAlive(
        this, [this] { updateChildren(true); }, [this] { update(); },
        [&] {
            if (adjustZoom)
                setLevelFromTimeRange(from, to);
        });
}

void Ruler::onMarkerOperation(RulerMarkerOperation operation)
{
    switch (operation.code) {
    case RulerMarkerOperation::show:
        return onShowMarkers();
    case RulerMarkerOperation::hide:
        return onHideMarkers();
    case RulerMarkerOperation::clear:
        return onClearMarkers();
    case RulerMarkerOperation::add:
        return onAddMarkers(operation.markers);
    case RulerMarkerOperation::remove:
        return onRemoveMarkers(operation.markers);
    default:
        return;
    }
}

void Ruler::onAddMarkers(const QList<RulerMarker>& markers)
{
    d->markers->add(markers);
    markersChanged();
}

void Ruler::onRemoveMarkers(const QList<RulerMarker>& markers)
{
    d->markers->remove(markers);
    markersChanged();
}

void Ruler::onClearMarkers()
{
    d->markers->clear();
    update();
    Q_EMIT activityChanged();
}

void Ruler::markersChanged()
{
    whileAlive(
        this, [this] { updateChildren(true); }, [this] { Q_EMIT activityChanged(); });
}

TimelineActivity Ruler::activity(int columns) const
{
    const TimeSpan period =
        d->scale.hasView() ? TimeSpan{d->scale.beginLimitMs(), d->scale.endLimitMs()} : TimeSpan();
    ActivityHistogram histogram(period, columns);
    histogram.cover(difference(d->segments.gapSpans(), d->segments.loadingSpans()),
                    TimelineActivity::Recording::Gap);
    histogram.cover(d->segments.recordedSpans(), TimelineActivity::Recording::Recorded);
    d->markers->store().forEach([&histogram](qint64 msecs, RulerMarker::Severity severity) {
        histogram.add(msecs, severity);
    });
    return histogram.take();
}

void Ruler::onShowMarkers()
{
    if (d->markers->setShown(true))
        updateChildren(true);
}

void Ruler::onHideMarkers()
{
    if (!d->markers->setShown(false))
        return;
    updateSize();
    updateChildren(true);
}

void Ruler::setIconSize(const QSize& size)
{
    d->iconSize = size;
    d->markers->setIconSize(size);
    updateChildren(true);
}

void Ruler::setResultMode(bool on)
{
    d->resultMode = on;
}

void Ruler::setPlayMode(bool on)
{
    d->playMode = on;
}

void Ruler::blockSignalTimeLineViewChanged(bool block)
{
    d->viewChangeBlocked = block;
}

void Ruler::processTimeLineViewChanges()
{
    if (std::exchange(d->viewChangePending, false))
        emitTimeLineViewChanged(false);
}

void Ruler::onTimelineOffsetChanged(double position)
{
    if (!d->scale.centerOnPosition(position))
        return;
    followView();
    whileAlive(
        this, [this] { updateChildren(true); }, [this] { changedTimeLineView(false); },
        [this] { noticeView(); });
}

void Ruler::onTimeLineViewSettingsNeeded()
{
    QTimer::singleShot(0, this, [this] { changedTimeLineView(false); });
}

// What goes with every other view. Steps of the indicator that were less than a pixel of the old
// one may be more now.
void Ruler::followView()
{
    if (d->exactIndicator != getIndicatorMSecs())
        setIndicatorTime(d->exactIndicator == 0
                             ? QDateTime()
                             : d->scale.inZone(TimeScale::instant(d->exactIndicator)));
    updateTrackSegments();
}

void Ruler::setUpAccessibility()
{
    const auto begin = [this] {
        return double(d->scale.beginLimitMs());
    };
    d->accessible = std::make_unique<AccessibleRange>(
        this, AccessibleRange::Description{
                  .role = QAccessible::Slider,
                  .name = [] { return tr("Timeline"); },
                  .minimum = begin,
                  .maximum = [this] { return double(d->scale.endLimitMs()); },
                  .value =
                      [this, begin] {
                          return d->indicatorTime.isValid() ? double(d->exactIndicator) : begin();
                      },
                  .step = [this] { return double(d->scale.millisecondsPerMinorDivision()); },
                  .text =
                      [this] {
                          if (!d->indicatorTime.isValid())
                              return tr("No position");
                          const qint64 time = qint64(d->exactIndicator);
                          return QLocale().toString(d->scale.inZone(time)) + d->whichOfTwo(time);
                      },
                  .move =
                      [this](double msecs) {
                          if (d->takesInput() && d->scale.hasView())
                              d->gestures->moveIndicatorTo(qint64(msecs));
                      }});
}

void Ruler::setIndicatorTime(const QDateTime& time)
{
    d->indicatorTime = time;
    d->exactIndicator = getIndicatorMSecs();
    d->accessible->reportValueChange();
}

void Ruler::changedTimeLineView(bool moving)
{
    if (d->viewChangeBlocked)
        d->viewChangePending = true;
    else
        emitTimeLineViewChanged(moving);
}

void Ruler::emitTimeLineViewChanged(bool moving)
{
    const TimeScale& scale = d->scale;
    QDateTime viewBegin = scale.getDateTime(0.0);
    if (viewBegin < scale.beginLimit())
        viewBegin = scale.beginLimit();
    const QDateTime viewEnd = scale.viewStart().addMSecs(qint64(scale.millisecondsPerLevel()));
    Q_EMIT timeLineViewChanged(scale.beginLimit(), scale.endLimit(), viewBegin, viewEnd, moving);
}

void Ruler::viewMovedByUser(bool moving)
{
    whileAlive(
        this, [&] { viewMoved(moving); }, [this] { noticeView(); });
}

void Ruler::viewMoved(bool moving)
{
    followView();
    whileAlive(
        this, [this] { updateChildren(true); },
        [this] { Q_EMIT centerPositionChanged(getCurrentCenterPosition()); },
        [&] { changedTimeLineView(moving); });
}

} // namespace CorvelGui
