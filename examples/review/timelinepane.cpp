#include "timelinepane.h"

#include <CorvelGui/Ruler>

#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

using CorvelGui::Ruler;
using CorvelGui::TimeSpan;
using CorvelGui::TrackDescription;

namespace Review {

namespace {

constexpr double viewCentre = 0.5;

} // namespace

TimelinePane::TimelinePane(const QString& zoneName, QWidget* parent)
    : QWidget(parent), m_ruler(new Ruler(this))
{
    m_ruler->setOrvaneGuiTheme(true);
    m_ruler->setActive(true, false);
    m_ruler->setTimeZone(zoneName);
    m_ruler->setAccessibleName(tr("Timeline"));
    connect(m_ruler, &Ruler::timeLineViewChanged, this, &TimelinePane::viewChanged);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_ruler);
}

void TimelinePane::setPeriod(const TimeSpan& period)
{
    m_period = period;
    if (period.isEmpty())
        return;
    m_ruler->setTimeLimits(quint64(period.begin), quint64(period.end));
    // The ruler puts its indicator at the begin, but nothing is played here.
    m_ruler->setIndicatorPosition(0);
    showWholePeriod();
}

void TimelinePane::setTracks(const QList<TrackDescription>& tracks)
{
    m_ruler->setTrackDescriptions(tracks);
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
    m_ruler->changeLevel(m_ruler->getNrOfZooomLevels(), viewCentre);
    // At that level already, the ruler leaves a view that was moved where it is.
    m_ruler->onTimelineOffsetChanged(viewCentre);
}

void TimelinePane::stepEarlier()
{
    stepBy((view().begin - view().end) / 2);
}

void TimelinePane::stepLater()
{
    stepBy((view().end - view().begin) / 2);
}

void TimelinePane::stepBy(qint64 msecs)
{
    if (m_period.isEmpty())
        return;
    const TimeSpan shown = view();
    const qint64 span = shown.end - shown.begin;
    const qint64 begin = std::clamp(shown.begin + msecs, m_period.begin,
                                    std::max(m_period.begin, m_period.end - span));
    m_ruler->onTimelineOffsetChanged(double(begin + span / 2 - m_period.begin) /
                                     double(m_period.end - m_period.begin));
}

qint64 TimelinePane::msecsPerPixel() const
{
    return std::max<qint64>(1, std::llround(1.0 / m_ruler->lengthPerMillisecond()));
}

} // namespace Review
