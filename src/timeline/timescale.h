// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QDateTime>
#include <QTimeZone>

#include <algorithm>
#include <array>
#include <compare>
#include <optional>

namespace CorvelGui {

/// One row of the zoom table.
struct ZoomLevel
{
    quint64 millisecondsPerLevel;    ///< visible span of the whole scale width
    qint32 intervalCount;            ///< major intervals across the visible span
    qint32 subIntervalCount;         ///< minor divisions of one major interval
    quint32 millisecondsPerInterval; ///< one major interval
};

/// A time to fractions of a millisecond: close up, a pixel is less than one.
struct FineTime
{
    qint64 msecs = 0;
    double fraction = 0.0; ///< of a millisecond, from 0 up to 1

    auto operator<=>(const FineTime&) const = default;
};

/// The time model of the ruler: which period it covers, which part of it is in view, and every
/// conversion between an instant, a pixel column and a relative position.
///
/// A relative position is 0.0 at the begin limit and 1.0 at the end limit. A pixel position is an x
/// coordinate in the widget; the scale runs from the margin to the width less the margin. Instants
/// keep the time zone in which they were made: a new zone counts for limits that are set
/// afterwards.
///
/// The view is as long as the zoom level says, or, between the levels, as long as was asked for.
///
/// Plain value without events or signals: the ruler decides what a change means for its
/// surroundings.
class CORVELGUI_INTERNAL_EXPORT TimeScale
{
public:
    static constexpr int levelCount = 8;
    /// The level index that means: show the whole period.
    static constexpr int wholeRangeLevel = levelCount;

    static const std::array<ZoomLevel, levelCount>& zoomLevels();

    /// A time of the public interface as a signed number; one beyond the year 275760 counts as that
    /// year's end.
    static qint64 instant(quint64 msecs);

    // The period
    /// An empty period (and one that ends before it begins) leaves a scale of one hour without a
    /// view.
    void setTimeLimits(quint64 beginMs, quint64 endMs);
    const QDateTime& beginLimit() const { return m_begin.time; }
    const QDateTime& endLimit() const { return m_end.time; }
    qint64 beginLimitMs() const { return m_begin.msecs; }
    qint64 endLimitMs() const { return m_end.msecs; }
    bool isWithinLimits(qint64 msecs) const;
    quint64 totalDuration() const { return m_totalDuration; }

    void setTimeZone(const QTimeZone& zone) { m_zone = zone; }
    /// Invalid for that of this machine.
    const QTimeZone& timeZone() const { return m_zone; }
    /// Brings what is stored to the zone that counts now.
    void applyTimeZone();
    /// The instant in the zone that counts now.
    QDateTime inZone(qint64 msecs) const;

    // The geometry
    void setWidth(double pixels) { m_width = pixels; }
    double width() const { return m_width; }
    static constexpr double margin() { return 10.0; }
    /// What lies beyond the scale is still seen on half of the margin.
    static constexpr double halfMargin() { return margin() / 2; }
    double sightEnd() const { return m_width - halfMargin(); }
    bool isInSight(double x) const { return x >= halfMargin() && x <= sightEnd(); }
    /// Whether the user can point at a time there.
    bool isOnScale(double x) const { return x > margin() && x < m_width - margin(); }

    // The view
    bool hasView() const { return m_viewStart.time.isValid(); }
    const QDateTime& viewStart() const { return m_viewStart.time; }
    qint64 viewStartMs() const { return m_viewStart.msecs; }
    /// Not limited to the end limit.
    qint64 viewEndMs() const { return m_viewStart.msecs + qint64(millisecondsPerLevel()); }
    void setViewStart(const QDateTime& time) { m_viewStart = Instant(time); }
    /// To fractions of a millisecond, which there are only between the levels.
    FineTime fineViewStart() const { return {m_viewStart.msecs, m_viewStart.fraction}; }
    /// Moves the view just as far as it takes to show @p time. Returns whether the view moved.
    bool pageTo(const QDateTime& time);
    /// Puts the relative position @p position into the middle of the view, whatever the limits say.
    /// Returns false and changes nothing while there is no view.
    bool centerOnPosition(double position);
    /// Where a view that is to begin at @p msecs begins, so that it stays within the limits.
    qint64 startWithinLimits(qint64 msecs) const;
    /// Where the view begins that has @p msecs in its middle, as far as the limits allow.
    qint64 startAround(qint64 msecs) const;

