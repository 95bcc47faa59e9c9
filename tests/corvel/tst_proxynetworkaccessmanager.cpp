#include "scriptedserver.h"
#include "testproxy.h"
#include "testsupport.h"
#include "webaddress.h"

#include <Corvel/ProxyNetworkAccessManager>
#include <Corvel/ProxyUserSettings>

#include <QNetworkReply>
#include <QTest>

using Corvel::ProxyNetworkAccessManager;
using Corvel::ProxyUserSettings;
using namespace Qt::StringLiterals;

using Mode = ProxyUserSettings::Mode;

class TestProxyNetworkAccessManager : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void proxies()
    {
        const auto http = TestProxy::Kind::Http;
        const auto socks = TestProxy::Kind::Socks5;
        const std::tuple<Mode, TestProxy::Kind, QString, bool, bool> rows[] = {
            {Mode::None, http, u"secret"_s, false, true},
            {Mode::Http, http, u"secret"_s, true, true},
            {Mode::Http, http, u"wrong"_s, false, false},
            {Mode::Socks5, socks, u"secret"_s, true, true},
            {Mode::Socks5, socks, u"wrong"_s, false, false},
#ifndef Q_OS_WIN // where the registry holds them
            {Mode::System, http, u"secret"_s, true, true},
#endif
        };
        for (const auto& [mode, kind, password, byProxy, arrives] : rows) {
            ScriptedServer server;
            server.script("/file", "content");
            TestProxy proxy(kind);
            qputenv("http_proxy", u"http://127.0.0.1:%1"_s.arg(proxy.serverPort()).toLatin1());
            const auto withoutProxy = qScopeGuard([] { qunsetenv("http_proxy"); });
            QUrl address = server.address(u"/file"_s);
            if (mode == Mode::System) // which may go straight to this machine
                address.setHost(u"server.example"_s);

            ProxyNetworkAccessManager manager;
            manager.Init({.mode = mode,
                          .host = u"127.0.0.1"_s,
                          .port = proxy.serverPort(),
                          .user = u"user"_s,
                          .password = password});
            QNetworkReply* reply = manager.get(QNetworkRequest(address));
            QTRY_VERIFY(reply->isFinished());
            QCOMPARE(reply->readAll(), arrives ? "content" : "");
            QCOMPARE(reply->error(), arrives ? QNetworkReply::NoError
                                             : QNetworkReply::ProxyAuthenticationRequiredError);
            QCOMPARE(proxy.passed() == 1, byProxy);
        }
    }

    void redirectRule()
    {
        const QUrl http(u"http://a.example/"_s);
        const QUrl https(u"https://b.example/"_s);
        QVERIFY(Corvel::mayRedirect(http, https));
        QVERIFY(Corvel::mayRedirect(https, https));
        QVERIFY(!Corvel::mayRedirect(https, http));
        for (const QString& to : {u"file:///etc/passwd"_s, u"data:text/plain,x"_s, u"http:///x"_s})
            QVERIFY(!Corvel::mayRedirect(http, QUrl(to)));
    }

    void localFilesAreNotRead()
    {
        ProxyNetworkAccessManager manager;
        const QUrl program = QUrl::fromLocalFile(QCoreApplication::applicationFilePath());
        QNetworkReply* reply = manager.get(QNetworkRequest(program));
        QTRY_VERIFY(reply->isFinished());
        QCOMPARE(reply->errorString(), u"This is not the address of a server."_s);
        QCOMPARE(reply->readAll(), "");
    }
};

QTEST_GUILESS_MAIN(TestProxyNetworkAccessManager)
#include "tst_proxynetworkaccessmanager.moc"
