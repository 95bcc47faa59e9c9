// SPDX-License-Identifier: MIT
#include "versionfile.h"

#include <QHash>

namespace CorvelGui {

namespace {

// A window would be busy for minutes with a line of a million.
constexpr qsizetype longestDate = 100;

QString shortenedDate(QString date)
{
    date.truncate(longestDate);
    if (date.size() == longestDate && date.back().isHighSurrogate())
        date.chop(1);
    return date.trimmed();
}

} // namespace

std::optional<VersionFile> VersionFile::parse(QByteArrayView content)
{
    const QString text = QString::fromUtf8(content);
    QHash<QStringView, QStringView> entries;
    for (const QStringView line : QStringView(text).split(u'\n')) {
        const qsizetype separator = line.indexOf(u'=');
        if (separator >= 0 && line.lastIndexOf(u'=') == separator)
            entries.insert(line.left(separator), line.mid(separator + 1).trimmed());
    }
    const auto value = [&entries](QStringView key) {
        return entries.value(key).toString();
    };

    const std::optional<ReleaseVersion> version = ReleaseVersion::parse(value(u"version"));
    const QString updateFile = value(u"updatefile");
    if (!version || updateFile.isEmpty())
        return {};
    return VersionFile{.version = *version,
                       .updateFile = updateFile,
                       .readmeFile = value(u"readmefile"),
                       .releaseDate = shortenedDate(value(u"releasedate"))};
}

} // namespace CorvelGui
