// SPDX-License-Identifier: MIT
#include "playerclock.h"

#include <algorithm>

using CorvelGui::TimeSpan;

namespace Review {

namespace {

constexpr qint64 eighths = 8;

bool isBefore(qint64 a, qint64 b, bool forwards)
{
    return forwards ? a < b : a > b;
}

} // namespace

void PlayerClock::setLimits(const TimeSpan& limits)
{
    m_limits = {.begin = limits.begin, .end = std::max(limits.begin, limits.end)};
    m_position = std::clamp(m_position, m_limits.begin * eighths, m_limits.end * eighths);
}

void PlayerClock::setSpeed(int speed, qint64 now)
{
    // Whether that stopped the clock does not matter any more.
    travel(m_speed * takeElapsed(now));
    m_speed = std::clamp(speed, -fastest, fastest);
}

void PlayerClock::seek(qint64 position, qint64 now)
{
    takeElapsed(now);
    m_position = std::clamp(position, m_limits.begin, m_limits.end) * eighths;
}

PlayerClock::Stop PlayerClock::step(int frames, qint64 now)
{
    setSpeed(0, now);
    return travel(frames * frame * eighths);
}

PlayerClock::Stop PlayerClock::advance(qint64 now)
{
    const Stop stop = travel(m_speed * takeElapsed(now));
    if (stop != Stop::None)
        m_speed = 0;
    return stop;
}

qint64 PlayerClock::takeElapsed(qint64 now)
{
    const qint64 before = m_now;
    m_now = std::max(m_now, now);
    return m_now - before;
}

PlayerClock::Stop PlayerClock::travel(qint64 distance)
{
    if (distance == 0)
        return Stop::None;
    const bool forwards = distance > 0;
    const qint64 target = m_position + distance;
    return m_skippingGaps ? travelRecorded(target, forwards) : arrive(target, forwards);
}

PlayerClock::Stop PlayerClock::travelRecorded(qint64 target, bool forwards)
{
    const qint64 limit = (forwards ? m_limits.end : m_limits.begin) * eighths;
    const auto here = stretchAhead(m_position, forwards);
    if (here && !isBefore(m_position, here->entry, forwards) &&
        (isBefore(target, here->exit, forwards) || !isBefore(here->exit, limit, forwards)))
        return arrive(target, forwards);

    // Into the next recording: from a gap, or over the one after this recording.
    const bool inGap = here && isBefore(m_position, here->entry, forwards);
    const auto next = inGap || !here ? here : stretchAhead(here->exit, forwards);
    if (next && isBefore(next->entry, limit, forwards)) {
        m_position = next->entry;
        return Stop::None;
    }
    if (here && !inGap)
        m_position = here->exit;
    return m_position == limit ? arrive(limit, forwards) : Stop::NoMoreRecordings;
}

PlayerClock::Stop PlayerClock::arrive(qint64 target, bool forwards)
{
    const qint64 limit = (forwards ? m_limits.end : m_limits.begin) * eighths;
    if (isBefore(target, limit, forwards)) {
        m_position = target;
        return Stop::None;
    }
    m_position = limit;
    return forwards ? Stop::AtEnd : Stop::AtBegin;
}

std::optional<PlayerClock::Stretch> PlayerClock::stretchAhead(qint64 position, bool forwards) const
{
    if (forwards) {
        const auto found =
            std::ranges::partition_point(m_recorded, [position](const TimeSpan& span) {
                return span.end * eighths <= position;
            });
        if (found == m_recorded.end())
            return std::nullopt;
        return Stretch{.entry = found->begin * eighths, .exit = found->end * eighths};
    }
    const auto after = std::ranges::partition_point(
        m_recorded, [position](const TimeSpan& span) { return span.begin * eighths < position; });
    if (after == m_recorded.begin())
        return std::nullopt;
    const TimeSpan& found = *std::prev(after);
    return Stretch{.entry = found.end * eighths, .exit = found.begin * eighths};
}

} // namespace Review
