// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>
#include <QTimeZone>

namespace Review {

/// How dates and times are written.
struct TimeFormat
{
    enum class Order { DayFirst, YearFirst, MonthFirst };

    Order order = Order::DayFirst;
    /// Where a single moment is shown; lists do without.
    bool milliseconds = true;

    /// For QDateTime::toString() and edits: the date, and all down to the seconds.
    QString datePattern() const;
    QString pattern() const;

    bool operator==(const TimeFormat&) const = default;
};

/// How the client writes times: on the clock of one zone.
class TimeTexts
{
public:
    /// @p zoneName is an IANA or Windows name. An empty one means the zone of this machine.
    explicit TimeTexts(const QString& zoneName, const TimeFormat& format = {});

    const QTimeZone& zone() const { return m_zone; }
    QString zoneName() const;
    const TimeFormat& format() const { return m_format; }
    QString dateTime(qint64 msecs) const;
    /// With day of the week, milliseconds if they are wanted, and the zone's abbreviation at that
    /// time.
    QString exactDateTime(qint64 msecs) const;
    /// Hours, minutes and seconds, with as many hours as it takes.
    static QString duration(qint64 msecs);
    /// And milliseconds, if there are any.
    static QString exactDuration(qint64 msecs);

    /// What the zone's clock shows, as a time that claims to be UTC: without gaps or repetitions.
    QDateTime wallClock(qint64 msecs) const;
    /// When the zone's clock shows @p wallClock. The first time of two; for a time that the clock
    /// skips, as much later as it skips.
    qint64 fromWallClock(const QDateTime& wallClock) const;

private:
    QTimeZone m_zone;
    TimeFormat m_format;
};

} // namespace Review
