// SPDX-License-Identifier: MIT
#include "timelinepane.h"

#include "session/clock.h"
#include "session/selection.h"
#include "timelinemenu.h"
#include "timelinepreview.h"

#include <CorvelGui/Ruler>
#include <CorvelGui/TimelineLanes>
#include <CorvelGui/ZoomTimeline>

#include <QFontInfo>
#include <QVBoxLayout>

using CorvelGui::Ruler;
using CorvelGui::RulerContext;
using CorvelGui::RulerMarker;
using CorvelGui::RulerMarkerOperation;
using CorvelGui::TimeSpan;
using CorvelGui::TrackDescription;
using CorvelGui::ZoomTimeline;
using CorvelGui::ZoomTimelineOperation;

namespace Review {

namespace {

constexpr int smallestWidth = 300;
constexpr int mostLanes = 6;
constexpr qint64 spanAroundMarker = qint64(20) * 60 * 1'000;

QDateTime dateTime(qint64 msecs)
{
    return QDateTime::fromMSecsSinceEpoch(msecs);
}

} // namespace

TimelinePane::TimelinePane(const Clock& clock, Selection& selection, QWidget* parent)
    : Translated(parent)
    , m_clock(clock)
    , m_selection(selection)
    , m_timeline(new ZoomTimeline(this))
    , m_ruler(m_timeline->ruler())
{
    m_timeline->setOrvaneGuiTheme(true);
    m_timeline->setActive(true, false);
    m_timeline->setTimeZone(clock.zoneName());
    m_ruler->setMinimumWidth(smallestWidth);
    m_ruler->setIndicatorDragEnabled(true);
    m_timeline->lanes()->setMaximumLanes(mostLanes);
    m_ruler->setFollowMode(Ruler::FollowMode::Pages);
    m_ruler->setCalendarTicks(true);
    m_ruler->setFineWheel(true);
    m_ruler->setTouchGestures(true);
    m_ruler->setEdgeScrolling(true);
    setDragSelects(false);
    followFont();
    retranslate();

    connect(m_ruler, &Ruler::timeLineViewChanged, this, &TimelinePane::viewChanged);
    connect(m_ruler, &Ruler::indicatorPositionChanged, this,
            [this](quint64 msecs) { m_selection.setMoment(qint64(msecs)); });
    connect(m_ruler, &Ruler::jumpToTime, this, [this](const QDateTime& time, const QUuid& marker) {
        m_selection.goTo(time.toMSecsSinceEpoch());
        Q_EMIT markerChosen(marker);
    });
    connect(m_ruler, &Ruler::jumpToTrackTime, this,
            [this](const QDateTime& time, const QUuid& marker) {
                showAround(time.toMSecsSinceEpoch(), spanAroundMarker);
                m_selection.setMoment(time.toMSecsSinceEpoch());
                Q_EMIT markerChosen(marker);
            });
    connect(m_timeline, &ZoomTimeline::heldChanged, &selection, &Selection::setHeld);
    connect(new TimelinePreview(m_ruler), &TimelinePreview::changed, this,
            [this](qint64 msecs, int x, const TimeSpan& symbol) {
                Q_EMIT previewChanged(msecs, m_ruler->mapTo(this, QPoint(x, 0)), symbol);
            });
    connect(m_ruler, &Ruler::viewSettled, this, &TimelinePane::viewSettled);
    connect(m_ruler, &Ruler::zoomHistoryMoved, this, &TimelinePane::viewChanged);
    connect(m_timeline, &ZoomTimeline::contextRequested, this, &TimelinePane::openMenu);
    connect(m_ruler, &Ruler::selectedRangeChanged, this, &TimelinePane::selectedRangeChanged);
    connect(m_ruler, &Ruler::followingChanged, this, &TimelinePane::followingChanged);
    connect(&clock, &Clock::changed, this, [&] { m_timeline->setTimeZone(clock.zoneName()); });
    connect(&selection, &Selection::momentChanged, this, &TimelinePane::followMoment);
    connect(&selection, &Selection::cameraChanged, this,
            [this] { m_timeline->setCurrentTrack(m_selection.camera()); });
    connect(m_timeline, &ZoomTimeline::currentTrackChanged, &selection, &Selection::setCamera);
    connect(&selection, &Selection::viewWanted, this, &TimelinePane::bringIntoView);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_timeline);
}

