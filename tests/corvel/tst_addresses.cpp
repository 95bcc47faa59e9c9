// SPDX-License-Identifier: MIT
#include "systemaddress.h"
#include "testsupport.h"

#include <Corvel/SubNetMask>
#include <Corvel/UrlChecker>

using namespace Corvel;

class TestAddresses : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void accepts()
    {
        const std::tuple<QString, QString, int> rows[] = {
            {u"http://example.com"_s, u"example.com"_s, 80},
            {u"https://example.com/a:b/?c=d@e#f"_s, u"example.com"_s, 443},
            {u"ftp://example.com?/"_s, u"example.com"_s, 21},
            {u"rtsp://admin:se%40:cret@10.0.0.5/ä"_s, u"10.0.0.5"_s, 554},
            {u"HTTPS://Example.COM:8443#a"_s, u"example.com"_s, 8443},
            {u"http://[2001:0DB8::1]:8080/x"_s, u"2001:db8::1"_s, 8080},
            {u"http://user@[::ffff:10.0.0.1]"_s, u"::ffff:10.0.0.1"_s, 80},
            {u"[::1]"_s, u"::1"_s, 80},
            {u"[::1]:65535"_s, u"::1"_s, 65535},
            {u"camera"_s, u"camera"_s, 80},
            {u"http:1"_s, u"http"_s, 1},
            {u"nvr_2.site-1.local"_s, u"nvr_2.site-1.local"_s, 80},
            {u"255.255.255.255"_s, u"255.255.255.255"_s, 80},
            {u"0.0.0.0:80"_s, u"0.0.0.0"_s, 80},
            {u"1.2.3.com"_s, u"1.2.3.com"_s, 80},
            {u"0xyz"_s, u"0xyz"_s, 80},
            {u"Müller.de"_s, u"müller.de"_s, 80},
            {u"https://xn--mller-kva.de:81"_s, u"müller.de"_s, 81},
            {u"bücher.invalid"_s, u"xn--bcher-kva.invalid"_s, 80},
            {u"http://пример。рф"_s, u"пример.рф"_s, 80},
            {u"１.2.3.4"_s, u"1.2.3.4"_s, 80},
        };
        for (const auto& [url, itsHost, itsPort] : rows) {
            QString host;
            int port = 0;
            QVERIFY2(UrlChecker::IsUrlValid(url, host, port), qPrintable(url));
            QCOMPARE(host, itsHost);
            QCOMPARE(port, itsPort);
            // A text that is its own result.
            QString both = url;
            QVERIFY(UrlChecker::IsUrlValid(both, both, port));
            QCOMPARE(both, itsHost);
        }
    }

    void refuses()
    {
        const QString groups[] = {
            u" http:// ://host http:///x http://:80 http://user@"_s,
            u"mailto:a@b.c file:///a javascript:alert(1) ws://a http:/a http:a xhttp://a"_s,
            u"host/path user@host host?x host#x"_s,
            u"a: a:0 a:65536 a:+80 a:-1 a:8a a:٨٠ a:80:80 http://a:/x [::1]80 a:000080"_s,
            u"1.2.3 1.2.3.256 01.2.3.4 1.2.3.4.5 1 0x7f.1 a.0x7F a.1 1.2.3.4. 1..3.4"_s,
            u"::1 [::1 [::1]x [] [1.2.3.4] [v1.a] [::g] [fe80::1%25eth0] http://[::1]@host a[b"_s,
            u"-a.com a-.com a..b .a a. . a,b a;b a%41 a*b a! xn-- a\\b http://a\\@b"_s,
            u"http://a@b@c http://a/% http://a/%zz http://a/a\\b http://a/<x>"_s,
        };
        QStringList urls;
        for (const QString& group : groups)
            urls += group.split(u' ');
        for (const QString& unseen :
             {u" "_s, u"\n"_s, u"\u00a0"_s, u"\u202e"_s, QString(QChar::Null),
              QString(QChar(0xd800)), QString::fromUcs4(U"\U000e0041")})
            urls << unseen + u"host"_s << u"host"_s + unseen << u"http://host/a"_s + unseen + u'b';
        for (const QString& url : std::as_const(urls)) {
            QString host = u"old"_s;
            int port = 1;
            QVERIFY2(!UrlChecker::IsUrlValid(url, host, port), qPrintable(url));
            QCOMPARE(host, QString());
            QCOMPARE(port, 0);
        }
    }

    void limits()
    {
        const auto isValid = [](const QString& url) {
            QString host;
            int port = 0;
            return UrlChecker::IsUrlValid(url, host, port);
        };
        const QString label(63, u'a');
        const QString name = (label + u'.').repeated(3) + label.left(61);
        QVERIFY(isValid(name));
        QVERIFY(!isValid(name + u'a'));
        QVERIFY(!isValid(label + u'a'));
        QVERIFY(!isValid(QString(60, u'ü'))); // too long for name servers only
        const QString path = u"http://host/"_s.leftJustified(8000, u'a');
        QVERIFY(isValid(path));
        QVERIFY(!isValid(path + u'a'));
    }

    void masks()
    {
        const std::pair<uchar, QString> masks[] = {
            {0, u"0.0.0.0"_s}, {15, u"255.254.0.0"_s}, {32, u"255.255.255.255"_s}, {33, QString()}};
        for (const auto& [prefix, mask] : masks)
            QCOMPARE(SubNetMask::fromPrefixLength(prefix), mask);
    }

    void whatOthersReach()
    {
        const auto up = QNetworkInterface::IsUp;
        const std::tuple<int, QNetworkInterface::InterfaceFlags, QString> all[] = {
            {1, up | QNetworkInterface::IsLoopBack, u"127.0.0.1"_s},
            {7, up, u"10.0.0.1"_s},
            {3, {}, u"10.1.0.1"_s},
            {2, up, u"192.168.1.100"_s},
            {2, up, u"fe80::1"_s},
            {2, up, u"192.168.1.20"_s}};
        QList<SystemAddress> addresses;
        for (const auto& [index, flags, host] : all)
            addresses.append({index, flags, {QHostAddress(host), {}, {}, {}}});
        QStringList hosts;
        for (const NetworkInterfaceData& data : reachableAddresses(addresses))
            hosts << data.getHostAddress().toString();
        QCOMPARE(hosts, (QStringList{u"192.168.1.20"_s, u"192.168.1.100"_s, u"10.0.0.1"_s}));
    }
};

QTEST_GUILESS_MAIN(TestAddresses)
#include "tst_addresses.moc"
