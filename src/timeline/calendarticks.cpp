// SPDX-License-Identifier: MIT
#include "calendarticks.h"

#include "durations.h"

#include <QDateTime>
#include <QLocale>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr double labelOffset = 2.0; // pixels from a tick to its text
constexpr double labelGap = 8.0;    // between two texts
constexpr double closestMinorTicks = 5.0;

enum class Unit { Clock, Day, Month, Year };

/// A distance of ticks: @p count milliseconds on the clock, days, months or years.
struct Step
{
    Unit unit;
    qint64 count;

    double averageLength() const
    {
        switch (unit) {
        case Unit::Clock:
            return double(count);
        case Unit::Day:
            return double(count * day);
        case Unit::Month:
            return double(count * day) * 30.436875;
        case Unit::Year:
            return double(count * day) * 365.2425;
        }
        return 0;
    }

    /// Whether each tick of @p other is one of this step, too.
    bool divides(const Step& other) const
    {
        if (unit == other.unit)
            return other.count % count == 0;
        switch (unit) {
        case Unit::Clock:
            return other.unit == Unit::Day;
        case Unit::Day:
            return count == 1;
        default:
            return unit < other.unit;
        }
    }
};

constexpr std::array steps{Step{Unit::Clock, 1},
                           Step{Unit::Clock, 2},
                           Step{Unit::Clock, 5},
                           Step{Unit::Clock, 10},
                           Step{Unit::Clock, 20},
                           Step{Unit::Clock, 50},
                           Step{Unit::Clock, 100},
                           Step{Unit::Clock, 200},
                           Step{Unit::Clock, 500},
                           Step{Unit::Clock, second},
                           Step{Unit::Clock, 2 * second},
                           Step{Unit::Clock, 5 * second},
                           Step{Unit::Clock, 10 * second},
                           Step{Unit::Clock, 15 * second},
                           Step{Unit::Clock, 30 * second},
                           Step{Unit::Clock, minute},
                           Step{Unit::Clock, 2 * minute},
                           Step{Unit::Clock, 5 * minute},
                           Step{Unit::Clock, 10 * minute},
                           Step{Unit::Clock, 15 * minute},
                           Step{Unit::Clock, 30 * minute},
                           Step{Unit::Clock, hour},
                           Step{Unit::Clock, 2 * hour},
                           Step{Unit::Clock, 3 * hour},
                           Step{Unit::Clock, 6 * hour},
                           Step{Unit::Clock, 12 * hour},
                           Step{Unit::Day, 1},
                           Step{Unit::Day, 7},
                           Step{Unit::Month, 1},
                           Step{Unit::Month, 3},
                           Step{Unit::Month, 6},
                           Step{Unit::Year, 1},
                           Step{Unit::Year, 2},
                           Step{Unit::Year, 5},
                           Step{Unit::Year, 10},
                           Step{Unit::Year, 20},
                           Step{Unit::Year, 50},
                           Step{Unit::Year, 100},
                           Step{Unit::Year, 200},
                           Step{Unit::Year, 500},
                           Step{Unit::Year, 1000},
                           Step{Unit::Year, 5000}};

qint64 floorDiv(qint64 value, qint64 divisor)
{
    const qint64 quotient = value / divisor;
    return value % divisor < 0 ? quotient - 1 : quotient;
}

qint64 ceilDiv(qint64 value, qint64 divisor)
{
    return -floorDiv(-value, divisor);
}

/// What the wall clock shows, as a date-time without a zone.
QDateTime wallTime(qint64 msecs)
{
    return QDateTime::fromMSecsSinceEpoch(msecs, Qt::UTC);
}

/// A stretch in which the clocks run on without a change.
struct Stretch
{
    qint64 from;
    qint64 to;
    qint64 offset; ///< milliseconds ahead of UTC
};

std::vector<Stretch> stretches(qint64 from, qint64 to, const ClockChanges& clock)
{
    std::vector<Stretch> result{{from, to, clock.offsetAt(from)}};
    for (const ClockChange& change : clock.between(from + 1, to)) {
        result.back().to = change.instant;
        result.push_back({change.instant, to, change.after});
    }
    return result;
}

class CalendarLayouter
{
public:
    CalendarLayouter(const CalendarView& view, const ClockChanges& clock,
                     const CalendarStyle& style)
        : m_view(view)
        , m_clock(clock)
        , m_style(style)
        , m_to(view.from + qint64(std::ceil((view.right - view.left) * view.msecsPerPixel)))
    {}

    CalendarScale layOut()
    {
        const Step major = majorStep();
        const std::optional<Step> minor = minorStep(major);
        if (minor.value_or(major).unit <= Unit::Day) {
            m_stretches = stretches(m_view.from, m_to, m_clock);
            m_scale.changes = m_clock.reaching(m_view.from, m_to);
        }
        const std::vector<qint64> majorTicks = instants(major);
        addTicks(majorTicks, minor);
        addLabels(majorTicks, 0, [&](qint64 instant) { return text(major, instant); });
        addContext(major);
        return std::move(m_scale);
    }

private:
    Step majorStep() const
    {
        for (const Step& step : steps)
            if (step.averageLength() / m_view.msecsPerPixel >=
                m_style.metrics.horizontalAdvance(widestText(step)) + labelGap)
                return step;
        return steps.back();
    }

