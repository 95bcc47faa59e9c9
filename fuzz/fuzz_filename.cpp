// SPDX-License-Identifier: MIT
// The rules for typed file names: what they accept can be written to a drive and read back by them.

#include "fuzzing.h"

#include "input/filenamerules.h"

#include <algorithm>
#include <string_view>

using namespace CorvelGui;
using namespace Qt::StringLiterals;
using Fuzzing::require;

namespace {

// Long enough for libFuzzer's time limit to find what is quadratic.
constexpr qsizetype longText = 50'000;

bool isAccepted(const QString& name, bool strict)
{
    return !name.isEmpty() && !forbiddenCharacter(name, strict) && !isDeviceName(name, strict);
}

QString lastComponent(const QString& name)
{
    return name.mid(std::max(name.lastIndexOf(u'/'), name.lastIndexOf(u'\\')) + 1);
}

void checkParts(const QString& path, bool driveLetters)
{
    const std::optional<QString> part = checkedNamePart(path, driveLetters);
    if (!part) {
        require(!path.contains(":\\"_L1), "only a path without a drive has no name");
        require(driveLetters || !path.startsWith(u'/'), "a slash stands for a drive");
        return;
    }
    require(path.contains(*part), "the name is a part of the path");
    require(!part->contains(":\\"_L1), "the name is within one drive");
}

void checkName(const QString& name, bool strict)
{
    if (const std::optional<QChar> character = forbiddenCharacter(name, strict)) {
        require(name.contains(*character), "a reported character is in the name");
        require(strict || *character != u'+', "a plus sign is forbidden to strict names only");
    }
    if (!isAccepted(name, strict))
        return;
    for (const char forbidden : std::string_view(",^@={}[]~!?:&*\"|#%<>$'();` "))
        require(!name.contains(QLatin1Char(forbidden)), "no forbidden character");
    require(checkedNamePart(u"D:\\"_s + name, true) == name, "the name is found behind a drive");
    require(checkedNamePart(u'/' + name, false) == name, "the name is found behind a slash");
    // The pattern of devices knows neither lines nor broken characters before a separator.
    if (name.isValidUtf16() && name.contains(u'\\'))
        require(name.contains(u'\n') || lastComponent(name).compare("nul"_L1, Qt::CaseInsensitive),
                "no device at the end");
    const QString file = name + u".csv"_s;
    require(isAccepted(file, strict), "an extension does no harm");
    require(hasExtension(file, {u"txt"_s, u"csv"_s}), "the extension is found");
    require(!hasExtension(file, {u"CSV"_s}), "extensions differ by their case");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 2)
        return 0;
    const uint8_t choice = data[0];
    QString text = Fuzzing::toText(data + 1, size - 1, choice & 1);
    if (choice == 0xff && data[1] == 'l' && !text.isEmpty())
        text = text.repeated(longText / text.size());
    checkParts(text, choice & 2);
    checkName(text, choice & 4);
    if (const std::optional<QString> name = checkedNamePart(text, choice & 2))
        checkName(*name, choice & 4);
    return 0;
}
