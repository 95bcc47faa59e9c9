// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>

namespace Review {

/// Splits comma-separated text as of RFC 4180 into records: lines end with CRLF or LF, a field in
/// double quotes may hold separators, line breaks and doubled quotes. A byte order mark and empty
/// lines are skipped. Semicolons or tabs may stand for the commas: whichever comes first in the
/// first record.
///
/// A faulty record costs its first line only: reading goes on with the line behind it.
class CsvReader
{
public:
    enum class Fault {
        None,
        NotUtf8,
        OpenQuote,      ///< a quoted field goes on to the end of the text
        TextBehindQuote ///< a closing quote is not followed by a separator or the end of the line
    };

    explicit CsvReader(const QByteArray& text);

    /// Goes to the next record, the first one at the first call. Returns false when there is none.
    bool next();

    /// The line in which the record begins, counted from 1.
    qsizetype line() const { return m_line; }
    /// How many bytes have been read.
    qsizetype position() const { return m_position; }
    Fault fault() const { return m_fault; }
    /// The record's fields without their quotes; none if it is faulty.
    const QList<QByteArray>& fields() const { return m_fields; }

private:
    char findSeparator() const;
    bool atLineEnd() const;
    void skipLineEnd();
    Fault readRecord();
    void readPlainField();
    Fault readQuotedField();

    const QByteArray m_text;
    qsizetype m_position = 0;
    char m_separator = 0; ///< found with the first record
    qsizetype m_nextLine = 1;
    qsizetype m_line = 0;
    Fault m_fault = Fault::None;
    QList<QByteArray> m_fields;
};

} // namespace Review
