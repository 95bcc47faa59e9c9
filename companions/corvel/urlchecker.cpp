// SPDX-License-Identifier: MIT
#include "urlchecker.h"

#include <QHostAddress>
#include <QUrl>

#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace Corvel {

namespace {

constexpr qsizetype longestUrl = 8000;
constexpr qsizetype longestName = 253;
constexpr qsizetype longestLabel = 63;

constexpr struct
{
    QLatin1StringView scheme;
    int port;
} schemes[] = {{"http"_L1, 80}, {"https"_L1, 443}, {"ftp"_L1, 21}, {"rtsp"_L1, 554}};

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool isHexDigit(QChar character)
{
    return isDigit(character) || (character >= u'a' && character <= u'f');
}

// As QUrl reads a host: before it, a user; after it, a port.
struct Authority
{
    QStringView host;
    std::optional<QStringView> port;
};

Authority splitAuthority(QStringView authority)
{
    const QStringView server = authority.mid(authority.lastIndexOf(u'@') + 1);
    const qsizetype colon = server.indexOf(u':', std::max(server.lastIndexOf(u']'), qsizetype(0)));
    if (colon < 0)
        return {server, {}};
    return {server.left(colon), server.mid(colon + 1)};
}

bool isPort(QStringView port)
{
    return !port.isEmpty() && port.size() <= 5 && std::ranges::all_of(port, isDigit) &&
           port.toInt() >= 1 && port.toInt() <= 65535;
}

bool isVisible(const QString& text)
{
    return text.isValidUtf16() && std::ranges::none_of(text.toUcs4(), [](char32_t character) {
               const QChar::Category category = QChar::category(character);
               return QChar::isSpace(character) || category == QChar::Other_Control ||
                      category == QChar::Other_Format;
           });
}

bool isIpv6(QStringView host)
{
    if (!host.startsWith(u'[') || !host.endsWith(u']') || host.contains(u'%'))
        return false;
    QHostAddress address;
    return address.setAddress(host.mid(1, host.size() - 2).toString()) &&
           address.protocol() == QHostAddress::IPv6Protocol;
}

bool isIpv4(const QList<QStringView>& numbers)
{
    return numbers.size() == 4 && std::ranges::all_of(numbers, [](QStringView number) {
               const bool padded = number.size() > 1 && number.startsWith(u'0');
               return !number.isEmpty() && number.size() <= 3 && !padded &&
                      std::ranges::all_of(number, isDigit) && number.toInt() <= 255;
           });
}

// Resolvers take such names for addresses.
bool looksLikeIpv4(QStringView lastLabel)
{
    return std::ranges::all_of(lastLabel, isDigit) ||
           (lastLabel.startsWith("0x"_L1) && std::ranges::all_of(lastLabel.mid(2), isHexDigit));
}

bool isLabel(QStringView label)
{
    return !label.isEmpty() && label.size() <= longestLabel && !label.startsWith(u'-') &&
           !label.endsWith(u'-') && std::ranges::all_of(label, [](QChar character) {
               return isDigit(character) || (character >= u'a' && character <= u'z') ||
                      character == u'-' || character == u'_';
           });
}

bool isNameOrIpv4(QStringView host)
{
    if (host.size() > longestName)
        return false;
    // The form of name servers: lower case, without international letters and dots.
    const QString ascii = QString::fromLatin1(QUrl::toAce(host.toString())).toLower();
    const QList<QStringView> labels = QStringView(ascii).split(u'.');
    if (looksLikeIpv4(labels.last()))
        return isIpv4(labels);
    return ascii.size() <= longestName && std::ranges::all_of(labels, isLabel);
}

} // namespace

bool UrlChecker::IsUrlValid(const QString& url, QString& host, int& port)
{
    const QString typed = url;
    host.clear();
    port = 0;
    if (typed.size() > longestUrl || !isVisible(typed))
        return false;

    const QStringView text(typed);
    const qsizetype schemeEnd = text.indexOf("://"_L1);
    QStringView authority = text;
    int defaultPort = schemes[0].port;
    if (schemeEnd >= 0) {
        const auto* known = std::ranges::find_if(schemes, [&](const auto& entry) {
            return text.left(schemeEnd).compare(entry.scheme, Qt::CaseInsensitive) == 0;
        });
        if (known == std::end(schemes))
            return false;
        defaultPort = known->port;
        const QStringView rest = text.mid(schemeEnd + 3);
        const auto end = std::ranges::find_if(
            rest, [](QChar character) { return u"/?#"_s.contains(character); });
        authority = rest.first(end - rest.begin());
    } else if (std::ranges::any_of(text,
                                   [](QChar character) { return u"/?#@"_s.contains(character); })) {
        return false;
    }

    const Authority parts = splitAuthority(authority);
    if (parts.port && !isPort(*parts.port))
        return false;
    if (!isIpv6(parts.host) && !isNameOrIpv4(parts.host))
        return false;
    const QUrl parsed(schemeEnd < 0 ? "http://"_L1 + typed : typed, QUrl::StrictMode);
    if (!parsed.isValid() || parsed.host().isEmpty())
        return false;
    host = parsed.host();
    port = parsed.port(defaultPort);
    return true;
}

} // namespace Corvel
