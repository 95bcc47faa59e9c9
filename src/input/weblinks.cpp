// SPDX-License-Identifier: MIT
#include "weblinks.h"

#include <Corvel/UrlChecker>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

/// How many characters of @p text, which begins with an address, belong to it.
qsizetype addressLength(QStringView text)
{
    const auto* ending = std::ranges::find_if(text, [](QChar character) {
        return character.isSpace() || !character.isPrint() || u"<>\"“”„«»"_s.contains(character);
    });
    QStringView address = text.first(ending - text.begin());
    const auto closesMore = [&address](QChar open, QChar close) {
        return address.endsWith(close) && address.count(close) > address.count(open);
    };
    while (!address.isEmpty() &&
           (u".,;:!?'’…"_s.contains(address.back()) || closesMore(u'(', u')') ||
            closesMore(u'[', u']') || closesMore(u'{', u'}')))
        address.chop(1);
    return address.size();
}

} // namespace

QList<WebLink> webLinks(const QString& text)
{
    QList<WebLink> links;
    qsizetype begin = 0;
    while ((begin = text.indexOf("http"_L1, begin, Qt::CaseInsensitive)) >= 0) {
        const QStringView rest = QStringView(text).mid(begin);
        const bool isScheme = rest.startsWith("http://"_L1, Qt::CaseInsensitive) ||
                              rest.startsWith("https://"_L1, Qt::CaseInsensitive);
        const bool startsWord = begin == 0 || !text[begin - 1].isLetterOrNumber();
        const qsizetype length = isScheme && startsWord ? addressLength(rest) : 0;
        QString host;
        int port = 0;
        if (length > 0 &&
            Corvel::UrlChecker::IsUrlValid(rest.first(length).toString(), host, port)) {
            links.append({begin, length});
            begin += length;
        } else {
            begin += 4;
        }
    }
    return links;
}

} // namespace CorvelGui
