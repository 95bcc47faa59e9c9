// SPDX-License-Identifier: MIT
#include "textfile.h"

#include <CorvelGui/StringHelper>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringConverter>

using CorvelGui::StringHelper;

namespace Review {

namespace {

constexpr qint64 largestFile = qint64(1) << 30;

QString fileText(const char* text)
{
    return QCoreApplication::translate("Review::TextFile", text);
}

/// Why nothing is read from @p path; empty if it can be tried.
QString unfitness(const QString& path)
{
    const QFileInfo file(path);
    if (file.isDir())
        return fileText(QT_TRANSLATE_NOOP("Review::TextFile", "it is a folder"));
    // Devices and pipes need not come to an end.
    if (file.exists() && !file.isFile())
        return fileText(QT_TRANSLATE_NOOP("Review::TextFile", "it is not a file"));
    if (file.size() > largestFile)
        return fileText(QT_TRANSLATE_NOOP("Review::TextFile", "it is larger than %1"))
            .arg(StringHelper::size(largestFile));
    return {};
}

} // namespace

QString unreadable(const QString& path, const QString& reason)
{
    return fileText(QT_TRANSLATE_NOOP("Review::TextFile", "Cannot read %1: %2"))
        .arg(QDir::toNativeSeparators(path), reason);
}

QByteArray readText(const QString& path, QString& error)
{
    if (const QString reason = unfitness(path); !reason.isEmpty()) {
        error = unreadable(path, reason);
        return {};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = unreadable(path, file.errorString());
        return {};
    }
    QByteArray text = file.readAll();
    if (file.error() != QFileDevice::NoError)
        error = unreadable(path, file.errorString());
    // What spreadsheets call Unicode text.
    const auto encoding = QStringConverter::encodingForData(text);
    if (encoding && *encoding != QStringConverter::Utf8)
        return QString(QStringDecoder(*encoding).decode(text)).toUtf8();
    constexpr QByteArrayView mark("\xEF\xBB\xBF");
    return text.startsWith(mark) ? text.sliced(mark.size()) : text;
}

} // namespace Review
