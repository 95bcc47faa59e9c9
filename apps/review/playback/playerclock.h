// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/TrackDescription>

#include <QList>
#include <QtGlobal>

#include <optional>

namespace Review {

/// Knows where a player is: from where it started, its speed, and how long ago that was.
///
/// It has no timer. Callers pass in what a monotonic clock says, in milliseconds; less than at an
/// earlier call counts as no time gone by. Positions are milliseconds since the Unix epoch. All
/// arithmetic is in whole eighths of a millisecond, so neither ticks nor changes of speed add up to
/// a drift.
class PlayerClock
{
public:
    /// Speeds count in eighths of real time, negative ones backwards; 0 stands still.
    static constexpr int realTime = 8;
    static constexpr int fastest = 1024 * realTime;
    /// Milliseconds, at 25 frames a second.
    static constexpr qint64 frame = 40;

    enum class Stop {
        None,
        AtBegin,         ///< at the begin of the limits
        AtEnd,           ///< at the end of the limits
        NoMoreRecordings ///< gaps are skipped, and nothing is recorded further on
    };

    /// Keeps the position from begin to end. With empty limits, as at first, it stays at their
    /// begin.
    void setLimits(const CorvelGui::TimeSpan& limits);
    /// What the clock goes through when it skips gaps: sorted, none empty, with a gap between any
    /// two.
    void setRecorded(const QList<CorvelGui::TimeSpan>& recorded) { m_recorded = recorded; }
    /// Whether playing and stepping leave out what is not recorded. They then land at the begin of
    /// the next recording, or backwards at the end of the previous one, however far they would have
    /// gone: at high speeds, too, no recording is passed over.
    void setSkippingGaps(bool skip) { m_skippingGaps = skip; }

    /// Goes on at another speed from where it is at @p now. Speeds beyond fastest count as that.
    void setSpeed(int eighths, qint64 now);
    int speed() const { return m_speed; }

    /// Goes to @p position, or to the nearer limit, and on from there at the same speed.
    void seek(qint64 position, qint64 now);
    /// Stops and goes some frames on, or back for a negative number. Says why it went less far.
    Stop step(int frames, qint64 now);
    /// Plays up to @p now. Where it cannot go further the speed becomes 0; says that it did.
    Stop advance(qint64 now);

    /// Where the clock was at the last call, rounded down.
    qint64 position() const { return m_position >> 3; }

private:
    /// A recording as it is met in the direction of play, in eighths of a millisecond.
    struct Stretch
    {
        qint64 entry;
        qint64 exit;
    };

    qint64 takeElapsed(qint64 now);
    Stop travel(qint64 distance);
    Stop travelRecorded(qint64 target, bool forwards);
    Stop arrive(qint64 target, bool forwards);
    std::optional<Stretch> stretchAhead(qint64 position, bool forwards) const;

    CorvelGui::TimeSpan m_limits;
    QList<CorvelGui::TimeSpan> m_recorded;
    bool m_skippingGaps = false;
    int m_speed = 0;
    qint64 m_now = 0;
    qint64 m_position = 0; ///< in eighths of a millisecond
};

} // namespace Review
