#include "scriptedserver.h"
#include "testsupport.h"
#include "updateanswer.h"

#include <Corvel/CheckAppUpdate>
#include <Corvel/ProxyUserSettings>

#include <QJsonDocument>
#include <QJsonObject>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

using Corvel::CheckAppUpdate;
using LocalHttp::Misbehaviour;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QVersionNumber current(1, 9);

const QJsonObject offer{
    {u"updateAvailable"_s, true},
    {u"softwareId"_s, Q_INT64_C(9'007'199'254'740'993)},
    {u"newVersion"_s, u"1.10"_s},
    {u"releaseNotesUrl"_s, u"https://updates.example/notes"_s},
    {u"fileName"_s, u"../Überraschung.exe"_s},
    {u"size"_s, 0},
    {u"releaseDate"_s, u"2026-02-28T23:30:00+01:00"_s},
};

// The offer with one member changed; an undefined value leaves the member out.
QByteArray offerWith(const QString& name, const QJsonValue& value)
{
    QJsonObject object = offer;
    object.insert(name, value);
    return QJsonDocument(object).toJson();
}

} // namespace

class TestCheckAppUpdate : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void goodAnswers_data();
    void goodAnswers();
    void badAnswers_data();
    void badAnswers();
    void query();
    void noUpdate_data();
    void noUpdate();
    void faults_data();
    void faults();
    void eachCheckStandsAlone();
    void deletionInSlots();
};

void TestCheckAppUpdate::init()
{
    WarningFreeTest::init();
    Corvel::ProxyUserSettings::m_Settings = {.mode = Corvel::ProxyUserSettings::Mode::None};
}

void TestCheckAppUpdate::goodAnswers_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<bool>("available");
    QTest::addColumn<QString>("notes");

    const QString notes = u"https://updates.example/notes"_s;
    const auto undefined = QJsonValue(QJsonValue::Undefined);
    QTest::newRow("all") << QJsonDocument(offer).toJson() << true << notes;
    QTest::newRow("BOM") << "\xef\xbb\xbf" + QJsonDocument(offer).toJson() << true << notes;
    QTest::newRow("member of a later protocol") << offerWith(u"mood"_s, u"good"_s) << true << notes;
    QTest::newRow("no notes") << offerWith(u"releaseNotesUrl"_s, undefined) << true << QString();
    QTest::newRow("none needs no more") << "{\"updateAvailable\":false}"_ba << false << QString();
}

void TestCheckAppUpdate::goodAnswers()
{
    QFETCH(QByteArray, json);
    QFETCH(bool, available);
    const auto [result, fault] = Corvel::parseUpdateAnswer(json);
    QCOMPARE(fault, QString());
    QCOMPARE(result.updateAvailable, available);
    QTEST(result.releaseNotesUrl, "notes");
    if (!available)
        return;
    QCOMPARE(result.softwareId, 9'007'199'254'740'993);
    QCOMPARE(result.newVersion, QVersionNumber(1, 10));
    QCOMPARE(result.fileName, u"../Überraschung.exe"_s);
    QCOMPARE(result.size, 0);
    QCOMPARE(result.releaseDate, QDateTime({2026, 2, 28}, {22, 30}, Qt::UTC));
}

void TestCheckAppUpdate::badAnswers_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("wrong");

    const QByteArray whole = QJsonDocument(offer).toJson();
    const auto undefined = QJsonValue(QJsonValue::Undefined);
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("web page") << "<html></html>"_ba << QString();
    QTest::newRow("array") << '[' + whole + ']' << QString();
    QTest::newRow("cut") << whole.first(whole.size() / 2) << QString();
    QTest::newRow("NUL") << QByteArray(whole).replace("1.10", QByteArray("1\0", 2)) << QString();
    QTest::newRow("wrong UTF-8") << QByteArray(whole).replace("1.10", "\xff") << QString();
    QTest::newRow("deep") << QByteArray(60'000, '[') << QString();
    for (const QString& name : offer.keys()) {
        if (name != "releaseNotesUrl"_L1)
            QTest::addRow("no %s", qPrintable(name)) << offerWith(name, undefined) << name;
    }
    const auto row = [](const QString& name, const QJsonValue& value) {
        QTest::addRow("%s %s", qPrintable(name), qPrintable(value.toVariant().toString().left(30)))
            << offerWith(name, value) << name;
    };
    row(u"updateAvailable"_s, u"true"_s);
    row(u"softwareId"_s, -1);
    row(u"softwareId"_s, 1.5);
    row(u"softwareId"_s, 1e300);
    row(u"newVersion"_s, 2.1);
    row(u"newVersion"_s, u"99999999999"_s);
    row(u"newVersion"_s, u"1.10beta"_s);
    row(u"newVersion"_s, QString(u"1."_s).repeated(40) + u'1');
    row(u"releaseNotesUrl"_s, u"file:///etc/passwd"_s);
    row(u"releaseNotesUrl"_s, u"javascript:alert(1)"_s);
    row(u"fileName"_s, QString(300, u'n'));
    row(u"releaseDate"_s, u"2026-02-30"_s);
}

void TestCheckAppUpdate::badAnswers()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, wrong);
    const QString fault = Corvel::parseUpdateAnswer(json).fault;
    QVERIFY(!fault.isEmpty());
    QVERIFY2(fault.contains(wrong), qPrintable(fault));
}

