// SPDX-License-Identifier: MIT
#pragma once

#include "csvtable.h"
#include "severity.h"

#include <CorvelGui/TrackDescription>

#include <QCoreApplication>

#include <optional>

namespace Review {

/// Turns the values of a line into times and spans. Each operation returns what is wrong with the
/// values, or nothing and the results in its last arguments.
class LineParser
{
    Q_DECLARE_TR_FUNCTIONS(Review::LineParser)

public:
    static LineFault parseTime(QByteArrayView text, qint64& result);
    /// Reads the columns camera, begin and end.
    static LineFault parseTrackSpan(const CsvTable::Values& values, QString& track,
                                    CorvelGui::TimeSpan& span);
    /// Reads a number of seconds, 0 or more, with decimals or without. Empty counts as 0.
    static LineFault parseSeconds(QByteArrayView text, qint64& msecs);
    /// Reads one of severityWords, in upper or lower case, or its number from 0 on. Empty counts as
    /// none.
    static LineFault parseSeverity(QByteArrayView text, std::optional<Severity>& severity);
};

} // namespace Review
