// SPDX-License-Identifier: MIT
#include "zoomtimeline.h"

#include "base/whilealive.h"
#include "ruler.h"
#include "timelinelanes.h"
#include "timelinescroll.h"
#include "zoomer.h"

#include <Hueloft/POrvGuiTheme>

#include <QCoreApplication>
#include <QGridLayout>
#include <QMetaMethod>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <utility>

using Hueloft::POrvGuiTheme;

namespace CorvelGui {

namespace {

bool zoomerEnabled = true;

} // namespace

ZoomTimeline::ZoomTimeline(QWidget* parent)
    : QWidget(parent)
    , m_ruler(new Ruler(this))
    , m_lanes(new TimelineLanes(m_ruler, this))
    , m_zoomer(zoomerEnabled ? new Zoomer(m_ruler->getNrOfZooomLevels(), this) : nullptr)
    , m_scroll(new TimelineScroll(this))
{
    m_ruler->installEventFilter(this);
    m_scroll->installEventFilter(this);
    m_scroll->setActivitySource([this](int columns) { return m_ruler->activity(columns); });
    // Time runs from left to right in every language.
    setLayoutDirection(Qt::LeftToRight);
    auto* layout = new QGridLayout(this);
    layout->setVerticalSpacing(2);
    layout->setContentsMargins(2, 2, 2, 2);
    if (m_zoomer) {
        connect(m_zoomer, &Zoomer::zoomerIn, m_ruler, &Ruler::onZoomerIn);
        connect(m_zoomer, &Zoomer::zoomerOut, m_ruler, &Ruler::onZoomerOut);
    }
    arrange();

    connect(m_ruler, &Ruler::changeSliderZoom, this, &ZoomTimeline::onChangeSliderPosition);
    connect(m_scroll, &TimelineScroll::viewAreaMoved, this,
            &ZoomTimeline::onViewAreaPositionChanged);
    connect(m_ruler, &Ruler::indicatorPositionChanged, m_scroll,
            &TimelineScroll::onIndicatorPositionChanged);
    connect(m_ruler, &Ruler::centerPositionChanged, m_scroll,
            &TimelineScroll::onCenterPositionChanged);
    connect(m_ruler, &Ruler::centerPositionChanged, this, [this] {
        if (isActivityVisible())
            m_scroll->onCenterPositionChanged(viewCenter());
    });
    connect(m_lanes, &TimelineLanes::lanesChanged, this, [this] {
        if (m_lanesVisible)
            arrange();
    });
    connect(m_lanes, &TimelineLanes::currentTrackChanged, this, &ZoomTimeline::currentTrackChanged);
    connect(m_ruler, &Ruler::activityChanged, m_scroll, &TimelineScroll::renewActivity);
    // The limits say where it is on the strip.
    connect(m_ruler, &Ruler::activityChanged, this, &ZoomTimeline::updateSelectedRange);
    connect(m_ruler, &Ruler::selectedRangeChanged, this, &ZoomTimeline::updateSelectedRange);
    connect(m_scroll, &TimelineScroll::viewAreaResized, this, &ZoomTimeline::onViewAreaResized);
    connect(m_scroll, &TimelineScroll::activityVisibleChanged, this, [this](bool visible) {
        arrange();
        m_scroll->onCenterPositionChanged(viewCenter());
        Q_EMIT activityVisibleChanged(visible);
    });
    connect(m_ruler, &Ruler::heldChanged, this, &ZoomTimeline::tellHeld);
    connect(m_scroll, &TimelineScroll::heldChanged, this, &ZoomTimeline::tellHeld);
}

void ZoomTimeline::setZoomerEnabled(bool enabled)
{
    zoomerEnabled = enabled;
}

bool ZoomTimeline::isZoomerEnabled()
{
    return zoomerEnabled;
}

void ZoomTimeline::setTimeLimits(quint64 begin, quint64 end)
{
    const auto [oldBegin, oldEnd] = m_ruler->getTimeLimits();
    const auto staysInItsPixel = [this](quint64 a, quint64 b) {
        return double(std::max(a, b) - std::min(a, b)) * m_ruler->lengthPerMillisecond() < 1.0;
    };
    if (staysInItsPixel(begin, oldBegin) && staysInItsPixel(end, oldEnd))
        return;

    whileAlive(
        this, [&] { m_ruler->setTimeLimits(begin, end); },
        [this] {
            onChangeSliderPosition(m_ruler->level());
            // The same view is another part of another period.
            m_scroll->onCenterPositionChanged(viewCenter());
            m_scroll->setIndicatorPosition(m_ruler->getIndicatorPosition());
            updateSearchTimeRange();
        });
}

void ZoomTimeline::setIndicatorPosition(quint64 msecs)
{
    bool changed = false;
    const bool alive = whileAlive(this, [&] { changed = m_ruler->setIndicatorPosition(msecs); });
    if (!alive || !changed)
        return;
    m_scroll->setIndicatorPosition(m_ruler->getIndicatorPosition());
    m_scroll->onCenterPositionChanged(viewCenter());
}

quint64 ZoomTimeline::indicatorMSecs() const
{
    return m_ruler->exactIndicatorMSecs();
}

void ZoomTimeline::setTimeLimitsAndIndicatorPosition(quint64 begin, quint64 end, quint64 indicator)
{
    m_ruler->blockSignalTimeLineViewChanged(true);
    whileAlive(
        this, [&] { setTimeLimits(begin, end); }, [&] { setIndicatorPosition(indicator); },
        [this] {
            m_ruler->blockSignalTimeLineViewChanged(false);
            m_ruler->processTimeLineViewChanges();
        });
}

void ZoomTimeline::resetTimeline()
{
    constexpr double outOfSight = -1.0;
    whileAlive(
        this, [this] { m_ruler->setTimeLimits(0, 0); },
        [this] {
            onChangeSliderPosition(m_ruler->level());
            m_scroll->setViewArea(0.0);
            m_scroll->setIndicatorPosition(outOfSight);
            m_scroll->resetSearchTimeRange();
        });
}

void ZoomTimeline::setTimeZone(const QString& name)
{
    m_ruler->setTimeZone(name);
    m_ruler->applyTimeZone();
}

QString ZoomTimeline::timeZone() const
{
    return m_ruler->timeZone();
}

void ZoomTimeline::setSearchTimeRange(const QDateTime& from, const QDateTime& to, bool adjustZoom)
{
    m_searchBegin = from;
    m_searchEnd = to;
    showSearchTimeRange();
    updateSearchTimeRange();
    m_ruler->setSearchTimeRange(from, to, adjustZoom);
}

void ZoomTimeline::showSearchTimeRange()
{
    displaySearchTimeRange(true);
}

void ZoomTimeline::hideSearchTimeRange()
{
    displaySearchTimeRange(false);
}

void ZoomTimeline::clearSearchTimeRange()
{
    m_searchBegin = QDateTime();
    m_searchEnd = QDateTime();
    displaySearchTimeRange(false);
    m_scroll->resetSearchTimeRange();
    m_ruler->resetSearchTimeRange();
}

void ZoomTimeline::setOrvaneGuiTheme(bool on)
{
    m_theme = on;
    m_scroll->setOrvaneGuiTheme(on);
    m_ruler->setOrvaneGuiTheme(on);
}

void ZoomTimeline::setFontSize(int points)
{
    m_ruler->setFontSize(unsigned(std::max(points, 1)));
    m_lanes->setFontSize(points);
}

int ZoomTimeline::fontSize() const
{
    return int(m_ruler->fontSize());
}

void ZoomTimeline::setResultMode(bool on)
{
    m_ruler->setResultMode(on);
    m_scroll->setResultMode(on);
    m_resultMode = on;
    updateSearchDisplay();
    m_ruler->updateChildren(false);
}

void ZoomTimeline::setActive(bool active, bool blocked)
{
    const bool usable = active && !blocked;
    setEnabled(active);
    if (m_zoomer)
        m_zoomer->setEnabled(usable);
    m_scroll->setActive(usable);
    m_ruler->setActive(active, blocked);
}

void ZoomTimeline::makeActive(bool active)
{
    setActive(active, isBlocked());
}

bool ZoomTimeline::isActive() const
{
    return m_ruler->isActive();
}

void ZoomTimeline::setBlocked(bool blocked)
{
    setActive(isActive(), blocked);
}

bool ZoomTimeline::isBlocked() const
{
    return m_ruler->isBlocked();
}

bool ZoomTimeline::isPlayMode() const
{
    return m_ruler->isPlayMode();
}

void ZoomTimeline::setPlayMode(bool on)
{
    m_ruler->setPlayMode(on);
    setOrvaneGuiTheme(m_theme);
}

bool ZoomTimeline::isActivityVisible() const
{
    return m_scroll->isActivityVisible();
}

void ZoomTimeline::setActivityVisible(bool visible)
{
    m_scroll->setActivityVisible(visible);
}

void ZoomTimeline::setLanesVisible(bool visible)
{
    if (m_lanesVisible == visible)
        return;
    m_lanesVisible = visible;
    arrange();
    Q_EMIT lanesVisibleChanged(visible);
}

QString ZoomTimeline::currentTrack() const
{
    return m_lanes->currentTrack();
}

void ZoomTimeline::setCurrentTrack(const QString& identifier)
{
    m_lanes->setCurrentTrack(identifier);
}

RulerContext ZoomTimeline::contextAt(const QPoint& position) const
{
    const QWidget* part = childAt(position);
    if (part && (part == m_lanes || m_lanes->isAncestorOf(part)))
        return m_lanes->contextAt(m_lanes->mapFrom(this, position));
    if (part && (part == m_ruler || m_ruler->isAncestorOf(part)))
        return m_ruler->contextAt(m_ruler->mapFrom(this, position));
    return {.globalPosition = mapToGlobal(position)};
}

// Only then, because the parts let their parents have events that nobody wants.
void ZoomTimeline::connectNotify(const QMetaMethod& signal)
{
    if (signal != QMetaMethod::fromSignal(&ZoomTimeline::contextRequested))
        return;
    connect(m_ruler, &Ruler::contextRequested, this, &ZoomTimeline::contextRequested,
            Qt::UniqueConnection);
    connect(m_lanes, &TimelineLanes::contextRequested, this, &ZoomTimeline::contextRequested,
            Qt::UniqueConnection);
}

bool ZoomTimeline::isHeld() const
{
    return m_ruler->isHeld() || m_scroll->isHeld();
}

void ZoomTimeline::tellHeld()
{
    if (std::exchange(m_toldHeld, isHeld()) != isHeld())
        Q_EMIT heldChanged(isHeld());
}

void ZoomTimeline::onZoomTimeLineOperation(ZoomTimelineOperation operation)
{
    const auto setResultRange = [&](bool markBegin, bool markEnd) {
        m_ruler->setResultTimeRange(operation.from, operation.to, markBegin, markEnd,
                                    operation.flagA, !operation.flagB);
    };
    switch (operation.code) {
    case ZoomTimelineOperation::setSearchRange:
        return setSearchTimeRange(operation.from, operation.to, !operation.flagB);
    case ZoomTimelineOperation::clearSearchRange:
        return clearSearchTimeRange();
    case ZoomTimelineOperation::showSearchRange:
        return showSearchTimeRange();
    case ZoomTimelineOperation::hideSearchRange:
        return hideSearchTimeRange();
    case ZoomTimelineOperation::setResultRange:
        return setResultRange(false, false);
    case ZoomTimelineOperation::setMarkedResultRange:
        return setResultRange(true, true);
    case ZoomTimelineOperation::setResultRangeWithBegin:
        return setResultRange(true, false);
    default:
        return;
    }
}

void ZoomTimeline::onViewAreaPositionChanged(double position)
{
    // Part of the interface, on standard output.
    std::printf("Timeline offset: %f\n", position);
    m_ruler->onTimelineOffsetChanged(position);
}

void ZoomTimeline::onChangeSliderPosition(int level)
{
    if (m_zoomer)
        m_zoomer->onChangeSliderPosition(level);
    updateViewArea();
}

void ZoomTimeline::onChangedPreviewIndicatorTime(quint64 msecs)
{
    m_ruler->setPreviewIndicatorPosition(msecs);
}

bool ZoomTimeline::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_ruler) {
        if (event->type() == QEvent::Enter)
            m_scroll->setHover(true);
        else if (event->type() == QEvent::Leave)
            m_scroll->setHover(false);
    } else if (event->type() == QEvent::Wheel && isActivityVisible()) {
        event->accept();
        turnWheelOnStrip(static_cast<QWheelEvent*>(event));
        return true;
    }
    return false;
}

