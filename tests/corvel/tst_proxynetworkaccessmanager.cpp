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
    void proxies_data();
    void proxies();
    void redirectRule();
    void localFilesAreNotRead();
};

void TestProxyNetworkAccessManager::proxies_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<TestProxy::Kind>("kind");
    QTest::addColumn<QString>("password");
    QTest::addColumn<bool>("byProxy");
    QTest::addColumn<bool>("arrives");

    const QString secret = u"secret"_s;
    const QString wrong = u"wrong"_s;
    const auto http = TestProxy::Kind::Http;
    const auto socks = TestProxy::Kind::Socks5;
    QTest::newRow("none") << Mode::None << http << secret << false << true;
    QTest::newRow("HTTP") << Mode::Http << http << secret << true << true;
    QTest::newRow("HTTP, wrong password") << Mode::Http << http << wrong << false << false;
    QTest::newRow("SOCKS5") << Mode::Socks5 << socks << secret << true << true;
    QTest::newRow("SOCKS5, wrong password") << Mode::Socks5 << socks << wrong << false << false;
#ifndef Q_OS_WIN // where the registry holds them
    QTest::newRow("system") << Mode::System << http << secret << true << true;
#endif
}

void TestProxyNetworkAccessManager::proxies()
{
    QFETCH(Mode, mode);
    QFETCH(TestProxy::Kind, kind);
    QFETCH(QString, password);
    QFETCH(bool, arrives);
    ScriptedServer server;
    server.script("/file", "content");
    TestProxy proxy(kind);
    qputenv("http_proxy", u"http://127.0.0.1:%1"_s.arg(proxy.serverPort()).toLatin1());

    ProxyNetworkAccessManager manager;
    manager.Init({.mode = mode,
                  .host = u"127.0.0.1"_s,
                  .port = proxy.serverPort(),
                  .user = u"user"_s,
                  .password = password});
    QNetworkReply* reply = manager.get(QNetworkRequest(server.address(u"/file"_s)));
    QTRY_VERIFY(reply->isFinished());
    qunsetenv("http_proxy");
    QCOMPARE(reply->readAll(), arrives ? "content" : "");
    QCOMPARE(reply->error(),
             arrives ? QNetworkReply::NoError : QNetworkReply::ProxyAuthenticationRequiredError);
    QTEST(proxy.passed() == 1, "byProxy");
}

void TestProxyNetworkAccessManager::redirectRule()
{
    const QUrl http(u"http://a.example/"_s);
    const QUrl https(u"https://b.example/"_s);
    QVERIFY(Corvel::mayRedirect(http, https));
    QVERIFY(Corvel::mayRedirect(https, https));
    QVERIFY(!Corvel::mayRedirect(https, http));
    for (const QString& to : {u"file:///etc/passwd"_s, u"data:text/plain,x"_s, u"http:///x"_s})
        QVERIFY(!Corvel::mayRedirect(http, QUrl(to)));
}

void TestProxyNetworkAccessManager::localFilesAreNotRead()
{
    ProxyNetworkAccessManager manager;
    const QUrl program = QUrl::fromLocalFile(QCoreApplication::applicationFilePath());
    QNetworkReply* reply = manager.get(QNetworkRequest(program));
    QTRY_VERIFY(reply->isFinished());
    QCOMPARE(reply->errorString(), u"This is not the address of a server."_s);
    QCOMPARE(reply->readAll(), "");
}

QTEST_GUILESS_MAIN(TestProxyNetworkAccessManager)
#include "tst_proxynetworkaccessmanager.moc"
