// SPDX-License-Identifier: MIT
#include "jsonlines.h"

#include "textfile.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Review {

namespace {

constexpr const char* jsonContext = "Review::JsonLines";

/// Puts the values of the keys, of which the first @p needed must be there, into @p values. Returns
/// what is wrong with the line.
LineFault valuesOf(const QByteArray& line, const QStringList& keys, qsizetype needed,
                   QList<QByteArray>& values)
{
    QJsonParseError error;
    QJsonObject object = QJsonDocument::fromJson(line, &error).object();
    if (error.error != QJsonParseError::NoError || object.isEmpty())
        return {jsonContext, QT_TRANSLATE_NOOP("Review::JsonLines", "the line is no JSON object")};
    if (!object.contains(u"camera"_s))
        object.insert(u"camera"_s, object.take(u"track"_s));
    values.clear();
    for (const QString& key : keys) {
        const QJsonValue value = object.value(key);
        if (value.isUndefined() && values.size() < needed)
            return {jsonContext,
                    QT_TRANSLATE_NOOP("Review::JsonLines", "the object has no “%1”"),
                    {key}};
        if (!value.isUndefined() && !value.isNull() && !value.isString() && !value.isDouble())
            return {jsonContext,
                    QT_TRANSLATE_NOOP("Review::JsonLines", "“%1” is neither a text nor a number"),
                    {key}};
        values.append(value.toVariant().toString().toUtf8().trimmed());
    }
    return {};
}

} // namespace

QString JsonLines::read(const QString& path, const QStringList& neededKeys,
                        const QStringList& optionalKeys, const CsvTable::LineHandler& handler,
                        ProblemList& problems, JobProgress& progress)
{
    QString error;
    const QByteArray text = readText(path, error);
    if (!error.isEmpty())
        return error;
    const QStringList keys = neededKeys + optionalKeys;
    QList<QByteArray> values;
    qsizetype number = 0;
    for (qsizetype begin = 0; begin < text.size() && !progress.isCancelled();) {
        const qsizetype found = text.indexOf('\n', begin);
        const qsizetype end = found < 0 ? text.size() : found;
        const QByteArray line = text.sliced(begin, end - begin).trimmed();
        ++number;
        progress.add(std::min(end + 1, text.size()) - begin);
        begin = end + 1;
        if (line.isEmpty())
            continue;
        LineFault fault = valuesOf(line, keys, neededKeys.size(), values);
        if (fault.isEmpty())
            fault = handler({values.cbegin(), values.cend()});
        if (!fault.isEmpty())
            problems.add({path, number, fault});
    }
    // What was read is UTF-8 without a mark; the file may be longer or shorter.
    progress.add(QFileInfo(path).size() - text.size());
    return {};
}

} // namespace Review
