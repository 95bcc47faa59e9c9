// SPDX-License-Identifier: MIT
#pragma once

#include "csvtable.h"

namespace Review {

/// Reads JSON lines: an object in each line, whose keys are the columns. Its values are texts or
/// numbers. Empty lines are skipped.
class JsonLines
{
    Q_DECLARE_TR_FUNCTIONS(Review::JsonLines)

public:
    /// As CsvTable::read().
    static QString read(const QString& path, const QStringList& neededKeys,
                        const QStringList& optionalKeys, const CsvTable::LineHandler& handler,
                        ProblemList& problems, JobProgress& progress);
};

} // namespace Review
