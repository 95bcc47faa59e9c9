#include "testsupport.h"
#include "times.h"

#include <Corvel/TimeZoneHelper>

#include <QTest>

using Corvel::TimeZoneHelper;
using namespace Qt::StringLiterals;

class TestTimeZoneHelper : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void names_data();
    void names();
    void renamedZones_data();
    void renamedZones();
    void instants_data();
    void instants();
    void machineChangesItsStandardTime();
};

void TestTimeZoneHelper::names_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");

    QTest::newRow("IANA") << u"Europe/Brussels"_s << u"Europe/Brussels"_s;
    QTest::newRow("Windows") << u"W. Europe Standard Time"_s << u"Europe/Berlin"_s;
    QTest::newRow("Windows, beyond Europe") << u"Tokyo Standard Time"_s << u"Asia/Tokyo"_s;
    QTest::newRow("UTC") << u"UTC"_s << u"UTC"_s;
    QTest::newRow("white space around") << u" Asia/Tokyo\n"_s << u"Asia/Tokyo"_s;
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("unknown") << u"Middle/Earth"_s << QString();
    QTest::newRow("not a name") << u"../../etc/passwd"_s << QString();
    QTest::newRow("not ASCII") << u"Европа/Москва"_s << QString();
}

void TestTimeZoneHelper::names()
{
    QFETCH(QString, name);
    QTEST(TimeZoneHelper::getTimeZone(name), "expected");
}

void TestTimeZoneHelper::renamedZones_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("minutes");

    QTest::newRow("present name") << u"Asia/Kathmandu"_s << 5 * 60 + 45;
    QTest::newRow("former name") << u"Asia/Katmandu"_s << 5 * 60 + 45;
    QTest::newRow("Windows") << u"Myanmar Standard Time"_s << 6 * 60 + 30;
}

void TestTimeZoneHelper::renamedZones()
{
    QFETCH(QString, name);
    const QTimeZone zone(TimeZoneHelper::getTimeZone(name).toUtf8());
    QVERIFY(zone.isValid());
    QTEST(zone.standardTimeOffset(QDateTime::fromMSecsSinceEpoch(monday)) / 60, "minutes");
}

void TestTimeZoneHelper::instants_data()
{
    QTest::addColumn<QTimeZone>("zone");
    QTest::addColumn<qint64>("msecs");
    QTest::addColumn<QTime>("clock");

    QTest::newRow("winter") << QTimeZone("Europe/Brussels") << monday << QTime(1, 0);
    QTest::newRow("summer") << QTimeZone("Europe/Brussels") << monday + 120 * day << QTime(2, 0);
    QTest::newRow("before the epoch") << QTimeZone("Australia/Darwin") << -hour << QTime(8, 30);
    // The tests run with Brussels as the zone of the machine.
    QTest::newRow("no zone means this machine's") << QTimeZone() << monday << QTime(1, 0);
}

void TestTimeZoneHelper::instants()
{
    QFETCH(QTimeZone, zone);
    QFETCH(qint64, msecs);

    const QDateTime time = TimeZoneHelper::fromMSecsSinceEpoch(msecs, zone);
    QTEST(time.time(), "clock");
    QCOMPARE(time.toMSecsSinceEpoch(), msecs);
}

void TestTimeZoneHelper::machineChangesItsStandardTime()
{
#ifdef Q_OS_WIN
    QSKIP("Windows takes the zone of the machine from its settings");
#endif
    qputenv("TZ", "Asia/Almaty");
    const auto back = qScopeGuard([] { qputenv("TZ", "Europe/Brussels"); });
    // The hour before midnight of 29 February 2024 passed twice.
    const qint64 firstPass = 1'709'227'800'000;
    for (const qint64 pass : {firstPass, firstPass + hour})
        QCOMPARE(TimeZoneHelper::fromMSecsSinceEpoch(pass, QTimeZone()).toMSecsSinceEpoch(), pass);
}

QTEST_GUILESS_MAIN(TestTimeZoneHelper)
#include "tst_timezonehelper.moc"
