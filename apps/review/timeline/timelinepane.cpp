#include "timelinepane.h"

#include "session/clock.h"
#include "session/selection.h"

#include <CorvelGui/Indicator>
#include <CorvelGui/Ruler>
#include <CorvelGui/TimelineScroll>
#include <CorvelGui/ZoomTimeline>

#include <QMouseEvent>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <utility>

using CorvelGui::Ruler;
using CorvelGui::RulerMarker;
using CorvelGui::RulerMarkerOperation;
using CorvelGui::TimeSpan;
using CorvelGui::TrackDescription;
using CorvelGui::ZoomTimeline;
using CorvelGui::ZoomTimelineOperation;

namespace Review {

namespace {

constexpr double viewCentre = 0.5;
constexpr qint64 spanAroundMarker = qint64(20) * 60 * 1'000;

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
    m_ruler->setIndicatorDragEnabled(true);
    m_ruler->setPreviewEnabled(true);
    retranslate();

    connect(m_ruler, &Ruler::timeLineViewChanged, this, &TimelinePane::viewChanged);
    connect(m_ruler, &Ruler::indicatorPositionChanged, this, [this](quint64 msecs) {
        m_indicated = qint64(msecs);
        m_selection.setMoment(m_indicated);
    });
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
    connect(m_ruler, &Ruler::previewPositionChanged, this, &TimelinePane::showPreview);
    connect(&clock, &Clock::changed, this, &TimelinePane::followClock);
    connect(&selection, &Selection::momentChanged, this, &TimelinePane::followMoment);
    connect(&selection, &Selection::viewWanted, this, &TimelinePane::bringIntoView);

    for (QWidget* part : QList<QWidget*>{m_ruler, m_ruler->findChild<CorvelGui::Indicator*>(),
                                         m_timeline->timelineScroll()})
        part->installEventFilter(this);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_timeline);
}

void TimelinePane::setPeriod(const TimeSpan& period)
{
    m_period = period;
    m_timeline->setTimeLimits(quint64(period.begin), quint64(period.end));
    clearRanges();
    if (period.isEmpty())
        Q_EMIT viewChanged();
    else
        showWholePeriod();
}

void TimelinePane::setTracks(const QList<TrackDescription>& tracks)
{
    m_ruler->setTrackDescriptions(tracks);
}

void TimelinePane::setMarkers(const QList<RulerMarker>& markers)
{
    m_ruler->onMarkerOperation({.markers = {}, .code = RulerMarkerOperation::clear});
    m_ruler->onMarkerOperation({.markers = markers, .code = RulerMarkerOperation::add});
}

void TimelinePane::setMarkersShown(bool shown)
{
    m_ruler->onMarkerOperation(
        {.markers = {}, .code = shown ? RulerMarkerOperation::show : RulerMarkerOperation::hide});
}

void TimelinePane::followClock()
{
    m_timeline->setTimeZone(m_clock.zoneName());
    // The indicator's label follows when its time is set again.
    m_timeline->setIndicatorPosition(quint64(m_indicated));
}

void TimelinePane::retranslate()
{
    m_ruler->setAccessibleName(tr("Timeline"));
}

// One report for all that changes the view in one go.
template <typename Change>
void TimelinePane::changeView(Change change)
{
    m_ruler->blockSignalTimeLineViewChanged(true);
    change();
    m_timeline->timelineScroll()->onCenterPositionChanged(m_ruler->getCurrentCenterPosition());
    m_ruler->blockSignalTimeLineViewChanged(false);
    m_ruler->processTimeLineViewChanges();
}

void TimelinePane::followMoment()
{
    const qint64 msecs = m_selection.moment();
    if (msecs == m_indicated)
        return;
    if (!m_period.isEmpty() && !isInView(msecs)) {
        if (isInView(m_indicated))
            changeView([&] { turnPagesTo(msecs); });
        else
            placeIndicatorOutside(msecs);
    }
    m_indicated = msecs;
    m_timeline->setIndicatorPosition(quint64(msecs));
}

// The ruler follows its indicator wherever it is set.
void TimelinePane::placeIndicatorOutside(qint64 msecs)
{
    const TimeSpan shown = view();
    m_ruler->blockSignalTimeLineViewChanged(true);
    m_timeline->setIndicatorPosition(quint64(msecs));
    beginViewAt(shown.begin);
    m_timeline->timelineScroll()->onCenterPositionChanged(m_ruler->getCurrentCenterPosition());
    m_ruler->blockSignalTimeLineViewChanged(false);
}

void TimelinePane::bringIntoView(qint64 msecs)
{
    if (!m_period.isEmpty() && !isInView(msecs))
        changeView([&] { centreOn(msecs); });
}

void TimelinePane::showAround(qint64 msecs, qint64 span)
{
    if (m_period.isEmpty())
        return;
    changeView([&] {
        for (int level = 0; level <= m_ruler->getNrOfZooomLevels(); ++level) {
            m_ruler->changeLevel(level, viewCentre);
            if (qint64(m_ruler->endTime() - m_ruler->beginTime()) >= span)
                break;
        }
        centreOn(msecs);
    });
}

void TimelinePane::centreOn(qint64 msecs)
{
    const TimeSpan shown = view();
    beginViewWithin(msecs - (shown.end - shown.begin) / 2);
}

void TimelinePane::turnPagesTo(qint64 msecs)
{
    const TimeSpan shown = view();
    const qint64 page = shown.end - shown.begin;
    const qint64 distance = msecs - shown.begin;
    const qint64 pages = distance / page - (distance % page < 0 ? 1 : 0);
    beginViewWithin(shown.begin + pages * page);
}

