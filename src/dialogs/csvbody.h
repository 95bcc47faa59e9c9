// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QBitArray>
#include <QChar>

class QAbstractItemModel;
class QItemSelection;
class QTextStream;

namespace CorvelGui {

/// How a list is written as comma-separated values.
struct CsvFormat
{
    QChar delimiter;
    QChar quote;
    bool columnNames;  ///< a first line with the names of the columns
    QBitArray columns; ///< which columns of the list are written; those beyond its end are not
    int columnCount;   ///< how many of them are written
    bool wellFormed = false;
};

/// Writes what is selected in a list, a line for each row with a selected cell in a written column:
/// parents before their children, whether they are visible or not.
///
/// Every text stands between quotes and is otherwise written as it is. A delimiter follows a text
/// if the number of its column is less than CsvFormat::columnCount minus one: where an
/// unwritten column stands before written ones, delimiters are missing at the end of the line.
/// With CsvFormat::wellFormed there is one between any two texts, quotes in a text are doubled, and
/// cells of such a row that are not selected are empty.
///
/// The time grows with the cells of the list and the ranges of the selection, not their product.
CORVELGUI_INTERNAL_EXPORT void writeCsv(QTextStream& out, const QAbstractItemModel& list,
                                        const QItemSelection& selection, const CsvFormat& format);

} // namespace CorvelGui