    std::optional<Step> minorStep(const Step& major) const
    {
        for (const Step& step : steps) {
            if (step.averageLength() >= major.averageLength())
                break;
            if (step.divides(major) &&
                step.averageLength() / m_view.msecsPerPixel >= closestMinorTicks)
                return step;
        }
        return {};
    }

    static QString clockFormat(qint64 count)
    {
        if (count < second)
            return u"hh:mm:ss.zzz"_s;
        return count < minute ? u"hh:mm:ss"_s : u"hh:mm"_s;
    }

    QString widestText(const Step& step) const
    {
        constexpr qint64 wideTime = 947'800'740'000; // 13 January 2000, 21:59
        switch (step.unit) {
        case Unit::Clock:
            return wallTime(wideTime).toString(clockFormat(step.count));
        case Unit::Day:
            return wallTime(wideTime).toString(m_style.dateFormat);
        case Unit::Month:
            return monthName(9, QLocale::ShortFormat);
        case Unit::Year:
            return u"2000"_s;
        }
        return {};
    }

    static QString monthName(int month, QLocale::FormatType format)
    {
        return QLocale().standaloneMonthName(month, format);
    }

    qint64 wallMsecs(qint64 instant) const
    {
        if (m_stretches.empty())
            return instant + m_clock.offsetAt(instant);
        const auto after = std::upper_bound(
            m_stretches.begin(), m_stretches.end(), instant,
            [](qint64 msecs, const Stretch& stretch) { return msecs < stretch.from; });
        return instant + (after == m_stretches.begin() ? after : std::prev(after))->offset;
    }

    QString text(const Step& step, qint64 instant) const
    {
        const qint64 wall = wallMsecs(instant);
        switch (step.unit) {
        case Unit::Clock:
            return wallTime(wall).toString(clockFormat(step.count)) + m_clock.whichOfTwo(instant);
        case Unit::Day:
            return wallTime(wall).toString(m_style.dateFormat);
        case Unit::Month:
            return monthName(wallTime(wall).date().month(), QLocale::ShortFormat);
        case Unit::Year:
            return QString::number(wallTime(wall).date().year());
        }
        return {};
    }

    std::vector<qint64> instants(const Step& step) const
    {
        switch (step.unit) {
        case Unit::Clock:
            return clockTimes(step.count);
        case Unit::Day:
            return days(step.count);
        case Unit::Month:
            return months(int(step.count));
        case Unit::Year:
            return months(int(step.count * 12));
        }
        return {};
    }

    std::vector<qint64> clockTimes(qint64 count) const
    {
        std::vector<qint64> result;
        for (const Stretch& stretch : m_stretches)
            for (qint64 instant =
                     ceilDiv(stretch.from + stretch.offset, count) * count - stretch.offset;
                 instant < stretch.to; instant += count)
                result.push_back(instant);
        return result;
    }

    /// The starts of days; with a count of 7 those of Mondays.
    std::vector<qint64> days(qint64 count) const
    {
        constexpr qint64 firstMonday = 4; // 5 January 1970, counted in days from the epoch
        std::vector<qint64> result;
        qint64 last = floorDiv(m_view.from - 1 + m_clock.offsetAt(m_view.from - 1), day);
        for (const Stretch& stretch : m_stretches) {
            // The first day of a stretch begins with it where the change skipped midnight.
            const qint64 first = floorDiv(stretch.from + stretch.offset, day);
            for (qint64 number = first; number * day - stretch.offset < stretch.to; ++number) {
                const qint64 start = std::max(number * day - stretch.offset, stretch.from);
                if (number > last && (count == 1 || (number - firstMonday) % count == 0))
                    result.push_back(start);
                last = std::max(last, number);
            }
        }
        return result;
    }

    std::vector<qint64> months(int count) const
    {
        const QDate first = wallTime(wallMsecs(m_view.from)).date();
        if (!first.isValid())
            return {};
        const qint64 month = floorDiv(first.year() * 12LL + first.month() - 1, count) * count;
        std::vector<qint64> result;
        for (qint64 number = month;; number += count) {
            const QDate date(int(floorDiv(number, 12)), int(number - floorDiv(number, 12) * 12) + 1,
                             1);
            const qint64 start = date.isValid() ? startOf(date) : m_to;
            if (start >= m_to)
                return result;
            if (start >= m_view.from)
                result.push_back(start);
        }
    }

