// SPDX-License-Identifier: MIT
// File names that are made of texts of strangers, and texts that are cut for want of room.

#include "fuzzing.h"

#include <CorvelGui/StringHelper>

#include <algorithm>
#include <string_view>

using CorvelGui::StringHelper;
using Fuzzing::require;

namespace {

// Long enough for libFuzzer's time limit to find what is quadratic.
constexpr qsizetype longText = 20'000;

void checkName(const QString& text, qsizetype longest)
{
    const QString fallback = QStringLiteral("file");
    const QString name = StringHelper::safeFileName(text, fallback, longest);
    require(!name.isEmpty() && name.size() <= longest, "the name has a length");
    require(name.toUtf8().size() <= 240, "the name has a length in bytes");
    require(name.isValidUtf16(), "characters are whole");
    for (const char forbidden : std::string_view("<>:\"/\\|?*"))
        require(!name.contains(QLatin1Char(forbidden)), "no forbidden character");
    require(std::ranges::none_of(name, [](QChar c) { return c < QChar(u' '); }), "no control");
    for (const QChar end : {name.front(), name.back()})
        require(end != QChar(u'.') && !end.isSpace(), "neither dots nor blanks at the ends");
    require(name.compare(QStringLiteral("nul"), Qt::CaseInsensitive) != 0, "no device");
    require(StringHelper::safeFileName(name, fallback, longest) == name, "safe once, safe twice");
}

void checkElision(const QString& text, qsizetype longest)
{
    const QString elided = StringHelper::elidedInMiddle(text, longest);
    require(elided.size() <= longest, "there is room for the rest");
    require(elided.isValidUtf16() || !text.isValidUtf16(), "characters are not split");
    require((elided == text) == (text.size() <= longest), "nothing is elided without need");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 2)
        return 0;
    QString text = Fuzzing::toText(data + 2, size - 2, data[0] & 1);
    if (data[1] == 0xff && !text.isEmpty())
        text = text.repeated(longText / text.size());
    checkName(text, 16 + data[1]);
    checkElision(text, data[1]);
    return 0;
}
