// SPDX-License-Identifier: MIT
#include "localmoments.h"

#include <QLocale>
#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace CorvelGui {

QList<QDateTime> localMoments(QDate date, QTime time, const QDateTime& zone)
{
    constexpr qint64 day = 86'400'000;
    const auto at = [&zone](qint64 msecs) {
        QDateTime moment = zone;
        moment.setMSecsSinceEpoch(msecs);
        return moment;
    };
    const auto offset = [](const QDateTime& moment) {
        return qint64(moment.offsetFromUtc()) * 1000;
    };

    // No zone is a day away from UTC, so these two see the offsets before and after a change.
    const qint64 clock = QDateTime(date, time, Qt::UTC).toMSecsSinceEpoch();
    const qint64 before = offset(at(clock - day));
    const qint64 after = offset(at(clock + day));

    QList<QDateTime> moments;
    const auto addIfShown = [&](qint64 candidate) {
        const QDateTime moment = at(clock - candidate);
        if (offset(moment) == candidate)
            moments.append(moment);
    };
    addIfShown(before);
    if (after != before)
        addIfShown(after);
    return moments;
}

QString clockOffset(const QDateTime& moment)
{
    return moment.toOffsetFromUtc(moment.offsetFromUtc()).timeZoneAbbreviation();
}

QString zoneText(const QDateTime& moment)
{
    const QString offset = clockOffset(moment);
    const QString name = QString::fromUtf8(moment.timeZone().id());
    if (moment.timeSpec() == Qt::OffsetFromUTC || name.endsWith(u"UTC"_s))
        return offset;
    return u"%1 (%2)"_s.arg(name, offset);
}

QString shortDateFormat()
{
    QString format = QLocale().dateFormat(QLocale::ShortFormat);
    if (!format.contains(u"yyyy"_s))
        format.replace(u"yy"_s, u"yyyy"_s);
    return format;
}

} // namespace CorvelGui
