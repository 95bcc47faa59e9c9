#pragma once

#include "base/internalexport.h"

#include <QDateTime>
#include <QList>

namespace CorvelGui {

/// The moments at which a clock in the zone of @p zone shows @p date and @p time, earliest first.
/// Usually one; none where the clocks are put forward past that time; two where they are put back
/// over it. They keep the zone, also a fixed offset.
CORVELGUI_INTERNAL_EXPORT QList<QDateTime> localMoments(QDate date, QTime time,
                                                        const QDateTime& zone);

} // namespace CorvelGui
