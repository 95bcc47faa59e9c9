// SPDX-License-Identifier: MIT
#include "scriptedserver.h"
#include "testsupport.h"
#include "updateanswer.h"

#include <Corvel/CheckAppUpdate>
#include <Corvel/ProxyUserSettings>

#include <QJsonDocument>
#include <QJsonObject>

using Corvel::CheckAppUpdate;
using LocalHttp::Misbehaviour;
using namespace std::chrono_literals;

namespace {

const QVersionNumber current(1, 9);
const QString notes = u"https://updates.example/notes"_s;

const QJsonObject offer{
    {u"updateAvailable"_s, true},
    {u"softwareId"_s, Q_INT64_C(9'007'199'254'740'993)},
    {u"newVersion"_s, u"1.10"_s},
    {u"releaseNotesUrl"_s, notes},
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
    void initTestCase()
    {
        Corvel::ProxyUserSettings::m_Settings = {.mode = Corvel::ProxyUserSettings::Mode::None};
    }

    void goodAnswers()
    {
        const auto [result, fault] =
            Corvel::parseUpdateAnswer("\xef\xbb\xbf" + offerWith(u"mood"_s, u"unknown"_s));
        QCOMPARE(fault, QString());
        QVERIFY(result.updateAvailable);
        QCOMPARE(result.softwareId, 9'007'199'254'740'993);
        QCOMPARE(result.newVersion, QVersionNumber(1, 10));
        QCOMPARE(result.releaseNotesUrl, notes);
        QCOMPARE(result.fileName, u"../Überraschung.exe"_s);
        QCOMPARE(result.size, 0);
        QCOMPARE(result.releaseDate, QDateTime({2026, 2, 28}, {22, 30}, Qt::UTC));

        const std::pair<QString, QJsonValue> others[] = {
            {u"releaseNotesUrl"_s, QJsonValue::Undefined},
            {u"releaseNotesUrl"_s, QJsonValue::Null},
            {u"releaseNotesUrl"_s, notes.leftJustified(2048, u'n')},
            {u"fileName"_s, QString(255, u'n')},
            {u"newVersion"_s, u"1."_s.repeated(31) + u"10"_s},
            {u"softwareId"_s, 0}};
        for (const auto& [name, value] : others)
            QCOMPARE(Corvel::parseUpdateAnswer(offerWith(name, value)).fault, QString());
        QCOMPARE(Corvel::parseUpdateAnswer("{\"updateAvailable\":false}").fault, QString());
    }

    void badAnswers()
    {
        const QByteArray whole = QJsonDocument(offer).toJson();
        for (const QByteArray& json : {QByteArray("<html></html>"), '[' + whole + ']',
                                       whole.first(whole.size() / 2), QByteArray(60'000, '[')})
            QVERIFY2(!Corvel::parseUpdateAnswer(json).fault.isEmpty(), json.left(20).constData());

        QList<std::pair<QString, QJsonValue>> wrong{
            {u"updateAvailable"_s, u"true"_s},
            {u"softwareId"_s, -1},
            {u"softwareId"_s, 1.5},
            {u"newVersion"_s, u"99999999999"_s},
            {u"newVersion"_s, u"1.10beta"_s},
            {u"newVersion"_s, u"1."_s.repeated(32) + u'1'},
            {u"releaseNotesUrl"_s, notes.leftJustified(2049, u'n')},
            {u"releaseNotesUrl"_s, u"file:///etc/passwd"_s},
            {u"fileName"_s, QString(256, u'n')},
            {u"releaseDate"_s, u"2026-02-30"_s},
        };
        for (const QString& name : offer.keys()) {
            if (name != "releaseNotesUrl"_L1)
                wrong.append({name, QJsonValue::Undefined});
        }
        for (const auto& [name, value] : std::as_const(wrong)) {
            const QString fault = Corvel::parseUpdateAnswer(offerWith(name, value)).fault;
            QVERIFY2(fault.contains(name), qPrintable(name + value.toVariant().toString()));
        }
    }

    void queries()
    {
        const std::pair<QVersionNumber, bool> rows[] = {
            {QVersionNumber(1, 9, 12), true},
            {QVersionNumber(1, 10, 0), false},
            {QVersionNumber(1, 11), false},
        };
        for (const auto& [installed, isOlder] : rows) {
            ScriptedServer server;
            server.script("/base/update", QJsonDocument(offer).toJson());
            CheckAppUpdate check(server.base() + u"/base"_s);
            std::optional<bool> available;
            connect(&check, &CheckAppUpdate::appUpdateInfoResult, this, [&](const auto& result) {
                QVERIFY(!check.isBusy());
                available = result.updateAvailable;
            });
            check.checkForUpdates(u"a b&c+ü#"_s, installed);
            QVERIFY(check.isBusy());
            QTRY_VERIFY(available);
            QCOMPARE(*available, isOlder);
            QCOMPARE(server.targets(),
                     QByteArrayList{"/base/update?key=a%20b%26c%2B%C3%BC%23&version=" +
                                    installed.toString().toLatin1()});
        }
    }

    void everyQueryStandsAlone()
    {
        ScriptedServer server;
        CheckAppUpdate check(server.base());
        QSignalSpy failed(&check, &CheckAppUpdate::appUpdateInfoError);
        QSignalSpy answered(&check, &CheckAppUpdate::appUpdateInfoResult);
        const QByteArray answer = QJsonDocument(offer).toJson();
        server.script("/update", answer, Misbehaviour::Endless);
        check.checkForUpdates(u"key"_s, current);
        QTRY_COMPARE(failed.size(), 1);
        server.script("/update", answer, Misbehaviour::Never);
        check.setLimits({.deadline = 100ms});
        check.checkForUpdates(u"key"_s, current);
        QTRY_COMPARE(failed.size(), 2);

        check.setLimits({});
        check.checkForUpdates(u"key"_s, current);
        QTRY_COMPARE(server.requests().size(), 3);
        server.script("/update", answer);
        check.checkForUpdates(u"key"_s, current);
        QTRY_VERIFY(!check.isBusy());
        QCOMPARE(answered.size(), 1);
        QCOMPARE(failed.size(), 2);
    }

    void deletionInSlots()
    {
        ScriptedServer server;
        server.script("/update", QJsonDocument(offer).toJson());
        for (const QString& base : {server.base(), u"not an address"_s}) {
            QPointer<CheckAppUpdate> check = new CheckAppUpdate(base);
            connect(check, &CheckAppUpdate::appUpdateInfoResult, this, [&] { delete check; });
            connect(check, &CheckAppUpdate::appUpdateInfoError, this, [&] { delete check; });

            check->checkForUpdates(u"key"_s, current);
            QVERIFY(check);
            QTRY_VERIFY(!check);
        }
    }
};

QTEST_GUILESS_MAIN(TestCheckAppUpdate)
#include "tst_checkappupdate.moc"
