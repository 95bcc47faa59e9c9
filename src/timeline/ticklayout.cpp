// SPDX-License-Identifier: MIT
#include "ticklayout.h"

#include "calendarticks.h"
#include "timescale.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace CorvelGui {

namespace {

// Up to this distance of major ticks (8 hours) they carry their time; wider ones carry only dates.
constexpr qint64 longestLabelledInterval = 28'800'000;

int lineHeight(const TickStyle& style)
{
    return style.metrics.boundingRect(u'0').height() + 2;
}

class Layouter
{
public:
    Layouter(const TimeScale& scale, const QRectF& rect, const TickStyle& style)
        : m_scale(scale)
        , m_rect(rect)
        , m_style(style)
        , m_lineHeight(lineHeight(style))
        , m_length(scale.getIntervalLength(scale.level()))
        , m_subIntervals(scale.getSubIntervalNumber(scale.level()))
        , m_subLength(std::floor(m_length / m_subIntervals))
        , m_showsTimes(scale.millisecondsPerInterval() <= longestLabelledInterval)
    {}

    TickLayout layOut(qint64 toMidnight)
    {
        const qint64 interval = m_scale.millisecondsPerInterval();
        qint64 offset = toMidnight % interval;
        double x = TimeScale::margin() + m_scale.lengthPerMillisecond() * offset;

        addTicksBefore(x);
        // Two intervals a round. Where the second tick is cut off on the right, its label may still
        // be seen: labels reach one margin further than lines.
        for (; m_length > 0 && x <= m_rect.right(); offset += 2 * interval, x += 2 * m_length) {
            const Texts first = textsAt(offset);
            const Texts second = textsAt(offset + interval);
            const double labelX = std::max(std::trunc(x + 2.0), std::trunc(TimeScale::margin()));

            addTick(x, first);
            addLabels(labelX, first);
            if (x + m_length <= m_rect.right())
                addTick(x + m_length, second);
            if (labelX + m_length - TimeScale::margin() <= m_rect.right())
                addLabels(labelX + m_length, second);
        }
        return std::move(m_layout);
    }

private:
    struct Texts
    {
        QString time;
        QString date; ///< empty unless the date changes here
    };

    double bodyTop() const { return m_rect.top() + m_style.headerHeight; }

    Texts textsAt(qint64 offset)
    {
        const QDateTime time = m_scale.viewStart().addMSecs(offset);
        Texts texts;
        if (m_showsTimes)
            texts.time = m_scale.tickerText(time);
        if (m_lastDate != time.date())
            texts.date = time.toString(m_style.dateFormat);
        m_lastDate = time.date();
        return texts;
    }

    // Four at most, whatever the number of minor divisions.
    void addTicksBefore(double x)
    {
        if (m_subLength >= x)
            return;
        for (int k = 1; k <= 4; ++k) {
            const double minorX = x - k * m_subLength;
            if (minorX > TimeScale::margin())
                m_layout.ticks.push_back({minorX, bodyTop(), m_rect.bottom(), false});
        }
    }

    void addTick(double x, const Texts& texts)
    {
        m_layout.ticks.push_back({x, m_rect.top(), m_rect.bottom(), true});
        const double dateWidth =
            texts.date.isEmpty() ? 0.0 : m_style.metrics.horizontalAdvance(texts.date) + 2.0;
        for (int k = 1; k < m_subIntervals; ++k) {
            // Below the date, where there is one.
            const double top =
                k * m_subLength < dateWidth ? m_rect.top() + 2 * m_lineHeight + 4 : bodyTop();
            m_layout.ticks.push_back({x + k * m_subLength, top, m_rect.bottom(), false});
        }
    }

    void addLabels(double x, const Texts& texts)
    {
        double baseline = m_rect.top() + m_lineHeight;
        if (m_showsTimes) {
            m_layout.labels.push_back({x, baseline, texts.time});
            baseline += m_lineHeight;
        }
        if (!texts.date.isEmpty())
            m_layout.labels.push_back({x, baseline, texts.date});
    }

