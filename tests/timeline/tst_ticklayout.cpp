#include "testsupport.h"
#include "ticklayout.h"
#include "times.h"
#include "timescale.h"

#include <QOperatingSystemVersion>
#include <QTest>

#include <algorithm>
#include <cmath>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

namespace {

constexpr int width = 1020;
constexpr int headerHeight = 15;

TimeScale scaleOf(const QDateTime& begin, qint64 duration)
{
    TimeScale scale;
    scale.setWidth(width);
    scale.setTimeZone(begin.timeZone());
    scale.setTimeLimits(quint64(begin.toMSecsSinceEpoch()),
                        quint64(begin.toMSecsSinceEpoch() + duration));
    return scale;
}

QDateTime utc(const QString& text)
{
    QDateTime time = QDateTime::fromString(text, Qt::ISODate);
    time.setTimeZone(QTimeZone::utc());
    return time;
}

TickStyle style()
{
    return {QFontMetrics(QFont()), headerHeight, u"dd.MM.yy"_s};
}

int lineHeight()
{
    return style().metrics.boundingRect(u'0').height() + 2;
}

TickLayout layoutOf(const TimeScale& scale)
{
    return layoutTicks(scale, QRectF(5, 0, width - 10, 60), style(), msecsToMidnight(scale));
}

std::vector<Tick> ticks(const TickLayout& layout, bool major)
{
    std::vector<Tick> result;
    std::copy_if(layout.ticks.begin(), layout.ticks.end(), std::back_inserter(result),
                 [major](const Tick& tick) { return tick.major == major; });
    return result;
}

QStringList texts(const TickLayout& layout)
{
    QStringList result;
    for (const TickLabel& label : layout.labels)
        result << label.text;
    return result;
}

} // namespace

class TestTickLayout : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void minorTicksBeforeTheFirstMajorOne();
    void minorTicksPassBelowDates();
    void lastLabelReachesFurtherThanLines();
    void noLengthNoTicks();
    void labelsSayTheClock();
    void midnightThatDoesNotExist();

private:
    void compareWithClock(const TimeScale& scale, const QTimeZone& zone);
};

void TestTickLayout::minorTicksBeforeTheFirstMajorOne()
{
    // Level 7: days of 71 pixels in 2 divisions of 35; midnight comes at x = 10 + 1000 / 14 *
    // fraction. Level 0: 2 minutes of 100 pixels in 8 divisions of 12; the major tick stands at
    // x = 95.
    const struct
    {
        int level;
        qint64 start;
        QList<double> expected;
    } cases[] = {{7, day / 2, {45.714 - 35}},         // past the major tick before
                 {7, 22 * hour, {}},                  // none left of the margin
                 {0, 18 * second, {83, 71, 59, 47}}}; // four at most
    for (const auto& [level, start, expected] : cases) {
        TimeScale scale = scaleOf(utc(u"2026-03-02T00:00:00"_s).addMSecs(start), 30 * day);
        scale.changeLevel(level, 0.0);
        const TickLayout layout = layoutOf(scale);
        for (qsizetype i = 0; i < expected.size(); ++i) {
            const Tick& tick = layout.ticks.at(i);
            QVERIFY(!tick.major);
            QVERIFY2(qAbs(tick.x - expected[i]) < 0.01, qPrintable(QString::number(tick.x)));
            QCOMPARE(tick.top, double(headerHeight));
        }
        QVERIFY(layout.ticks.at(expected.size()).major);
    }
}

void TestTickLayout::minorTicksPassBelowDates()
{
    const TimeScale scale = scaleOf(utc(u"2026-03-02T00:00:00"_s), 10 * day);
    const TickLayout layout = layoutOf(scale);
    const double dateWidth = style().metrics.horizontalAdvance(u"02.03.26"_s) + 2;

    // 5 minutes of 83 pixels in 5 divisions of 16, the date at the first tick only.
    const std::vector<Tick> minor = ticks(layout, false);
    for (int k = 1; k <= 4; ++k) {
        QCOMPARE(minor[k - 1].x, 10.0 + k * 16);
        QCOMPARE(minor[k - 1].top,
                 k * 16 < dateWidth ? 2.0 * lineHeight() + 4 : double(headerHeight));
        QCOMPARE(minor[3 + k].top, double(headerHeight));
    }
    QVERIFY(16 < dateWidth);
}

