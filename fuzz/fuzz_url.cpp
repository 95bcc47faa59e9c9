// SPDX-License-Identifier: MIT
// The rules for server addresses: host and port of an accepted one make an accepted one again, and
// Qt reads the same out of it.

#include "fuzzing.h"

#include <Corvel/UrlChecker>

#include <QHostAddress>
#include <QUrl>

using Corvel::UrlChecker;
using namespace Qt::StringLiterals;
using Fuzzing::require;

namespace {

void checkSame(const QString& url, const QString& host, int port)
{
    QString otherHost;
    int otherPort = 0;
    require(UrlChecker::IsUrlValid(url, otherHost, otherPort), "host and port are accepted");
    require(otherHost == host, "the host stays");
    require(otherPort == port, "the port stays");
}

void checkRefused(const QString& url)
{
    QString host = u"old"_s;
    int port = -1;
    require(!UrlChecker::IsUrlValid(url, host, port), "it is refused");
    require(host.isEmpty() && port == 0, "a refused text has no host and no port");
}

void checkAccepted(const QString& url, const QString& host, int port)
{
    require(!host.isEmpty() && port >= 1 && port <= 65535, "there is a host and a port");
    const QUrl parsed(url.contains("://"_L1) ? url : "http://"_L1 + url, QUrl::StrictMode);
    require(parsed.isValid() && parsed.host() == host && parsed.port(port) == port,
            "QUrl reads the same");
    const QHostAddress address(host);
    require(address.protocol() != QHostAddress::IPv4Protocol || address.toString() == host,
            "an IPv4 address has its usual form");

    const QString bare =
        (host.contains(u':') ? u"[%1]"_s : u"%1"_s).arg(host) + u':' + QString::number(port);
    checkSame(bare, host, port);
    checkSame(u"RTSP://user:word@"_s + bare + u"/path?a=b#c"_s, host, port);
    checkRefused(u"mailto:"_s + url);
    checkRefused(u' ' + url);
    checkRefused(url + u'\n');
    checkRefused(url + QChar(0xd800));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 2)
        return 0;
    const QString url = Fuzzing::toText(data + 1, size - 1, data[0] & 1);
    QString host = u"old"_s;
    int port = -1;
    if (UrlChecker::IsUrlValid(url, host, port))
        checkAccepted(url, host, port);
    else
        checkRefused(url);
    return 0;
}
