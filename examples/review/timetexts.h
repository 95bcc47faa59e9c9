#pragma once

#include <QString>
#include <QTimeZone>

namespace Review {

/// How the client writes times: on the clock of one zone.
class TimeTexts
{
public:
    /// @p zoneName is an IANA or Windows name. An empty one means the zone of this machine.
    explicit TimeTexts(const QString& zoneName);

    QString zoneName() const;
    QString dateTime(qint64 msecs) const;
    /// Hours, minutes and seconds, with as many hours as it takes.
    static QString duration(qint64 msecs);

private:
    QTimeZone m_zone;
};

} // namespace Review