void TimelinePane::beginViewWithin(qint64 msecs)
{
    const TimeSpan shown = view();
    const qint64 latest = m_period.end - (shown.end - shown.begin);
    beginViewAt(std::clamp(msecs, m_period.begin, std::max(m_period.begin, latest)));
}

void TimelinePane::beginViewAt(qint64 msecs)
{
    const TimeSpan shown = view();
    const qint64 middle = msecs + (shown.end - shown.begin) / 2;
    // The ruler cuts off what is less than a millisecond.
    constexpr double half = 0.5;
    m_ruler->onTimelineOffsetChanged((double(middle - m_period.begin) + half) /
                                     double(m_period.end - m_period.begin));
}

// As the ruler sees it, which lets an indicator stand on both ends.
bool TimelinePane::isInView(qint64 msecs) const
{
    const TimeSpan shown = view();
    return shown.begin <= msecs && msecs <= shown.end;
}

void TimelinePane::setSearchRange(const TimeSpan& range)
{
    m_searchRange = range;
    m_timeline->onZoomTimeLineOperation({.code = ZoomTimelineOperation::setSearchRange,
                                         .from = inZone(range.begin),
                                         .to = inZone(range.end)});
}

void TimelinePane::setResultRange(const TimeSpan& range, const ResultLook& look)
{
    m_ruler->setResultTimeRange(inZone(range.begin), inZone(range.end), look.markBegin,
                                look.markEnd, look.onlyInside, look.zoom);
}

void TimelinePane::clearRanges()
{
    m_searchRange = {};
    m_timeline->onZoomTimeLineOperation({.code = ZoomTimelineOperation::clearSearchRange});
    m_ruler->setResultTimeRange({}, {}, false, false, false, false);
}

void TimelinePane::showPreview(quint64 msecs, const QPoint& position, bool onMarker)
{
    // On a marker the ruler reports twice in a row: the marker, and the time under the mouse.
    if (std::exchange(m_markerPreviewed, onMarker && msecs > 0) && msecs > 0 && !onMarker)
        return;
    if (m_markerPreviewed)
        QTimer::singleShot(0, this, [this] { m_markerPreviewed = false; });
    m_ruler->setPreviewIndicatorPosition(msecs);
    m_ruler->onPreviewVisible(msecs > 0, false);
    Q_EMIT previewChanged(qint64(msecs), m_ruler->mapTo(this, QPoint(position.x(), 0)), onMarker);
}

bool TimelinePane::eventFilter(QObject* watched, QEvent* event)
{
    const auto isLeft = [event] {
        return static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    };
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        if (isLeft())
            m_selection.setHeld(true);
        break;
    case QEvent::MouseButtonRelease:
        if (isLeft())
            m_selection.setHeld(false);
        break;
    case QEvent::Hide:
    case QEvent::WindowDeactivate:
        // The release may go elsewhere, such as to a dialog.
        m_selection.setHeld(false);
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

TimeSpan TimelinePane::view() const
{
    if (m_period.isEmpty())
        return {};
    return {.begin = qint64(m_ruler->beginTime()), .end = qint64(m_ruler->endTime())};
}

bool TimelinePane::showsWholePeriod() const
{
    return view() == m_period;
}

bool TimelinePane::canZoomIn() const
{
    return !m_period.isEmpty() && m_ruler->level() > 0;
}

bool TimelinePane::canZoomOut() const
{
    const TimeSpan shown = view();
    return shown.end - shown.begin < m_period.end - m_period.begin;
}

// What is left to move must be worth a pixel: the ruler rounds its view to whole milliseconds.
bool TimelinePane::canStepEarlier() const
{
    return !m_period.isEmpty() && view().begin - m_period.begin >= msecsPerPixel();
}

bool TimelinePane::canStepLater() const
{
    return !m_period.isEmpty() && m_period.end - view().end >= msecsPerPixel();
}

void TimelinePane::zoomIn()
{
    // Levels that are longer than the period all show the whole of it.
    const TimeSpan before = view();
    while (canZoomIn() && view() == before)
        m_ruler->onZoomerIn(m_ruler->level() - 1, viewCentre);
}

void TimelinePane::zoomOut()
{
    m_ruler->onZoomerOut(m_ruler->level() + 1, viewCentre);
}

void TimelinePane::showWholePeriod()
{
    changeView([this] {
        m_ruler->changeLevel(m_ruler->getNrOfZooomLevels(), viewCentre);
        // At that level already, the ruler leaves a view that was moved where it is.
        m_ruler->onTimelineOffsetChanged(viewCentre);
    });
}

void TimelinePane::stepEarlier()
{
    const TimeSpan shown = view();
    if (!m_period.isEmpty())
        changeView([&] { centreOn(shown.begin); });
}

void TimelinePane::stepLater()
{
    const TimeSpan shown = view();
    if (!m_period.isEmpty())
        changeView([&] { centreOn(shown.end); });
}

// A view that begins at one of these times shows its labels on their clock.
QDateTime TimelinePane::inZone(qint64 msecs) const
{
    return QDateTime::fromMSecsSinceEpoch(msecs, m_clock.times().zone());
}

qint64 TimelinePane::msecsPerPixel() const
{
    return std::max<qint64>(1, std::llround(1.0 / m_ruler->lengthPerMillisecond()));
}

} // namespace Review