void ZoomTimeline::paintEvent(QPaintEvent*)
{
    // The gaps in a column of dark parts are dark, whatever surrounds it.
    QRect column = m_ruler->geometry();
    column.setBottom(m_scroll->geometry().top() - 1);
    if (m_lanesVisible || isActivityVisible())
        QPainter(this).fillRect(column, POrvGuiTheme::colorBlack);
}

// What stands at one time stands in one column of all parts, as soon as more of them than the ruler
// show times.
void ZoomTimeline::arrange()
{
    auto* grid = static_cast<QGridLayout*>(layout());
    while (QLayoutItem* item = grid->takeAt(0))
        delete item;
    m_lanes->setVisible(m_lanesVisible && m_lanes->laneCount() > 0);
    grid->setColumnMinimumWidth(0, m_lanesVisible ? m_lanes->namesWidth() : 0);
    if (m_lanesVisible || isActivityVisible()) {
        if (m_zoomer)
            grid->addWidget(m_zoomer, 0, 0, Qt::AlignVCenter);
        grid->addWidget(m_ruler, 0, 1);
        if (m_lanesVisible)
            grid->addWidget(m_lanes, 1, 0, 1, 2);
        grid->addWidget(m_scroll, 2, 1);
    } else if (m_zoomer) {
        grid->addWidget(m_ruler, 0, 0, 1, 2);
        grid->addWidget(m_zoomer, 1, 0);
        grid->addWidget(m_scroll, 1, 1);
    } else {
        grid->addWidget(m_ruler, 0, 0);
        grid->addWidget(m_scroll, 1, 0);
    }
}

