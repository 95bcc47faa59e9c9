// SPDX-License-Identifier: MIT
// The reduction of change logs: what is left has only allowed elements, well nested, and reducing
// it again changes nothing. libFuzzer's time limit finds what is quadratic.

#include "fuzzing.h"

#include "update/harmlesshtml.h"
#include "update/weblink.h"

#include <QRegularExpression>
#include <QStringList>

using namespace Qt::StringLiterals;
using Fuzzing::require;

namespace {

constexpr qsizetype longText = 200'000;

void checkTags(const QString& html)
{
    static const QRegularExpression tag(
        u"\\G<(?:(?<single>br|hr)|(?<link>a) href=\"(?<target>[^\"<>]*)\"|(?<begin>b|blockquote|"
        "code|d[dlt]|div|em|h[1-6]|i|li|ol|p|pre|s|strong|su[bp]|table|t[dhrt]|u|ul)|"
        "/(?<end>[a-z0-9]+))>"_s);
    QStringList open;
    for (qsizetype at = html.indexOf(u'<'); at >= 0; at = html.indexOf(u'<', at + 1)) {
        const auto match = tag.match(html, at);
        require(match.hasMatch(), "there are no other elements and attributes");
        const QString begin = match.captured(u"begin"_s) + match.captured(u"link"_s);
        if (const QString end = match.captured(u"end"_s); !end.isEmpty())
            require(!open.isEmpty() && open.takeLast() == end, "elements end in order");
        else if (!begin.isEmpty())
            open.append(begin);
        if (begin == u'a')
            require(CorvelGui::leadsToTheWeb(QUrl(match.captured(u"target"_s))), "on the web");
        require(begin != "table"_L1 || open.count(begin) == 1, "no table inside a table");
        require(open.size() <= 24, "the nesting has a bound");
    }
    require(open.isEmpty(), "all elements end");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 2)
        return 0;
    QString html = Fuzzing::toText(data + 1, size - 1, data[0] & 1);
    const bool isLong = data[0] == 0xff && data[1] == 'l' && !html.isEmpty();
    if (isLong)
        html = html.repeated(longText / html.size() + 1);
    const QString reduced = CorvelGui::harmlessHtml(html);
    checkTags(reduced);
    require(reduced.size() <= 6 * longText, "the length has a bound");
    if (reduced.size() <= longText)
        require(isLong || CorvelGui::harmlessHtml(reduced) == reduced, "it is reduced already");
    return 0;
}
