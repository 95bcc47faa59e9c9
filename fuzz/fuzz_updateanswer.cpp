// SPDX-License-Identifier: MIT
// The answer to an update query: it is refused with a reason, or everything a client relies on is
// there.

#include "corvel/updateanswer.h"
#include "corvel/webaddress.h"
#include "fuzzing.h"

#include <QUrl>

#include <array>
#include <utility>

using Fuzzing::require;

namespace {

// A good answer but for the value of one member: whole answers are found too seldom.
QByteArray answerWith(size_t member, const QByteArray& value)
{
    constexpr std::array<std::pair<const char*, const char*>, 7> good{
        {{"updateAvailable", "true"},
         {"softwareId", "1"},
         {"newVersion", "\"2.1\""},
         {"releaseNotesUrl", "null"},
         {"fileName", "\"setup.exe\""},
         {"size", "0"},
         {"releaseDate", "\"2026-03-02\""}}};
    QByteArray json = "{";
    for (size_t i = 0; i < good.size(); ++i) {
        json += QByteArray(i ? "," : "") + '"' + good[i].first +
                "\":" + (i == member % good.size() ? value : QByteArray(good[i].second));
    }
    return json + '}';
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray text(reinterpret_cast<const char*>(data + 1), qsizetype(size - 1));
    const auto [result, fault] =
        Corvel::parseUpdateAnswer(data[0] < 0x80 ? answerWith(data[0], text) : text);
    if (!fault.isEmpty() || !result.updateAvailable)
        return 0;
    require(result.softwareId >= 0 && result.size >= 0, "numbers are not negative");
    require(!result.newVersion.isNull(), "there is a version");
    require(!result.fileName.isEmpty() && result.fileName.size() <= 255, "the name has a bound");
    require(result.releaseDate && result.releaseDate->isValid(), "there is a date");
    require(result.releaseNotesUrl.isEmpty() || Corvel::isWebAddress(QUrl(result.releaseNotesUrl)),
            "release notes are on the web");
    return 0;
}
