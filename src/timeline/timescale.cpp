// SPDX-License-Identifier: MIT
#include "timescale.h"

#include "calendarticks.h"
#include "durations.h"

#include <Corvel/TimeZoneHelper>

#include <algorithm>
#include <cmath>
#include <limits>

using Corvel::TimeZoneHelper;
using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

// Labels show seconds where the whole period is shorter than this.
constexpr quint64 secondsLabelLimit = 30 * minute;

// Instants beyond the year 275760 are cut off here, so that sums of an instant and a span never
// overflow.
constexpr qint64 latestInstant = 8'640'000'000'000'000;

qint64 bounded(qint64 msecs)
{
    return std::clamp(msecs, -latestInstant, latestInstant);
}

qint64 bounded(double msecs)
{
    constexpr double latest = latestInstant;
    return std::isnan(msecs) ? 0 : qint64(std::clamp(msecs, -latest, latest));
}

FineTime later(const FineTime& time, double msecs)
{
    const double sum = time.fraction + msecs;
    const double whole = std::floor(sum);
    return {time.msecs + bounded(whole), sum - whole};
}

constexpr ZoomLevel zoomLevel(qint64 span, qint32 intervals, qint32 subIntervals)
{
    return {quint64(span), intervals, subIntervals, quint32(span / intervals)};
}

} // namespace

const std::array<ZoomLevel, TimeScale::levelCount>& TimeScale::zoomLevels()
{
    static constexpr std::array levels{zoomLevel(20 * minute, 10, 8), zoomLevel(hour, 12, 5),
                                       zoomLevel(3 * hour, 18, 5),    zoomLevel(12 * hour, 24, 3),
                                       zoomLevel(day, 24, 5),         zoomLevel(3 * day, 24, 3),
                                       zoomLevel(7 * day, 21, 2),     zoomLevel(14 * day, 14, 2)};
    return levels;
}

qint64 TimeScale::instant(quint64 msecs)
{
    return qint64(std::min(msecs, quint64(latestInstant)));
}

void TimeScale::setTimeLimits(quint64 beginMs, quint64 endMs)
{
    const qint64 begin = instant(beginMs);
    const qint64 end = instant(endMs);
    m_totalDuration = end > begin ? quint64(end - begin) : 0;
    m_wholeRangeInterval = getTotalDurationIntervals();
    m_begin = Instant(inZone(begin));
    m_end = Instant(inZone(end));

    if (m_totalDuration == 0 || m_wholeRangeInterval == 0) {
        m_level = 1;
        m_totalDuration = zoomLevels()[1].millisecondsPerLevel;
        m_wholeRangeInterval = zoomLevels()[1].millisecondsPerInterval;
        m_viewStart = Instant();
        m_span.reset();
    } else if (!hasView()) {
        m_viewStart = m_begin;
    } else if (m_span) {
        setSpan(*m_span);
        if (!m_span)
            m_viewStart = m_begin;
    }
}

bool TimeScale::isWithinLimits(qint64 msecs) const
{
    return m_begin.msecs <= msecs && msecs <= m_end.msecs;
}

void TimeScale::applyTimeZone()
{
    for (Instant* stored : {&m_begin, &m_end, &m_viewStart}) {
        if (stored->time.isValid())
            *stored = Instant(inZone(stored->msecs));
    }
}

QDateTime TimeScale::inZone(qint64 msecs) const
{
    return TimeZoneHelper::fromMSecsSinceEpoch(msecs, m_zone);
}

void TimeScale::changeLevel(int level, double anchor)
{
    const int newLevel = level < 0 || level > wholeRangeLevel ? wholeRangeLevel : level;
    getNewStartDateTime(newLevel, anchor);
    m_level = newLevel;
    m_span.reset();
}

bool TimeScale::setLevelFromTimeRange(const QDateTime& from, const QDateTime& to)
{
    if (!hasView() || !from.isValid() || !to.isValid() || !(from < to))
        return false;

    qint64 start = bounded(from.toMSecsSinceEpoch());
    const qint64 range = std::min(bounded(to.toMSecsSinceEpoch()) - start, qint64(m_totalDuration));
    m_span.reset();
    m_level = closestLevel(quint64(range));
    if (m_level < levelCount)
        start += (range - qint64(zoomLevels()[m_level].millisecondsPerLevel)) / 2;
    // In the zone of the ruler, whatever the zone of the range.
    m_viewStart = Instant(inZone(start));
    // No limit at the end: a range close to it may leave the view running past it.
    if (m_viewStart.msecs < m_begin.msecs)
        m_viewStart = m_begin;
    return true;
}

bool TimeScale::setView(qint64 from, qint64 to)
{
    return centerRange(from, to, false);
}

bool TimeScale::showSpan(qint64 from, qint64 to)
{
    return centerRange(from, to, true);
}

