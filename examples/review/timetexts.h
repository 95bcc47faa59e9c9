#pragma once

#include <QDateTime>
#include <QString>
#include <QTimeZone>

namespace Review {

/// How the client writes times: on the clock of one zone.
class TimeTexts
{
public:
    /// @p zoneName is an IANA or Windows name. An empty one means the zone of this machine.
    explicit TimeTexts(const QString& zoneName);

    const QTimeZone& zone() const { return m_zone; }
    QString zoneName() const;
    QString dateTime(qint64 msecs) const;
    /// With day of the week, milliseconds, and the zone's abbreviation at that time.
    QString exactDateTime(qint64 msecs) const;
    /// Hours, minutes and seconds, with as many hours as it takes.
    static QString duration(qint64 msecs);

    /// What the zone's clock shows, as a time that claims to be UTC: without gaps or repetitions.
    QDateTime wallClock(qint64 msecs) const;
    /// When the zone's clock shows @p wallClock. The first time of two; for a time that the clock
    /// skips, as much later as it skips.
    qint64 fromWallClock(const QDateTime& wallClock) const;

private:
    QTimeZone m_zone;
};

} // namespace Review