// The ruler counts without a sign: it has the centre of a view before the begin limit far behind
// the end.
double ZoomTimeline::viewCenter() const
{
    const double duration = double(m_ruler->getTotalDuration());
    const TimeSpan view = m_ruler->view();
    if (!isActivityVisible() || view.isEmpty() || duration <= 0)
        return m_ruler->getCurrentCenterPosition();
    const double begin = double(view.begin - qint64(m_ruler->getTimeLimits().first));
    return (begin + double(view.end - view.begin) / 2) / duration;
}

void ZoomTimeline::onViewAreaResized(double begin, double end)
{
    const auto timeAt = [from = m_ruler->getTimeLimits().first,
                         duration = double(m_ruler->getTotalDuration())](double position) {
        return qint64(from) + std::llround(position * duration);
    };
    m_ruler->showRange(timeAt(begin), timeAt(end), true);
}

void ZoomTimeline::turnWheelOnStrip(const QWheelEvent* event)
{
    const double position = m_scroll->positionAt(event->position().x());
    const double time =
        double(m_ruler->getTimeLimits().first) + position * double(m_ruler->getTotalDuration());
    const double x = std::clamp(m_ruler->xAt(qint64(time)), 0.0, double(m_ruler->width()));
    QWheelEvent onRuler({x, m_ruler->height() / 2.0}, event->globalPosition(), event->pixelDelta(),
                        event->angleDelta(), event->buttons(), event->modifiers(), event->phase(),
                        event->inverted());
    QCoreApplication::sendEvent(m_ruler, &onRuler);
}

