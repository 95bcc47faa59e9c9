// SPDX-License-Identifier: MIT
#pragma once

#include <Corvel/corvel_export.h>

#include <QDateTime>
#include <QString>
#include <QTimeZone>

namespace Corvel {

/// Time zones as clients configure them: by IANA name ("Europe/Berlin") or by Windows name
/// ("W. Europe Standard Time").
class CORVEL_EXPORT TimeZoneHelper
{
public:
    TimeZoneHelper() = delete;

    /// The instant @p msecs milliseconds after the Unix epoch, on the clock of @p zone.
    /// With a zone that is not valid, such as a default-constructed one, on the clock of this
    /// machine.
    static QDateTime fromMSecsSinceEpoch(qint64 msecs, const QTimeZone& zone);

    /// The IANA identifier for a configured zone name, in the form in which QTimeZone takes it.
    /// White space around the name does not count. An empty or unknown name gives an empty string.
    static QString getTimeZone(const QString& name);
};

} // namespace Corvel
