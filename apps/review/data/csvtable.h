// SPDX-License-Identifier: MIT
#pragma once

#include "jobprogress.h"
#include "problemlist.h"

#include <QByteArrayView>
#include <QCoreApplication>
#include <QStringList>

#include <functional>

namespace Review {

/// Reads CSV files whose header line names the columns, in any order. They are UTF-8, or begin with
/// the byte order mark of another encoding of Unicode.
class CsvTable
{
    Q_DECLARE_TR_FUNCTIONS(Review::CsvTable)

public:
    /// The values of one line in the order of the columns that were asked for, without white space
    /// around them.
    using Values = QList<QByteArrayView>;
    /// Takes a line over. Returns what is wrong with it.
    using LineHandler = std::function<LineFault(const Values&)>;

    /// Hands every line of the file at @p path that has all its fields to @p handler; what is wrong
    /// with the others goes to @p problems. Columns that are not asked for are passed over; those
    /// in @p optionalColumns come behind the needed ones, and are empty where the file has none of
    /// that name. A column "track" counts as "camera". Returns why the file cannot be read at all,
    /// or an empty string. A cancelled @p progress ends it at the next line.
    static QString read(const QString& path, const QStringList& neededColumns,
                        const QStringList& optionalColumns, const LineHandler& handler,
                        ProblemList& problems, JobProgress& progress);
};

} // namespace Review