void TestTickLayout::lastLabelReachesFurtherThanLines()
{
    // Ticks 100 pixels apart from x = 18: the 11th would stand at 1018, 3 pixels right of the
    // rectangle.
    TimeScale scale = scaleOf(utc(u"2026-03-02T00:00:00"_s).addMSecs(-9600), 10 * day);
    scale.changeLevel(0, 0.0);
    const TickLayout layout = layoutOf(scale);
    QCOMPARE(ticks(layout, true).back().x, 918.0);
    QCOMPARE(layout.labels.back().x, 920.0);

    // The second tick of a round stands at 918, right of a rectangle up to 910, and yet has its
    // label at 920.
    const TickLayout narrow =
        layoutTicks(scale, QRectF(5, 0, 905, 60), style(), msecsToMidnight(scale));
    QCOMPARE(ticks(narrow, true).back().x, 818.0);
    QCOMPARE(narrow.labels.back().x, 920.0);
    const TickLayout narrower =
        layoutTicks(scale, QRectF(5, 0, 904, 60), style(), msecsToMidnight(scale));
    QCOMPARE(narrower.labels.back().x, 820.0);
}

void TestTickLayout::noLengthNoTicks()
{
    TimeScale scale = scaleOf(utc(u"2026-03-02T00:00:00"_s), 10 * day);
    scale.setWidth(25);
    QVERIFY(layoutTicks(scale, QRectF(5, 0, 15, 60), style(), 0).ticks.empty());
}

void TestTickLayout::labelsSayTheClock()
{
    // The changes of these clocks wander through the view.
    const std::pair<const char*, QString> changes[] = {
        {"Europe/Berlin", u"2026-03-29T01:00:00"_s},
        {"Europe/Berlin", u"2026-10-25T01:00:00"_s},
        {"America/New_York", u"2026-11-01T06:00:00"_s},
        {"Australia/Lord_Howe", u"2026-04-04T15:00:00"_s},
        {"Australia/Lord_Howe", u"2026-10-03T15:30:00"_s},
        {"Asia/Kathmandu", u"1985-12-31T18:30:00"_s}};
    for (const auto& [zone, change] : changes) {
        const QTimeZone timeZone(zone);
        const QDateTime changeTime = utc(change).toTimeZone(timeZone);
        if (changeTime.date().year() < 2000 &&
            QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows)
            continue; // knows the recent rules of a zone only
        QVERIFY(changeTime.offsetFromUtc() != changeTime.addMSecs(-1).offsetFromUtc());
        TimeScale scale = scaleOf(changeTime.addDays(-40), 80 * day);
        for (int level = 0; level <= TimeScale::wholeRangeLevel; ++level) {
            scale.changeLevel(level, 0.0);
            for (int part = 0; part < 20; ++part) {
                scale.setViewStart(
                    changeTime.addMSecs(-qint64(scale.millisecondsPerLevel()) * part / 20));
                compareWithClock(scale, timeZone);
                if (QTest::currentTestFailed())
                    return;
            }
        }
    }
}

// Every major tick stands at its instant, as far as whole pixels allow, and says its local time.
void TestTickLayout::compareWithClock(const TimeScale& scale, const QTimeZone& zone)
{
    const TickLayout layout = layoutOf(scale);
    const std::vector<Tick> major = ticks(layout, true);
    const double length = scale.getIntervalLength(scale.level());
    const qint64 interval = scale.millisecondsPerInterval();
    const qint64 first = msecsToMidnight(scale) % interval;
    QCOMPARE(major[0].x, scale.xAt(scale.viewStartMs() + first));
    QCOMPARE(double(major.size()), std::floor((width - 5 - major[0].x) / length) + 1);

    auto label = layout.labels.begin();
    QDate lastDate;
    double x = 0;
    for (size_t i = 0; i < major.size(); ++i) {
        QCOMPARE(major[i].x, major[0].x + double(i) * length);
        QCOMPARE(major[i].top, 0.0);
        QCOMPARE(major[i].bottom, 60.0);
        // Of two ticks that are laid out together, the second has its label as far from the first.
        x = i % 2 == 0 ? std::max(std::trunc(major[i].x + 2), 10.0) : x + length;
        double baseline = lineHeight();
        const auto expectLabel = [&](const QString& text) {
            QCOMPARE(label->text, text);
            QCOMPARE(label->x, x);
            QCOMPARE(label->baseline, baseline);
            ++label;
            baseline += lineHeight();
        };
        const QDateTime time = QDateTime::fromMSecsSinceEpoch(
            scale.viewStartMs() + first + qint64(i) * interval, zone);
        if (interval <= 8 * hour)
            expectLabel(time.toString(u"hh:mm"_s));
        if (time.date() != lastDate)
            expectLabel(time.toString(u"dd.MM.yy"_s));
        lastDate = time.date();
    }
}

void TestTickLayout::midnightThatDoesNotExist()
{
    // On this day the clocks of Beirut went from 23:59 to 01:00.
    const QDateTime start(QDate(2020, 3, 28), QTime(22, 0), QTimeZone("Asia/Beirut"));
    const TimeScale scale = scaleOf(start, 10 * day);
    QCOMPARE(msecsToMidnight(scale), 2 * hour);
    QVERIFY(texts(layoutOf(scale)).contains(u"22:55"_s));
}

QTEST_MAIN(TestTickLayout)
#include "tst_ticklayout.moc"
