#include "csvtable.h"

#include "csvreader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QStringConverter>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace Review {

namespace {

constexpr const char* context = "Review::CsvTable";
constexpr qsizetype missing = -1;

constexpr qint64 largestFile = qint64(1) << 30;

/// Why nothing is read from @p path; empty if it can be tried.
QString unfitness(const QString& path)
{
    const QFileInfo file(path);
    if (file.isDir())
        return CsvTable::tr("it is a folder");
    // Devices and pipes need not come to an end.
    if (file.exists() && !file.isFile())
        return CsvTable::tr("it is not a file");
    if (file.size() > largestFile)
        return CsvTable::tr("it is larger than %1").arg(QLocale().formattedDataSize(largestFile));
    return {};
}

/// The text of @p path as UTF-8, or nothing and a reason in @p error.
QByteArray contents(const QString& path, QString& error)
{
    error = unfitness(path);
    if (!error.isEmpty())
        return {};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = file.errorString();
        return {};
    }
    const QByteArray text = file.readAll();
    if (file.error() != QFileDevice::NoError)
        error = file.errorString();
    // What spreadsheets call Unicode text.
    const auto encoding = QStringConverter::encodingForData(text);
    if (!encoding || *encoding == QStringConverter::Utf8)
        return text;
    return QString(QStringDecoder(*encoding).decode(text)).toUtf8();
}

/// Recordings of a camera are a track of the timeline, and many files call it that.
QString columnName(const QByteArray& header)
{
    const QString name = QString::fromUtf8(header).trimmed();
    return name == "track"_L1 ? u"camera"_s : name;
}

} // namespace

QString CsvTable::read(const QString& path, const QStringList& neededColumns,
                       const QStringList& optionalColumns, const LineHandler& handler,
                       ProblemList& problems, LoadProgress& progress)
{
    const auto unreadable = [&path](const QString& reason) {
        return tr("Cannot read %1: %2").arg(QDir::toNativeSeparators(path), reason);
    };

    QString error;
    CsvReader reader(contents(path, error));
    if (!error.isEmpty())
        return unreadable(error);
    if (!reader.next() || reader.fault() != CsvReader::Fault::None)
        return unreadable(tr("it has no header line that names its columns"));

    QStringList header;
    for (const QByteArray& field : reader.fields())
        header.append(columnName(field));
    QList<qsizetype> positions;
    for (const QString& column : neededColumns + optionalColumns) {
        positions.append(header.indexOf(column));
        if (positions.last() == missing && neededColumns.contains(column))
            return unreadable(tr("it has no column “%1”").arg(column));
        if (header.count(column) > 1)
            return unreadable(tr("it has more than one column “%1”").arg(column));
    }

    Values values(positions.size());
    const auto handle = [&]() -> LineFault {
        switch (reader.fault()) {
        case CsvReader::Fault::NotUtf8:
            return {context, QT_TR_NOOP("the line is not UTF-8")};
        case CsvReader::Fault::OpenQuote:
            return {context, QT_TR_NOOP("a quote is not closed")};
        case CsvReader::Fault::TextBehindQuote:
            return {context, QT_TR_NOOP("there is text behind a closing quote")};
        case CsvReader::Fault::None:
            break;
        }
        const QList<QByteArray>& fields = reader.fields();
        if (fields.size() != header.size())
            return {context,
                    QT_TR_NOOP("%1 fields instead of %2"),
                    {QString::number(fields.size()), QString::number(header.size())}};
        for (qsizetype i = 0; i < positions.size(); ++i)
            values[i] = positions[i] == missing ? QByteArrayView()
                                                : QByteArrayView(fields[positions[i]]).trimmed();
        return handler(values);
    };
    qint64 done = 0;
    const qint64 size = QFileInfo(path).size();
    const auto follow = [&](qint64 position) {
        progress.add(position - std::exchange(done, position));
    };
    while (!progress.isCancelled() && reader.next()) {
        // What is read is UTF-8; the file may be shorter or longer.
        follow(std::min<qint64>(reader.position(), size));
        const LineFault problem = handle();
        if (!problem.isEmpty())
            problems.add({path, reader.line(), problem});
    }
    follow(size);
    return {};
}

} // namespace Review