void ZoomTimeline::updateViewArea()
{
    const quint64 duration = m_ruler->getTotalDuration();
    if (duration > 0)
        m_scroll->setViewArea(double(m_ruler->endTime() - m_ruler->beginTime()) / double(duration));
}

void ZoomTimeline::updateSearchTimeRange()
{
    if (m_searchBegin.isValid() && m_searchEnd.isValid())
        m_scroll->setSearchTimeRange(m_ruler->getPosition(m_searchBegin),
                                     m_ruler->getPosition(m_searchEnd));
    else
        m_scroll->resetSearchTimeRange();
}

void ZoomTimeline::updateSelectedRange()
{
    const TimeSpan range = m_ruler->selectedRange();
    const auto positionOf = [from = qint64(m_ruler->getTimeLimits().first),
                             duration = double(m_ruler->getTotalDuration())](qint64 msecs) {
        return double(msecs - from) / duration;
    };
    if (range.isEmpty())
        m_scroll->setSelectedRange(0.0, 0.0);
    else
        m_scroll->setSelectedRange(positionOf(range.begin), positionOf(range.end));
}

void ZoomTimeline::displaySearchTimeRange(bool display)
{
    m_searchDisplayed = display;
    updateSearchDisplay();
}

void ZoomTimeline::updateSearchDisplay()
{
    const bool display = m_searchDisplayed && !m_resultMode;
    m_scroll->displaySearchTimeRange(display);
    m_ruler->displaySearchTimeRange(display);
}

} // namespace CorvelGui