    const TimeScale& m_scale;
    const QRectF m_rect;
    const TickStyle& m_style;
    const int m_lineHeight;
    const double m_length;
    const int m_subIntervals;
    const double m_subLength;
    const bool m_showsTimes;
    std::optional<QDate> m_lastDate;
    TickLayout m_layout;
};

/// The texts of one row, asked from left to right for what they cover.
class TextRow
{
public:
    TextRow(const std::vector<CalendarLabel>& labels, int row)
    {
        for (const CalendarLabel& label : labels)
            if (label.row == row)
                m_texts.push_back({label.x, label.x + label.width});
    }

    bool covers(double x)
    {
        while (m_next < m_texts.size() && m_texts[m_next].second <= x)
            ++m_next;
        return m_next < m_texts.size() && m_texts[m_next].first < x;
    }

private:
    std::vector<std::pair<double, double>> m_texts;
    std::size_t m_next = 0;
};

} // namespace

qint64 msecsToMidnight(const TimeScale& scale)
{
    const QDateTime& start = scale.viewStart();
    QDateTime midnight = start;
    midnight.setDate(start.date().addDays(1));
    midnight.setTime(QTime(0, 0));
    // Where the clocks skip midnight, the day starts with the first time that exists.
    if (!midnight.isValid())
        midnight = start.timeSpec() == Qt::TimeZone
                       ? start.date().addDays(1).startOfDay(start.timeZone())
                       : start.date().addDays(1).startOfDay();
    return start.msecsTo(midnight);
}

TickLayout layoutTicks(const TimeScale& scale, const QRectF& rect, const TickStyle& style,
                       qint64 toMidnight)
{
    return Layouter(scale, rect, style).layOut(toMidnight);
}

TickLayout layoutCalendarTicks(const TimeScale& scale, const QRectF& rect, const TickStyle& style,
                               const ClockChanges& clock)
{
    const double pixelsPerMillisecond = scale.lengthPerMillisecond();
    const CalendarView view{.from = scale.viewStartMs(),
                            .msecsPerPixel = 1 / pixelsPerMillisecond,
                            .left = scale.xAt(scale.viewStartMs()),
                            .right = rect.right()};
    const CalendarScale calendar =
        layOutCalendar(view, clock, {QFontMetricsF(style.metrics), style.dateFormat});

    // The first row in the middle of the header, the second right below it.
    const double digitHeight = style.metrics.boundingRect(u'0').height();
    const double body = rect.top() + style.headerHeight;
    const double firstRow = std::round((rect.top() + body + digitHeight) / 2);
    const double secondRow = body + digitHeight + 2;
    const double belowSecond = secondRow + 4;
    TickLayout layout;
    for (const CalendarLabel& label : calendar.labels)
        layout.labels.push_back({label.x, label.row == 0 ? firstRow : secondRow, label.text});

    // Lines leave out the texts that they would cross.
    TextRow first(calendar.labels, 0);
    TextRow second(calendar.labels, 1);
    for (const CalendarTick& tick : calendar.ticks) {
        double top = !tick.major || first.covers(tick.x) ? body : rect.top();
        if (second.covers(tick.x)) {
            if (top < body)
                layout.ticks.push_back({tick.x, top, body, true});
            top = belowSecond;
        }
        layout.ticks.push_back({tick.x, top, rect.bottom(), tick.major});
    }
    TextRow firstAgain(calendar.labels, 0);
    TextRow secondAgain(calendar.labels, 1);
    for (const ClockChange& change : calendar.changes) {
        const double x = view.xAt(change.instant);
        const bool isRepeated = change.repeats();
        const double top = secondAgain.covers(x)  ? belowSecond
                           : firstAgain.covers(x) ? body
                                                  : rect.top();
        layout.clockMarks.push_back(
            {x, top, isRepeated ? double(change.length()) * pixelsPerMillisecond : 0.0});
    }
    return layout;
}

} // namespace CorvelGui
