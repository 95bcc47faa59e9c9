#include "timelinepane.h"

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

TimelinePane::TimelinePane(const QString& zoneName, QWidget* parent)
    : QWidget(parent)
    , m_timeline(new ZoomTimeline(this))
    , m_ruler(m_timeline->ruler())
    , m_zone(TimeTexts(zoneName).zone())
{
    m_timeline->setOrvaneGuiTheme(true);
    m_timeline->setActive(true, false);
    m_timeline->setTimeZone(zoneName);
    m_ruler->setIndicatorDragEnabled(true);
    m_ruler->setPreviewEnabled(true);
    retranslate();

    connect(m_ruler, &Ruler::timeLineViewChanged, this, &TimelinePane::viewChanged);
    connect(m_ruler, &Ruler::indicatorPositionChanged, this, [this](quint64 msecs) {
        m_currentTime = qint64(msecs);
        Q_EMIT currentTimeChanged();
    });
    connect(m_ruler, &Ruler::jumpToTime, this, [this](const QDateTime& time, const QUuid& marker) {
        setCurrentTime(time.toMSecsSinceEpoch());
        Q_EMIT markerChosen(marker);
    });
    connect(m_ruler, &Ruler::jumpToTrackTime, this,
            [this](const QDateTime& time, const QUuid& marker) {
                jumpTo(time.toMSecsSinceEpoch(), spanAroundMarker);
                Q_EMIT markerChosen(marker);
            });
    connect(m_ruler, &Ruler::previewPositionChanged, this, &TimelinePane::showPreview);

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
    if (period.isEmpty()) {
        setCurrentTime(0);
        Q_EMIT viewChanged();
        return;
    }
    setCurrentTime(period.begin);
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

void TimelinePane::setZone(const QString& zoneName)
{
    m_zone = TimeTexts(zoneName).zone();
    m_timeline->setTimeZone(zoneName);
    // The indicator's label follows when its time is set again.
    m_timeline->setIndicatorPosition(quint64(m_currentTime));
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

void TimelinePane::setCurrentTime(qint64 msecs)
{
    m_timeline->setIndicatorPosition(quint64(msecs));
    if (m_currentTime == msecs)
        return;
    m_currentTime = msecs;
    Q_EMIT currentTimeChanged();
}

void TimelinePane::playTo(qint64 msecs)
{
    if (m_period.isEmpty())
        return;
    const TimeSpan shown = view();
    if (!isInView(msecs)) {
        if (isInView(m_currentTime)) {
            changeView([&] { turnPagesTo(msecs); });
        } else {
            // The ruler follows its indicator wherever it is set.
            m_ruler->blockSignalTimeLineViewChanged(true);
            m_timeline->setIndicatorPosition(quint64(msecs));
            beginViewAt(shown.begin);
            m_timeline->timelineScroll()->onCenterPositionChanged(
                m_ruler->getCurrentCenterPosition());
            m_ruler->blockSignalTimeLineViewChanged(false);
        }
    }
    setCurrentTime(msecs);
}

void TimelinePane::showCurrentTime()
{
    if (!m_period.isEmpty() && !isInView(m_currentTime))
        changeView([this] { turnPagesTo(m_currentTime); });
}

void TimelinePane::goTo(qint64 msecs)
{
    if (isInView(msecs))
        setCurrentTime(msecs);
    else
        jumpTo(msecs);
}

void TimelinePane::jumpTo(qint64 msecs)
{
    if (m_period.isEmpty())
        return;
    changeView([&] { centreOn(msecs); });
    setCurrentTime(msecs);
}

void TimelinePane::jumpTo(qint64 msecs, qint64 span)
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
    setCurrentTime(msecs);
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
            setHeld(true);
        break;
    case QEvent::MouseButtonRelease:
        if (isLeft())
            setHeld(false);
        break;
    case QEvent::Hide:
    case QEvent::WindowDeactivate:
        // The release may go elsewhere, such as to a dialog.
        setHeld(false);
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void TimelinePane::setHeld(bool held)
{
    if (std::exchange(m_held, held) != held)
        Q_EMIT heldChanged(held);
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
    return QDateTime::fromMSecsSinceEpoch(msecs, m_zone);
}

qint64 TimelinePane::msecsPerPixel() const
{
    return std::max<qint64>(1, std::llround(1.0 / m_ruler->lengthPerMillisecond()));
}

} // namespace Review
