// SPDX-License-Identifier: MIT
#include "systemfacts.h"
#include "testsupport.h"
#include "times.h"

#include <Corvel/SystemInformation>
#include <Corvel/TimeZoneHelper>

using namespace Corvel;

class TestSystem : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void zoneNames()
    {
        const std::pair<QString, QString> rows[] = {
            {u" Asia/Tokyo\n"_s, u"Asia/Tokyo"_s},
            {u"W. Europe Standard Time"_s, u"Europe/Berlin"_s},
            {QString(), QString()},
            {u"Middle/Earth"_s, QString()},
            {u"../../etc/passwd"_s, QString()},
        };
        for (const auto& [name, expected] : rows)
            QCOMPARE(TimeZoneHelper::getTimeZone(name), expected);
    }

    void renamedZones()
    {
        const std::pair<QString, int> rows[] = {{u"Asia/Kathmandu"_s, 5 * 60 + 45},
                                                {u"Asia/Katmandu"_s, 5 * 60 + 45},
                                                {u"Myanmar Standard Time"_s, 6 * 60 + 30}};
        for (const auto& [name, minutes] : rows) {
            const QTimeZone zone(TimeZoneHelper::getTimeZone(name).toUtf8());
            QVERIFY2(zone.isValid(), qPrintable(name));
            QCOMPARE(zone.standardTimeOffset(QDateTime::fromMSecsSinceEpoch(monday)) / 60, minutes);
        }
    }

    void instants()
    {
        const std::tuple<QTimeZone, qint64, QTime> rows[] = {
            {QTimeZone("Europe/Brussels"), monday + 120 * day, QTime(2, 0)},
            {QTimeZone("Australia/Darwin"), -hour, QTime(8, 30)},
            {QTimeZone(), monday, QTime(1, 0)}, // the machine's, which is Brussels in tests
        };
        for (const auto& [zone, msecs, clock] : rows) {
            const QDateTime time = TimeZoneHelper::fromMSecsSinceEpoch(msecs, zone);
            QCOMPARE(time.time(), clock);
            QCOMPARE(time.toMSecsSinceEpoch(), msecs);
        }
    }

    void machineChangesItsStandardTime()
    {
#ifdef Q_OS_WIN
        QSKIP("Windows takes the zone of the machine from its settings");
#endif
        qputenv("TZ", "Asia/Almaty");
        const auto back = qScopeGuard([] { qputenv("TZ", "Europe/Brussels"); });
        // The hour before midnight of 29 February 2024 passed twice.
        const qint64 firstPass = 1'709'227'800'000;
        for (const qint64 pass : {firstPass, firstPass + hour})
            QCOMPARE(TimeZoneHelper::fromMSecsSinceEpoch(pass, QTimeZone()).toMSecsSinceEpoch(),
                     pass);
    }

    void factsAreRead()
    {
        const QByteArray text = "MemTotal:  16318480 kB\nmodel name\t: A: b\nMemTotal: 1 kB\nx=y=z";
        QCOMPARE(valueOf("MemTotal", text), "16318480 kB");
        QCOMPARE(valueOf("model name", text), "A: b");
        QCOMPARE(valueOf("x", text, '='), "y=z");
        QCOMPARE(valueOf("Mem", text), QByteArray());
        QCOMPARE(bytesOf("16318480 kB"), qint64(16'318'480) * 1024);
        for (const char* size :
             {"", "1", "1 MB", "-1 kB", "x kB", "1 kB kB", "9999999999999999 kB"})
            QCOMPARE(bytesOf(size), -1);
    }

    void theMachineIsKnown()
    {
        const SystemInformation system = SystemInformation::current();
        QVERIFY(system.memory > 64 * 1024 * 1024);
        QVERIFY(system.availableMemory > 0 && system.availableMemory < system.memory);
        QVERIFY(QTimeZone(system.timeZone.toUtf8()).isValid());
    }
};

QTEST_GUILESS_MAIN(TestSystem)
#include "tst_system.moc"
