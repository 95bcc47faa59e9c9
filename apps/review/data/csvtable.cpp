// SPDX-License-Identifier: MIT
#include "csvtable.h"

#include "csvreader.h"
#include "textfile.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace Review {

namespace {

constexpr const char* context = "Review::CsvTable";
constexpr qsizetype missing = -1;

/// Recordings of a camera are a track of the timeline, and many files call it that.
QString columnName(const QByteArray& header)
{
    const QString name = QString::fromUtf8(header).trimmed();
    return name == "track"_L1 ? u"camera"_s : name;
}

/// Reads the header line. Returns why that cannot be done, or an empty string.
QString readHeader(CsvReader& reader, QStringList& header)
{
    if (!reader.next() || reader.fault() != CsvReader::Fault::None)
        return CsvTable::tr("it has no header line that names its columns");
    for (const QByteArray& field : reader.fields())
        header.append(columnName(field));
    return {};
}

/// Finds where the columns stand. Returns why they cannot be used, or an empty string.
QString findColumns(const QStringList& header, const QStringList& needed,
                    const QStringList& optional, QList<qsizetype>& positions)
{
    for (const QString& column : needed + optional) {
        positions.append(header.indexOf(column));
        if (positions.last() == missing && needed.contains(column))
            return CsvTable::tr("it has no column “%1”").arg(column);
        if (header.count(column) > 1)
            return CsvTable::tr("it has more than one column “%1”").arg(column);
    }
    return {};
}

/// What is wrong with the line, whatever its fields say.
LineFault faultOf(const CsvReader& reader, qsizetype fieldCount)
{
    switch (reader.fault()) {
    case CsvReader::Fault::NotUtf8:
        return {context, QT_TRANSLATE_NOOP("Review::CsvTable", "the line is not UTF-8")};
    case CsvReader::Fault::OpenQuote:
        return {context, QT_TRANSLATE_NOOP("Review::CsvTable", "a quote is not closed")};
    case CsvReader::Fault::TextBehindQuote:
        return {context,
                QT_TRANSLATE_NOOP("Review::CsvTable", "there is text behind a closing quote")};
    case CsvReader::Fault::None:
        break;
    }
    const qsizetype count = reader.fields().size();
    if (count == fieldCount)
        return {};
    return {context,
            QT_TRANSLATE_NOOP("Review::CsvTable", "%1 fields instead of %2"),
            {QString::number(count), QString::number(fieldCount)}};
}

} // namespace

QString CsvTable::read(const QString& path, const QStringList& neededColumns,
                       const QStringList& optionalColumns, const LineHandler& handler,
                       ProblemList& problems, JobProgress& progress)
{
    QString error;
    CsvReader reader(readText(path, error));
    if (!error.isEmpty())
        return error;
    QStringList header;
    QList<qsizetype> positions;
    error = readHeader(reader, header);
    if (error.isEmpty())
        error = findColumns(header, neededColumns, optionalColumns, positions);
    if (!error.isEmpty())
        return unreadable(path, error);

    qint64 done = 0;
    const qint64 size = QFileInfo(path).size();
    const auto follow = [&](qint64 position) {
        progress.add(position - std::exchange(done, position));
    };
    Values values(positions.size());
    while (!progress.isCancelled() && reader.next()) {
        // What is read is UTF-8; the file may be shorter or longer.
        follow(std::min<qint64>(reader.position(), size));
        LineFault problem = faultOf(reader, header.size());
        if (problem.isEmpty()) {
            for (qsizetype i = 0; i < positions.size(); ++i)
                values[i] = positions[i] == missing
                                ? QByteArrayView()
                                : QByteArrayView(reader.fields()[positions[i]]).trimmed();
            problem = handler(values);
        }
        if (!problem.isEmpty())
            problems.add({path, reader.line(), problem});
    }
    follow(size);
    return {};
}

} // namespace Review
