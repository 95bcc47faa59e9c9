// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QTimeZone>

namespace Review {

/// Writes comma-separated text that CsvTable reads.
class CsvWriter
{
public:
    /// @p separator is a comma, a semicolon or a tab. @p columns go into the first line.
    CsvWriter(const QList<QByteArray>& columns, char separator);
    /// What spreadsheets of the user's country expect.
    static char userSeparator();

    /// @p fields are UTF-8.
    void add(const QList<QByteArray>& fields);
    const QByteArray& text() const { return m_text; }

    /// What the zone's clock shows, with its offset from UTC. @p msecs since the Unix epoch.
    static QByteArray timeText(qint64 msecs, const QTimeZone& zone);
    /// Milliseconds as seconds, with as many decimals as it takes.
    static QByteArray secondsText(qint64 msecs);

private:
    const char m_separator;
    QByteArray m_text;
};

} // namespace Review
