#include "systemfacts.h"
#include "testsupport.h"

#include <Corvel/SystemInformation>

using namespace Corvel;

class TestSystemInformation : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
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

QTEST_GUILESS_MAIN(TestSystemInformation)
#include "tst_systeminformation.moc"