    // The level
    int level() const { return m_level; }
    /// Makes @p level current, with the view around an anchor: the instant at the fraction @p
    /// anchor (0.0 to 1.0) of the scale stays where it is as far as the limits allow. Any index
    /// outside the table shows the whole period. Without a period, nothing but the level changes.
    void changeLevel(int level, double anchor);
    /// Makes the closest level current that shows the whole range, with the range in the middle of
    /// the view. Returns false and changes nothing unless there is a period and both times are
    /// valid and in order.
    bool setLevelFromTimeRange(const QDateTime& from, const QDateTime& to);
    /// The same within the limits. A range that is as long as the view at some level is shown
    /// exactly.
    bool setView(qint64 from, qint64 to);
    /// True while the view can grow: the current level is a row of the table shorter than the
    /// period.
    bool canZoomOut() const;

    // Between the levels
    /// Shows @p span milliseconds, at least closestSpan() and at most the period, with @p time at
    /// column @p x, exactly, as far as the limits allow. level() is the nearest one from now on,
    /// until a level is made current.
    void zoomTo(double span, const FineTime& time, double x);
    /// As setView(), but exactly the range, if it is not closer than closestSpan().
    bool showSpan(qint64 from, qint64 to);
    /// Moves the view so that @p time is at column @p x, as far as the limits allow.
    void putAt(const FineTime& time, double x);
    bool isBetweenLevels() const { return m_span.has_value(); }
    /// What is in view, in milliseconds.
    double exactSpan() const { return m_span ? *m_span : double(spanOfLevel(m_level)); }
    /// 40 ms a hundred pixels.
    double closestSpan() const { return std::max(scaleWidth() * 0.4, 1.0); }
    /// The level whose view is the nearest to that length.
    int nearestLevel(double span) const;

    /// What is shown, to come back to it.
    struct View
    {
        FineTime start;
        double span = 0.0;
        int level = 0;
        bool betweenLevels = false;

        bool operator==(const View&) const = default;
    };
    View shownView() const { return {fineViewStart(), exactSpan(), m_level, isBetweenLevels()}; }
    /// Shows a view again, as far as the limits allow.
    void show(const View& view);

    /// Visible span in milliseconds.
    quint64 millisecondsPerLevel() const
    {
        return m_span ? quint64(*m_span + 0.5) : spanOfLevel(m_level);
    }
    /// Distance between two major ticks in milliseconds.
    qint64 millisecondsPerInterval() const;
    qint64 millisecondsPerMinorDivision() const;
    /// Distance between two major ticks in whole pixels.
    double getIntervalLength(int level) const;
    int getSubIntervalNumber(int level) const;
    /// Major tick distance in milliseconds where the whole period is shown.
    qint64 getTotalDurationIntervals() const;

    // Conversions
    /// Infinite while there is no period: any distance then counts as more than a pixel.
    double lengthPerMillisecond() const;
    qint64 msecsAt(double x) const { return m_viewStart.msecs + offsetAt(x); }
    QDateTime getDateTime(double x) const;
    FineTime fineTimeAt(double x) const;
    double xAt(qint64 msecs) const;
    double getPosition(qint64 msecs) const;
    double getCurrentCenterPosition() const;

    /// Clock time of the tick @p offsetMs after the view start.
    QString getTickerString(qint64 offsetMs) const;
    /// The same for a tick whose time is known.
    QString tickerText(const QDateTime& time) const;

private:
    /// A time with its distance from the epoch at hand, because QDateTime may have to ask the zone
    /// for it.
    struct Instant
    {
        Instant() = default;
        explicit Instant(const QDateTime& t)
            : time(t), msecs(t.isValid() ? t.toMSecsSinceEpoch() : 0)
        {}

        QDateTime time;
        qint64 msecs = 0;
        double fraction = 0.0; ///< of a millisecond, that the time is later
    };

    bool isEffective(int level) const;
    quint64 spanOfLevel(int level) const;
    static int closestLevel(quint64 span);
    double scaleWidth() const { return m_width - 2 * margin(); }
    quint32 wholeScaleWidth() const;
    qint64 offsetAt(double x) const;
    void getNewStartDateTime(int level, double anchor);
    void setSpan(double span);
    void setFineViewStart(const FineTime& start);
    bool centerRange(qint64 from, qint64 to, bool exactly);

    int m_level = 1;
    std::optional<double> m_span; ///< in view, between the levels
    double m_width = 0.0;
    quint64 m_totalDuration = 0;
    qint64 m_wholeRangeInterval = 0;
    Instant m_viewStart;
    Instant m_begin;
    Instant m_end;
    QTimeZone m_zone;
};

} // namespace CorvelGui
