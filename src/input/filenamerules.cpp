// SPDX-License-Identifier: MIT
#include "filenamerules.h"

#include <QDir>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr QLatin1StringView deviceNames = "CON|AUX|PRN|COM1|COM2|LPT1|LPT2|NUL"_L1;

QString deviceAtTheEnd()
{
    return QRegularExpression::anchoredPattern(uR"(.*[/\\]()"_s + deviceNames + u')');
}

QRegularExpression caseless(const QString& pattern)
{
    return QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption);
}

} // namespace

bool hasDriveLetters()
{
    return QDir::rootPath() != "/"_L1;
}

std::optional<QString> checkedNamePart(const QString& path, bool driveLetters)
{
    constexpr QLatin1StringView driveEnd = ":\\"_L1;
    qsizetype begin = path.indexOf(driveEnd) + driveEnd.size();
    if (!driveLetters && path.startsWith(u'/'))
        begin = 1;
    else if (begin < driveEnd.size()) {
        if (path.size() >= 2 && !path.contains("\\\\"_L1))
            return {};
        return path;
    }
    const qsizetype end = path.indexOf(driveEnd, begin);
    return path.mid(begin, end < 0 ? -1 : end - begin);
}

std::optional<QChar> forbiddenCharacter(const QString& name, bool strict)
{
    // The order decides which one is reported.
    static constexpr QStringView characters = u",^@=+{}[]~!?:&*\"|#%<>$'();` ";
    const auto found = std::ranges::find_if(characters, [&](QChar character) {
        return (strict || character != u'+') && name.contains(character);
    });
    if (found == characters.end())
        return {};
    return *found;
}

bool isDeviceName(const QString& name, bool strict)
{
    static const QRegularExpression atTheEnd = caseless(deviceAtTheEnd());
    static const QRegularExpression whole =
        caseless(QRegularExpression::anchoredPattern(deviceNames));
    return atTheEnd.match(name).hasMatch() || (strict && whole.match(name).hasMatch());
}

QString deviceNamesForDisplay()
{
    return deviceAtTheEnd().replace(u'|', u',');
}

bool hasExtension(const QString& name, const QStringList& extensions)
{
    return extensions.isEmpty() || std::ranges::any_of(extensions, [&](const QString& extension) {
               return name.size() > extension.size() + 1 && name.endsWith(u'.' + extension);
           });
}

} // namespace CorvelGui
