// SPDX-License-Identifier: MIT
#include "testscale.h"
#include "testsupport.h"
#include "ticklayout.h"

#include <QOperatingSystemVersion>

using namespace CorvelGui;

namespace {

constexpr int headerHeight = 15;

TickStyle style()
{
    return {QFontMetrics(QFont()), headerHeight, u"dd.MM.yy"_s};
}

int lineHeight()
{
    return style().metrics.boundingRect(u'0').height() + 2;
}

TickLayout layoutOf(const TimeScale& scale, int width = 1010)
{
    return layoutTicks(scale, QRectF(5, 0, width, 60), style(), msecsToMidnight(scale));
}

std::vector<Tick> majorTicks(const TickLayout& layout)
{
    std::vector<Tick> result = layout.ticks;
    std::erase_if(result, [](const Tick& tick) { return !tick.major; });
    return result;
}

// Every major tick stands at its instant, as far as whole pixels allow, and says its local time.
void compareWithClock(const TimeScale& scale, const QTimeZone& zone)
{
    const TickLayout layout = layoutOf(scale);
    const std::vector<Tick> major = majorTicks(layout);
    const double length = scale.getIntervalLength(scale.level());
    const qint64 interval = scale.millisecondsPerInterval();
    const qint64 first = scale.viewStartMs() + msecsToMidnight(scale) % interval;
    QCOMPARE(major[0].x, scale.xAt(first));
    QCOMPARE(double(major.size()), std::floor((1015 - major[0].x) / length) + 1);

    auto label = layout.labels.begin();
    QDate lastDate;
    double x = 0;
    for (size_t i = 0; i < major.size(); ++i) {
        QCOMPARE(major[i].x, major[0].x + double(i) * length);
        QCOMPARE(std::pair(major[i].top, major[i].bottom), std::pair(0.0, 60.0));
        // Of two ticks that are laid out together, the second has its label as far from the first.
        x = i % 2 == 0 ? std::max(std::trunc(major[i].x + 2), 10.0) : x + length;
        double baseline = lineHeight();
        const auto expectLabel = [&](const QString& text) {
            QCOMPARE(label->text, text);
            QCOMPARE(std::pair(label->x, label->baseline), std::pair(x, baseline));
            ++label;
            baseline += lineHeight();
        };
        const QDateTime time = QDateTime::fromMSecsSinceEpoch(first + qint64(i) * interval, zone);
        if (interval <= 8 * hour)
            expectLabel(time.toString(u"hh:mm"_s));
        if (time.date() != lastDate)
            expectLabel(time.toString(u"dd.MM.yy"_s));
        lastDate = time.date();
    }
}

} // namespace

class TestTickLayout : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void minorTicksBeforeTheFirstMajorOne()
    {
        // Level 7: days of 71 pixels in 2 divisions of 35; midnight comes at x = 10 + 1000 / 14 *
        // fraction. Level 0: 2 minutes of 100 pixels in 8 divisions of 12; the major tick stands at
        // x = 95.
        const std::tuple<int, qint64, QList<double>> cases[] = {
            {7, day / 2, {45.714 - 35}},         // past the major tick before
            {7, 22 * hour, {}},                  // none left of the margin
            {0, 18 * second, {83, 71, 59, 47}}}; // four at most
        for (const auto& [level, start, expected] : cases) {
            const TickLayout layout = layoutOf(scaleOf(30 * day, level, monday + start));
            for (qsizetype i = 0; i < expected.size(); ++i) {
                const Tick& tick = layout.ticks.at(i);
                QVERIFY2(qAbs(tick.x - expected[i]) < 0.01, qPrintable(QString::number(tick.x)));
                QCOMPARE(tick.top, double(headerHeight));
            }
            QVERIFY(layout.ticks.at(expected.size()).major);
        }
    }

    void lastLabelReachesFurtherThanLines()
    {
        // Ticks 100 pixels apart from x = 18. The last would stand right of the rectangle.
        const TimeScale scale = scaleOf(10 * day, 0, monday - 9600);
        const std::tuple<int, double, double> cases[] = {
            {1010, 918, 920}, {905, 818, 920}, {904, 818, 820}};
        for (const auto& [width, tick, label] : cases) {
            const TickLayout layout = layoutOf(scale, width);
            QCOMPARE(majorTicks(layout).back().x, tick);
            QCOMPARE(layout.labels.back().x, label);
        }
        TimeScale narrow = scaleOf(10 * day);
        narrow.setWidth(25);
        QVERIFY(layoutOf(narrow, 15).ticks.empty());
    }

    void labelsSayTheClock()
    {
        // The changes of these clocks wander through the view.
        const std::pair<const char*, QString> changes[] = {
            {"Europe/Berlin", u"2026-03-29T01:00:00Z"_s},
            {"Europe/Berlin", u"2026-10-25T01:00:00Z"_s},
            {"Australia/Lord_Howe", u"2026-04-04T15:00:00Z"_s},
            {"Asia/Kathmandu", u"1985-12-31T18:30:00Z"_s}};
        for (const auto& [id, text] : changes) {
            const QTimeZone zone(id);
            const QDateTime change = QDateTime::fromString(text, Qt::ISODate).toTimeZone(zone);
            if (change.date().year() < 2000 &&
                QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows)
                continue; // knows the recent rules of a zone only
            QVERIFY(change.offsetFromUtc() != change.addMSecs(-1).offsetFromUtc());
            for (int level = 0; level <= TimeScale::wholeRangeLevel; ++level) {
                TimeScale scale =
                    scaleOf(80 * day, level, change.addDays(-40).toMSecsSinceEpoch(), zone);
                for (int part = 0; part < 20; ++part) {
                    scale.setViewStart(
                        change.addMSecs(-qint64(scale.millisecondsPerLevel()) * part / 20));
                    compareWithClock(scale, zone);
                    if (QTest::currentTestFailed())
                        return;
                }
            }
        }
    }

    void midnightThatDoesNotExist()
    {
        // On this day the clocks of Beirut went from 23:59 to 01:00.
        const QDateTime start(QDate(2020, 3, 28), QTime(22, 0), QTimeZone("Asia/Beirut"));
        const TimeScale scale = scaleOf(10 * day, 1, start.toMSecsSinceEpoch(), start.timeZone());
        QCOMPARE(msecsToMidnight(scale), 2 * hour);
        compareWithClock(scale, start.timeZone());
    }
};

QTEST_MAIN(TestTickLayout)
#include "tst_ticklayout.moc"