void TimelinePane::setPeriod(const TimeSpan& period)
{
    m_period = period;
    m_ruler->setZoomHistory(false);
    m_timeline->setTimeLimits(quint64(period.begin), quint64(period.end));
    clearRanges();
    if (period.isEmpty())
        Q_EMIT viewChanged();
    else
        showWholePeriod();
    m_ruler->setZoomHistory(true);
}

void TimelinePane::extendPeriod(const TimeSpan& period)
{
    const bool showedAll = showsWholePeriod();
    m_timeline->setTimeLimits(quint64(period.begin), quint64(period.end));
    // Less than a pixel waits for more.
    const auto [begin, end] = m_ruler->getTimeLimits();
    m_period = {.begin = qint64(begin), .end = qint64(end)};
    if (showedAll && !showsWholePeriod())
        showWholePeriod();
}

void TimelinePane::setTracks(const QList<TrackDescription>& tracks)
{
    m_ruler->setTrackDescriptions(tracks);
}

void TimelinePane::clearMarkers()
{
    m_ruler->onClearMarkers();
}

void TimelinePane::addMarkers(const QList<RulerMarker>& markers)
{
    m_ruler->onAddMarkers(markers);
}

void TimelinePane::setMarkersShown(bool shown)
{
    m_ruler->onMarkerOperation(
        {.markers = {}, .code = shown ? RulerMarkerOperation::show : RulerMarkerOperation::hide});
}

void TimelinePane::setActivityShown(bool shown)
{
    m_timeline->setActivityVisible(shown);
}

void TimelinePane::setEventDetailsShown(bool shown)
{
    m_ruler->setMarkerDetails(shown);
    m_ruler->setMergedClick(shown ? Ruler::MergedClick::List : Ruler::MergedClick::Jump);
}

void TimelinePane::setLanesShown(bool shown)
{
    m_timeline->setLanesVisible(shown);
}

void TimelinePane::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        followFont();
    Translated::changeEvent(event);
}

void TimelinePane::followFont()
{
    m_timeline->setFontSize(QFontInfo(font()).pointSize());
}

void TimelinePane::retranslate()
{
    m_ruler->setAccessibleName(tr("Timeline"));
    m_timeline->lanes()->setAccessibleName(tr("Cameras on the timeline"));
}

void TimelinePane::followMoment()
{
    // Asked of the ruler, whose indicator may have been the first to move.
    const quint64 msecs = quint64(m_selection.moment());
    if (msecs != m_ruler->exactIndicatorMSecs())
        m_timeline->setIndicatorPosition(msecs);
}

void TimelinePane::bringIntoView(qint64 msecs)
{
    // Both ends count, as they do for the indicator.
    const TimeSpan shown = view();
    if (msecs < shown.begin || msecs > shown.end)
        m_ruler->centerOn(msecs);
}

void TimelinePane::showAround(qint64 msecs, qint64 span)
{
    m_ruler->setView(msecs - span / 2, msecs + span / 2);
}

void TimelinePane::showRange(const TimeSpan& range)
{
    m_ruler->setView(range.begin, range.end);
}

void TimelinePane::openMenu(const RulerContext& context)
{
    if (!context.time)
        return;
    auto* menu = new TimelineMenu(this, context, m_clock);
    connect(menu, &TimelineMenu::timeWanted, this,
            [this](qint64 msecs) { m_selection.goTo(msecs); });
    connect(menu, &TimelineMenu::eventWanted, this, &TimelinePane::eventWanted);
    menu->popup(context.globalPosition);
}

