#include "playback/playerclock.h"
#include "testsupport.h"
#include "times.h"

using Review::PlayerClock;

class TestPlayerClock : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void aDayWithoutDrift()
    {
        QRandomGenerator random(7);
        for (int speed = 1; speed <= PlayerClock::fastest; speed *= 2) {
            for (const int eighths : {speed, -speed}) {
                PlayerClock clock;
                clock.setLimits({monday - 2 * day, monday + 2 * day});
                clock.seek(monday, 500);
                clock.setSpeed(eighths, 500);
                const qint64 duration = day * 8 / speed;
                for (qint64 elapsed = 0; elapsed < duration;) {
                    elapsed = std::min(elapsed + random.bounded(1, int(duration / 1000)), duration);
                    QCOMPARE(clock.advance(500 + elapsed), PlayerClock::Stop::None);
                    QCOMPARE(clock.position(), (monday * 8 + eighths * elapsed) >> 3);
                }
                QCOMPARE(clock.position(), monday + (eighths > 0 ? day : -day));
            }
        }
    }

    void speedChangesKeepFractions()
    {
        PlayerClock clock;
        clock.setLimits({0, day});
        clock.seek(hour, 0);
        for (int now = 0; now <= 8000; ++now)
            clock.setSpeed(now % 2 ? 1 : 3, now); // three eighths and one, in turn
        QCOMPARE(clock.position(), hour + 2000);
        clock.advance(10); // the past
        QCOMPARE(clock.position(), hour + 2000);
    }

    void gapsAndLimits()
    {
        // From where, how far, to where, and why no further. Frames are 40 each.
        const auto cases =
            u"playing 0 500 500|playing 500 1000 1050 end|playing 50 -50 0 begin|"
            "frames 500 2 580|frames 50 -2 0 begin|frames 1000 2 1050 end|"
            "skipping 0 1 100|skipping 150 49 199|skipping 150 400 300|"
            "skipping 300 10 500|skipping 900 -1 600|skipping 600 -99 501|"
            "skipping 600 -100 310|skipping 310 -500 200|skipping 250 -1 200|"
            "skipping 550 50 1000|skipping 1020 90 1050 end|skipping 1050 1 1050 end|"
            "skipping 150 -50 100 none|skipping 50 -1 50 none"_s;
        for (const QString& line : cases.split(u'|')) {
            const QStringList words = line.split(u' ');
            const int distance = words.at(2).toInt();
            PlayerClock clock;
            clock.setLimits({0, 1050});
            clock.setRecorded({{100, 200}, {300, 310}, {500, 600}, {1000, 1100}});
            clock.setSkippingGaps(words.at(0) == u"skipping");
            clock.seek(words.at(1).toInt(), 0);
            clock.setSpeed(8 * distance, 0);
            const auto stop = words.at(0) == u"frames" ? clock.step(distance, 0) : clock.advance(1);
            QCOMPARE(clock.position(), words.at(3).toInt());
            QCOMPARE(
                int(stop),
                (QStringList{QString(), u"begin"_s, u"end"_s, u"none"_s}).indexOf(words.value(4)));
            QCOMPARE(clock.speed() == 0, words.at(0) == u"frames" || words.size() > 4);
        }
    }
};

QTEST_MAIN(TestPlayerClock)
#include "tst_playerclock.moc"
