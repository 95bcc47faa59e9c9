// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QDateTime>
#include <QList>
#include <QString>

namespace CorvelGui {

/// The moments at which a clock in the zone of @p zone shows @p date and @p time, earliest first.
/// Usually one; none where the clocks are put forward past that time; two where they are put back
/// over it. They keep the zone, also a fixed offset.
CORVELGUI_INTERNAL_EXPORT QList<QDateTime> localMoments(QDate date, QTime time,
                                                        const QDateTime& zone);

/// How far the clock of its zone is from UTC at @p moment, as in "UTC+02:00".
QString clockOffset(const QDateTime& moment);

/// The zone that @p moment is in, and its clock then, as in "Europe/Brussels (UTC+02:00)".
QString zoneText(const QDateTime& moment);

/// The short date of the locale, with all digits of the year.
QString shortDateFormat();

} // namespace CorvelGui