bool TimeScale::centerRange(qint64 from, qint64 to, bool exactly)
{
    if (!hasView() || from >= to)
        return false;
    const qint64 begin = bounded(from);
    const qint64 range = bounded(to) - begin;
    if (exactly) {
        setSpan(double(range));
    } else {
        const int level = closestLevel(quint64(range));
        m_level = isEffective(level) ? level : wholeRangeLevel;
        m_span.reset();
    }
    const qint64 span = qint64(millisecondsPerLevel());
    setViewStart(inZone(startWithinLimits(begin + (range - span) / 2)));
    return true;
}

void TimeScale::zoomTo(double span, const FineTime& time, double x)
{
    if (!hasView() || std::isnan(span))
        return;
    setSpan(span);
    putAt(time, x);
}

void TimeScale::setSpan(double span)
{
    const double shown = std::max(span, closestSpan());
    if (shown < double(m_totalDuration)) {
        m_span = shown;
        m_level = nearestLevel(shown);
    } else {
        m_span.reset();
        m_level = wholeRangeLevel;
    }
}

int TimeScale::nearestLevel(double span) const
{
    const auto distance = [&](int level) {
        return std::abs(std::log(span / double(spanOfLevel(level))));
    };
    int nearest = wholeRangeLevel;
    for (int level = levelCount - 1; level >= 0; --level) {
        if (isEffective(level) && distance(level) < distance(nearest))
            nearest = level;
    }
    return nearest;
}

void TimeScale::putAt(const FineTime& time, double x)
{
    const double width = scaleWidth();
    if (hasView() && width > 0)
        setFineViewStart(later(time, -exactSpan() * (x - margin()) / width));
}

void TimeScale::setFineViewStart(const FineTime& start)
{
    const FineTime latest = later({m_end.msecs, 0.0}, -exactSpan());
    const FineTime earliest{m_begin.msecs, 0.0};
    const FineTime shown = std::max(std::min(start, latest), earliest);
    setViewStart(inZone(shown.msecs));
    m_viewStart.fraction = shown.fraction;
}

void TimeScale::show(const View& view)
{
    if (!hasView())
        return;
    m_level = view.level;
    m_span.reset();
    if (view.betweenLevels)
        setSpan(view.span);
    setFineViewStart(view.start);
}

qint64 TimeScale::startWithinLimits(qint64 msecs) const
{
    const qint64 latest = m_end.msecs - qint64(millisecondsPerLevel());
    return std::max(std::min(msecs, latest), m_begin.msecs);
}

qint64 TimeScale::startAround(qint64 msecs) const
{
    return startWithinLimits(bounded(msecs) - qint64(millisecondsPerLevel() / 2));
}

bool TimeScale::pageTo(const QDateTime& time)
{
    if (!hasView())
        return false;
    const qint64 oldStart = m_viewStart.msecs;
    const qint64 span = qint64(millisecondsPerLevel());
    const qint64 msecs = time.toMSecsSinceEpoch();
    if (viewEndMs() < msecs)
        setViewStart(time.addMSecs(-span));
    if (msecs < m_viewStart.msecs)
        setViewStart(time);
    if (m_viewStart.msecs >= m_begin.msecs && m_viewStart.msecs >= m_end.msecs)
        setViewStart(m_end.time.addMSecs(-span));
    return m_viewStart.msecs != oldStart;
}

bool TimeScale::centerOnPosition(double position)
{
    if (!hasView() || std::isnan(position))
        return false;
    setViewStart(m_begin.time.addMSecs(bounded(m_totalDuration * position) -
                                       qint64(millisecondsPerLevel() / 2)));
    return true;
}

bool TimeScale::canZoomOut() const
{
    if (m_span)
        return true;
    // Strictly shorter, while a row exactly as long as the period is effective: it shows everything
    // already.
    return m_level < levelCount && zoomLevels()[m_level].millisecondsPerLevel < m_totalDuration;
}

bool TimeScale::isEffective(int level) const
{
    return level >= 0 && level < levelCount &&
           zoomLevels()[level].millisecondsPerLevel <= m_totalDuration;
}

int TimeScale::closestLevel(quint64 span)
{
    const auto& levels = zoomLevels();
    const auto row = std::find_if(levels.begin(), levels.end(), [span](const ZoomLevel& level) {
        return level.millisecondsPerLevel >= span;
    });
    return int(row - levels.begin());
}

quint64 TimeScale::spanOfLevel(int level) const
{
    return isEffective(level) ? zoomLevels()[level].millisecondsPerLevel : m_totalDuration;
}

qint64 TimeScale::millisecondsPerInterval() const
{
    constexpr double intervals = 12;
    if (m_span)
        return calendarStep(*m_span / intervals);
    return isEffective(m_level) ? zoomLevels()[m_level].millisecondsPerInterval
                                : m_wholeRangeInterval;
}