void TimelinePane::setSearchRange(const TimeSpan& range)
{
    m_searchRange = range;
    m_timeline->onZoomTimeLineOperation({.code = ZoomTimelineOperation::setSearchRange,
                                         .from = dateTime(range.begin),
                                         .to = dateTime(range.end)});
}

void TimelinePane::setResultRange(const TimeSpan& range, const ResultLook& look)
{
    m_ruler->setResultTimeRange(dateTime(range.begin), dateTime(range.end), look.markBegin,
                                look.markEnd, look.onlyInside, look.zoom);
}

void TimelinePane::clearRanges()
{
    m_searchRange = {};
    setSelectedRange({});
    m_timeline->onZoomTimeLineOperation({.code = ZoomTimelineOperation::clearSearchRange});
    m_ruler->setResultTimeRange({}, {}, false, false, false, false);
}

TimeSpan TimelinePane::selectedRange() const
{
    return m_ruler->selectedRange();
}

TimeSpan TimelinePane::chosenRange() const
{
    return selectedRange().isEmpty() ? m_searchRange : selectedRange();
}

void TimelinePane::beginRangeAt(qint64 msecs)
{
    m_ruler->setSelectedRangeBegin(msecs);
}

void TimelinePane::endRangeAt(qint64 msecs)
{
    m_ruler->setSelectedRangeEnd(msecs);
}

void TimelinePane::setSelectedRange(const TimeSpan& range)
{
    m_ruler->setSelectedRange(range);
}

TimeSpan TimelinePane::view() const
{
    return m_ruler->view();
}

bool TimelinePane::showsWholePeriod() const
{
    return view() == m_period;
}

bool TimelinePane::isFollowing() const
{
    return m_ruler->isFollowing();
}

bool TimelinePane::canZoomIn() const
{
    return m_ruler->canZoomIn();
}

bool TimelinePane::canZoomOut() const
{
    const TimeSpan shown = view();
    return shown.end - shown.begin < m_period.end - m_period.begin;
}

// What is left to move must be worth a pixel: zooming rounds the view to whole milliseconds.
bool TimelinePane::canStepEarlier() const
{
    return pixelsBetween(m_period.begin, view().begin) >= 1;
}

bool TimelinePane::canStepLater() const
{
    return pixelsBetween(view().end, m_period.end) >= 1;
}

bool TimelinePane::hasPreviousView() const
{
    return m_ruler->canZoomBack();
}

bool TimelinePane::hasNextView() const
{
    return m_ruler->canZoomForward();
}

void TimelinePane::showMoment()
{
    if (m_ruler->followMode() == Ruler::FollowMode::Off)
        bringIntoView(m_selection.moment());
    else
        m_ruler->resumeFollowing();
}

void TimelinePane::showPreviousView()
{
    m_ruler->zoomBack();
}

void TimelinePane::showNextView()
{
    m_ruler->zoomForward();
}

void TimelinePane::setFreeZoom(bool on)
{
    m_ruler->setContinuousZoom(on);
    Q_EMIT viewChanged();
}

void TimelinePane::setDragSelects(bool on)
{
    m_ruler->setRangeSelection(on ? Ruler::RangeSelection::Drag : Ruler::RangeSelection::ShiftDrag);
}

void TimelinePane::setFollowMode(Ruler::FollowMode mode)
{
    m_ruler->setFollowMode(mode);
}

void TimelinePane::zoomIn()
{
    // Levels that are longer than the period all show the whole of it.
    const TimeSpan before = view();
    while (canZoomIn() && view() == before)
        m_ruler->zoomIn();
}

void TimelinePane::zoomOut()
{
    m_ruler->zoomOut();
}

void TimelinePane::showWholePeriod()
{
    m_ruler->setView(m_period.begin, m_period.end);
}

void TimelinePane::stepEarlier()
{
    m_ruler->centerOn(view().begin);
}

void TimelinePane::stepLater()
{
    m_ruler->centerOn(view().end);
}

double TimelinePane::pixelsBetween(qint64 begin, qint64 end) const
{
    return m_ruler->xAt(end) - m_ruler->xAt(begin);
}

} // namespace Review