    qint64 startOf(QDate date) const
    {
        const qint64 wall = QDateTime(date, QTime(0, 0), Qt::UTC).toMSecsSinceEpoch();
        const qint64 guess = wall - m_clock.offsetAt(wall);
        const qint64 start = wall - m_clock.offsetAt(guess);
        if (start + m_clock.offsetAt(start) == wall)
            return start;
        for (const ClockChange& change : m_clock.between(start - day, start + day))
            if (change.instant + change.before <= wall && wall < change.instant + change.after)
                return change.instant; // midnight is skipped
        return start;
    }

    void addTicks(const std::vector<qint64>& major, const std::optional<Step>& minor)
    {
        const auto add = [this](qint64 instant, bool isMajor) {
            if (const double x = m_view.xAt(instant); x < m_view.right)
                m_scale.ticks.push_back({instant, x, isMajor});
        };
        if (minor)
            for (const qint64 instant : instants(*minor))
                if (!std::binary_search(major.begin(), major.end(), instant))
                    add(instant, false);
        for (const qint64 instant : major)
            add(instant, true);
        std::sort(
            m_scale.ticks.begin(), m_scale.ticks.end(),
            [](const CalendarTick& a, const CalendarTick& b) { return a.instant < b.instant; });
    }

    template <typename Text>
    void addLabels(const std::vector<qint64>& instants, int row, const Text& textAt)
    {
        double freeFrom = m_view.left;
        for (const qint64 instant : instants) {
            const double x = m_view.xAt(instant) + labelOffset;
            if (x < freeFrom)
                continue;
            const QString text = textAt(instant);
            const double width = m_style.metrics.horizontalAdvance(text);
            if (x + width > m_view.right)
                break;
            m_scale.labels.push_back({instant, x, width, row, text});
            freeFrom = x + width + labelGap;
        }
    }

    /// The second row: the day below times, the month below days, the year below months.
    void addContext(const Step& major)
    {
        if (major.unit == Unit::Year)
            return;
        const Unit unit = Unit(int(major.unit) + 1);
        const auto textAt = [&](qint64 instant) {
            const QDate date = wallTime(wallMsecs(instant)).date();
            return unit == Unit::Month ? monthName(date.month(), QLocale::LongFormat) + u' ' +
                                             QString::number(date.year())
                                       : text({unit, 1}, instant);
        };
        const std::vector<qint64> starts = instants({unit, 1});
        // What the left end shows stands there until the next one needs the room.
        const QString first = textAt(m_view.from);
        const double width = m_style.metrics.horizontalAdvance(first);
        const double next =
            starts.empty() ? m_view.right : m_view.xAt(starts.front()) + labelOffset - labelGap;
        if (m_view.left + width <= std::min(next, m_view.right))
            m_scale.labels.push_back({m_view.from, m_view.left, width, 1, first});
        addLabels(starts, 1, textAt);
        addChanges();
    }

    /// What the clocks do, in the second row where that has room.
    void addChanges()
    {
        for (const ClockChange& change : m_scale.changes) {
            const QString text = u"%1 → %2"_s.arg(wallText(change.instant + change.before),
                                                  wallText(change.instant + change.after));
            const CalendarLabel label{.instant = change.instant,
                                      .x = m_view.xAt(change.instant) + labelOffset,
                                      .width = m_style.metrics.horizontalAdvance(text),
                                      .row = 1,
                                      .text = text};
            const auto inTheWay = [&label](const CalendarLabel& other) {
                return other.row == 1 && other.x < label.x + label.width + labelGap &&
                       label.x < other.x + other.width + labelGap;
            };
            if (label.x >= m_view.left && label.x + label.width <= m_view.right &&
                std::none_of(m_scale.labels.begin(), m_scale.labels.end(), inTheWay))
                m_scale.labels.push_back(label);
        }
        std::stable_sort(m_scale.labels.begin(), m_scale.labels.end(),
                         [](const CalendarLabel& a, const CalendarLabel& b) {
                             return std::pair(a.row, a.x) < std::pair(b.row, b.x);
                         });
    }

    static QString wallText(qint64 wall) { return wallTime(wall).toString(clockFormat(minute)); }

    const CalendarView& m_view;
    const ClockChanges& m_clock;
    const CalendarStyle& m_style;
    const qint64 m_to;
    std::vector<Stretch> m_stretches; ///< of the view, where there are ticks of days or less
    CalendarScale m_scale;
};

} // namespace

qint64 calendarStep(double msecs)
{
    const auto longer =
        std::upper_bound(steps.begin(), steps.end(), msecs, [](double length, const Step& step) {
            return length < step.averageLength();
        });
    return longer == steps.begin() ? 1 : qint64(std::prev(longer)->averageLength());
}

CalendarScale layOutCalendar(const CalendarView& view, const ClockChanges& clock,
                             const CalendarStyle& style)
{
    if (!(view.msecsPerPixel > 0) || view.right <= view.left)
        return {};
    return CalendarLayouter(view, clock, style).layOut();
}

} // namespace CorvelGui