qint64 TimeScale::millisecondsPerMinorDivision() const
{
    constexpr double divisions = 4;
    const qint64 interval = millisecondsPerInterval();
    return m_span ? calendarStep(double(interval) / divisions)
                  : std::max<qint64>(interval / getSubIntervalNumber(m_level), 1);
}

double TimeScale::getIntervalLength(int level) const
{
    const double pixels = wholeScaleWidth();
    if (isEffective(level)) {
        const ZoomLevel& row = zoomLevels()[level];
        return std::floor(row.millisecondsPerInterval * (pixels / row.millisecondsPerLevel));
    }
    return m_totalDuration == 0 ? 0.0 : std::floor(pixels / m_totalDuration * m_wholeRangeInterval);
}

int TimeScale::getSubIntervalNumber(int level) const
{
    return isEffective(level) ? zoomLevels()[level].subIntervalCount : 2;
}

qint64 TimeScale::getTotalDurationIntervals() const
{
    const qint64 days = qint64(m_totalDuration) / day;
    if (days > 20)
        return std::lround(float(days) / 15.0F) * day;
    if (days >= 13)
        return day;
    if (days >= 8)
        return 12 * hour;
    if (days >= 4)
        return 8 * hour;
    if (days >= 2)
        return 3 * hour;
    if (days == 1)
        return hour;

    const qint64 interval = qint64(m_totalDuration) / 20;
    if (interval > minute)
        return interval / minute * minute;
    return interval > second ? interval / second * second : interval;
}

quint32 TimeScale::wholeScaleWidth() const
{
    return quint32(std::max(scaleWidth(), 0.0));
}

double TimeScale::lengthPerMillisecond() const
{
    const double span = exactSpan();
    return span == 0 ? std::numeric_limits<double>::infinity() : double(wholeScaleWidth()) / span;
}

qint64 TimeScale::offsetAt(double x) const
{
    const double width = scaleWidth();
    return width > 0 ? bounded(exactSpan() * (x - margin()) / width + m_viewStart.fraction) : 0;
}

FineTime TimeScale::fineTimeAt(double x) const
{
    const double width = scaleWidth();
    return width > 0 ? later(fineViewStart(), exactSpan() * (x - margin()) / width)
                     : fineViewStart();
}

QDateTime TimeScale::getDateTime(double x) const
{
    return viewStart().addMSecs(offsetAt(x));
}

double TimeScale::xAt(qint64 msecs) const
{
    // As doubles, which are exact for every time within the limits and overflow for none.
    const double offset = double(msecs) - double(m_viewStart.msecs) - m_viewStart.fraction;
    return margin() + lengthPerMillisecond() * offset;
}

double TimeScale::getPosition(qint64 msecs) const
{
    return m_totalDuration == 0 ? 0.0 : (double(msecs) - double(m_begin.msecs)) / m_totalDuration;
}

double TimeScale::getCurrentCenterPosition() const
{
    if (m_totalDuration == 0)
        return 0.0;
    const qint64 center = m_viewStart.msecs + qint64(millisecondsPerLevel() / 2);
    // Unsigned on purpose: a centre before the begin limit is far beyond the end, never negative.
    return double(quint64(center - m_begin.msecs)) / m_totalDuration;
}

QString TimeScale::getTickerString(qint64 offsetMs) const
{
    return tickerText(viewStart().addMSecs(offsetMs));
}

QString TimeScale::tickerText(const QDateTime& time) const
{
    return time.toString(m_totalDuration < secondsLabelLimit ? u"hh:mm:ss"_s : u"hh:mm"_s);
}

void TimeScale::getNewStartDateTime(int level, double anchor)
{
    if ((level == m_level && !m_span) || !hasView())
        return;
    if (!isEffective(level)) {
        m_viewStart = m_begin;
        return;
    }

    // The anchor counts the scale's last pixel, one less than the scale is wide. This pixel is
    // intended.
    const double lastPixel = std::max(scaleWidth() - 1, 1.0);
    const double inScale = anchor > 0.0 ? std::min(anchor, 1.0) : 0.0;
    const int anchorX = int(margin() + lastPixel * inScale);
    const double fraction = (anchorX - margin()) / lastPixel;
    const quint64 span = zoomLevels()[level].millisecondsPerLevel;
    m_viewStart = Instant(getDateTime(anchorX).addMSecs(-qint64(span * fraction)));
    if (m_viewStart.msecs < m_begin.msecs)
        m_viewStart = m_begin;
    else if (m_viewStart.msecs + qint64(span) > m_end.msecs)
        m_viewStart = Instant(m_end.time.addMSecs(-qint64(span)));
}

} // namespace CorvelGui
