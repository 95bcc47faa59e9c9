// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace Review {

/// An event as a list shows it.
struct EventLine
{
    qint64 time = 0; ///< milliseconds since the Unix epoch
    /// Identifier of its track; may be empty.
    QString track = {};
    /// What the columns say.
    QStringList texts = {};
};

/// More events than that nobody reads on paper.
constexpr qsizetype mostReportedEvents = 10'000;

} // namespace Review
