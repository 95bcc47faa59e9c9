#include "playerclock.h"
#include "testsupport.h"
#include "times.h"

#include <QRandomGenerator>
#include <QTest>

using Review::PlayerClock;
using Stop = PlayerClock::Stop;

class TestPlayerClock : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void aDayWithoutDrift();
    void speedChangesKeepFractions();
    void limitsAndFrames();
    void gaps();
};

void TestPlayerClock::aDayWithoutDrift()
{
    QRandomGenerator random(7);
    for (int speed = 1; speed <= PlayerClock::fastest; speed *= 2) {
        for (const int eighths : {speed, -speed}) {
            PlayerClock clock;
            clock.setLimits({monday - 2 * day, monday + 2 * day});
            clock.seek(monday, 500);
            clock.setSpeed(eighths, 500);
            const qint64 duration = std::min(day * 8 / speed, day);
            for (qint64 elapsed = 0; elapsed < duration;) {
                elapsed =
                    std::min(elapsed + random.bounded(1, speed < 512 ? 99'999 : 40), duration);
                QCOMPARE(clock.advance(500 + elapsed), Stop::None);
                QCOMPARE(clock.position(), (monday * 8 + eighths * elapsed) >> 3);
            }
        }
    }
}

void TestPlayerClock::speedChangesKeepFractions()
{
    PlayerClock clock;
    clock.setLimits({0, day});
    clock.seek(hour, 0);
    for (int now = 0; now <= 8000; ++now)
        clock.setSpeed(now % 2 ? 1 : 3, now); // 3 and 1 eighths, in turn
    QCOMPARE(clock.position(), hour + 2000);
    clock.advance(10); // the past
    clock.seek(hour, 9000);
    clock.advance(9008);
    QCOMPARE(clock.position(), hour + 3);
}

void TestPlayerClock::limitsAndFrames()
{
    PlayerClock clock;
    QCOMPARE(clock.step(1, 0), Stop::AtEnd); // nothing to play yet
    clock.setLimits({1000, 2000});
    clock.setSpeed(8, 0);
    QCOMPARE(clock.advance(999), Stop::None);
    QCOMPARE(clock.advance(5000), Stop::AtEnd);
    QCOMPARE(clock.position(), 2000);
    QCOMPARE(clock.speed(), 0);
    QCOMPARE(clock.advance(6000), Stop::None);
    QCOMPARE(clock.step(-24, 6000), Stop::None);
    QCOMPARE(clock.position(), 1040);
    QCOMPARE(clock.step(-2, 6000), Stop::AtBegin);
    clock.setSpeed(-8, 6000);
    QCOMPARE(clock.advance(6001), Stop::AtBegin);
}

void TestPlayerClock::gaps()
{
    const struct
    {
        qint64 from;
        int distance;
        qint64 to;
        Stop stop = Stop::None;
    } cases[]{
        {0, 1, 100},
        {150, 49, 199},
        {150, 50, 300},
        {150, 400, 300},
        {300, 10, 500},
        {900, -1, 600},
        {600, -99, 501},
        {600, -100, 310},
        {310, -500, 200},
        {250, -1, 200},
        {550, 50, 600, Stop::NoMoreRecordings},
        {700, 9, 700, Stop::NoMoreRecordings},
        {150, -50, 100, Stop::NoMoreRecordings},
        {50, -1, 50, Stop::NoMoreRecordings},
        {1000, 9, 1000, Stop::AtEnd},
        {1, 999, 100},
    };
    for (const auto& [from, distance, to, stop] : cases) {
        PlayerClock clock;
        clock.setLimits({0, 1000});
        clock.setRecorded({{100, 200}, {300, 310}, {500, 600}, {1000, 1100}});
        clock.setSkippingGaps(true);
        clock.seek(from, 0);
        clock.setSpeed(8 * distance, 0);
        QCOMPARE(clock.advance(1), stop);
        QCOMPARE(clock.position(), to);
    }
}

QTEST_MAIN(TestPlayerClock)
#include "tst_playerclock.moc"