void TestCheckAppUpdate::query()
{
    ScriptedServer server;
    server.script("/base/update", QJsonDocument(offer).toJson());
    CheckAppUpdate check(server.base() + u"/base"_s);
    std::optional<CheckAppUpdate::AppUpdateInfoResult> result;
    connect(&check, &CheckAppUpdate::appUpdateInfoResult, this, [&](const auto& delivered) {
        QVERIFY(!check.isBusy());
        result = delivered;
    });
    check.checkForUpdates(u"a b&c+ü#"_s, QVersionNumber(1, 9, 0));
    QVERIFY(check.isBusy());
    QTRY_VERIFY(result);
    QVERIFY(result->updateAvailable);
    QCOMPARE(server.targets(),
             QByteArrayList{"/base/update?key=a%20b%26c%2B%C3%BC%23&version=1.9.0"});
}

void TestCheckAppUpdate::noUpdate_data()
{
    QTest::addColumn<QVersionNumber>("installed");

    QTest::newRow("equal") << QVersionNumber(1, 10);
    QTest::newRow("equal, written longer") << QVersionNumber(1, 10, 0);
    QTest::newRow("newer") << QVersionNumber(1, 11);
}

void TestCheckAppUpdate::noUpdate()
{
    QFETCH(QVersionNumber, installed);
    ScriptedServer server;
    server.script("/update", QJsonDocument(offer).toJson());
    CheckAppUpdate check(server.base());
    std::optional<bool> available;
    connect(&check, &CheckAppUpdate::appUpdateInfoResult, this,
            [&](const auto& result) { available = result.updateAvailable; });
    check.checkForUpdates(u"key"_s, installed);
    QTRY_COMPARE(available, false);
}

void TestCheckAppUpdate::faults_data()
{
    QTest::addColumn<Misbehaviour>("how");

    for (const auto how : {Misbehaviour::Never, Misbehaviour::Endless, Misbehaviour::Cut,
                           Misbehaviour::ServerError, Misbehaviour::Portal})
        QTest::addRow("%s", qPrintable(LocalHttp::misbehaviourNames().at(int(how)))) << how;
}

void TestCheckAppUpdate::faults()
{
    QFETCH(Misbehaviour, how);
    ScriptedServer server;
    server.script("/update", QJsonDocument(offer).toJson(), how);
    CheckAppUpdate check(server.base());
    check.setLimits({.deadline = how == Misbehaviour::Never ? 100ms : 30s, .size = 64 * 1024});
    QSignalSpy failed(&check, &CheckAppUpdate::appUpdateInfoError);
    QSignalSpy answered(&check, &CheckAppUpdate::appUpdateInfoResult);
    check.checkForUpdates(u"key"_s, current);
    QTRY_VERIFY(!check.isBusy());
    QCOMPARE(failed.size(), 1);
    QCOMPARE(answered.size(), 0);
}

void TestCheckAppUpdate::eachCheckStandsAlone()
{
    ScriptedServer server;
    server.script("/update", QJsonDocument(offer).toJson(), Misbehaviour::Cut);
    CheckAppUpdate check(server.base());
    QSignalSpy failed(&check, &CheckAppUpdate::appUpdateInfoError);
    QSignalSpy answered(&check, &CheckAppUpdate::appUpdateInfoResult);
    check.checkForUpdates(u"key"_s, current);
    QTRY_COMPARE(failed.size(), 1);

    server.script("/update", {}, Misbehaviour::Never);
    check.checkForUpdates(u"key"_s, current);
    QTRY_COMPARE(server.requests().size(), 2);
    server.script("/update", QJsonDocument(offer).toJson());
    check.checkForUpdates(u"key"_s, current);
    QTRY_COMPARE(answered.size(), 1);
    QVERIFY(!check.isBusy());
    QCOMPARE(failed.size(), 1);
}

void TestCheckAppUpdate::deletionInSlots()
{
    ScriptedServer server;
    server.script("/update", QJsonDocument(offer).toJson());
    for (const QString& base : {server.base(), u"not an address"_s}) {
        QPointer<CheckAppUpdate> check = new CheckAppUpdate(base);
        const auto destroy = [&check] {
            delete check;
        };
        connect(check, &CheckAppUpdate::appUpdateInfoResult, this, destroy);
        connect(check, &CheckAppUpdate::appUpdateInfoError, this, destroy);
        check->checkForUpdates(u"key"_s, current);
        QVERIFY(check);
        QTRY_VERIFY(!check);
    }
}

QTEST_GUILESS_MAIN(TestCheckAppUpdate)
#include "tst_checkappupdate.moc"
