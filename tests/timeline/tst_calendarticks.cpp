#include "calendarticks.h"
#include "testsupport.h"

#include <QRandomGenerator>
#include <QTest>
#include <QTimeZone>

#include <cmath>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

namespace {

constexpr qint64 second = 1000;
constexpr qint64 minute = 60 * second;
constexpr qint64 hour = 60 * minute;
constexpr qint64 day = 24 * hour;

QDateTime inZone(qint64 instant, const QTimeZone& zone)
{
    return QDateTime::fromMSecsSinceEpoch(instant, zone);
}

qint64 msecs(const char* text)
{
    return QDateTime::fromString(QString::fromLatin1(text), Qt::ISODate).toMSecsSinceEpoch();
}

CalendarStyle style(int points = 8)
{
    return {QFontMetricsF(QFont(u"DejaVu Sans"_s, points)), u"dd.MM.yy"_s};
}

QString describe(const CalendarView& view, const QTimeZone& zone)
{
    return u"from %1 (%2), %3 ms a pixel, %4 to %5"_s
        .arg(inZone(view.from, zone).toString(Qt::ISODateWithMs), QString::fromUtf8(zone.id()))
        .arg(view.msecsPerPixel)
        .arg(view.left)
        .arg(view.right);
}

/// The first thing that is wrong with the labels, or nothing.
QString faultOf(const CalendarScale& scale, const CalendarView& view, const QTimeZone& zone,
                const CalendarStyle& style)
{
    QHash<int, double> end;
    QSet<std::pair<QString, QDate>> said;
    for (const CalendarLabel& label : scale.labels) {
        const QDateTime time = inZone(label.instant, zone);
        const double exact =
            view.left + double(label.instant - view.from) / view.msecsPerPixel + 2.0;
        const bool first = label.row == 1 && label.instant == view.from;
        const auto wrong = [&](const char* what) {
            return QString::fromLatin1(what) + u": '%1' at %2"_s.arg(label.text).arg(label.x);
        };
        if (!first && std::abs(label.x - exact) > 0.5)
            return wrong("not at its instant");
        if (label.x < view.left ||
            label.x + style.metrics.horizontalAdvance(label.text) > view.right + 0.001)
            return wrong("cut");
        if (end.contains(label.row) && label.x < end[label.row])
            return wrong("overlaps");
        end[label.row] = label.x + style.metrics.horizontalAdvance(label.text);
        if (label.row == 0 && label.text.contains(u':')) {
            const QString clock = label.text.section(u' ', 0, 0);
            const QString format = u"hh:mm:ss.zzz"_s.first(clock.size());
            if (time.toString(format) != clock)
                return wrong("another time");
            const auto key = std::pair(label.text, time.date());
            if (said.contains(key))
                return wrong("said twice");
            said.insert(key);
        } else if (label.row == 0 && label.text.contains(u'.') &&
                   (label.text != time.toString(style.dateFormat) ||
                    time != time.date().startOfDay(zone))) {
            return wrong("not the begin of that day");
        }
    }
    return {};
}

} // namespace

class TestCalendarTicks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void steps_data();
    void steps();
    void clockChange_data();
    void clockChange();
    void labelsOfRandomViews();
    void days();
};

void TestCalendarTicks::steps_data()
{
    QTest::addColumn<double>("msecsPerPixel");
    QTest::addColumn<QStringList>("upper");
    QTest::addColumn<QString>("lower");

    QTest::newRow("40 ms a hundred pixels")
        << 0.4 << QStringList{u"10:00:00.000"_s, u"10:00:00.050"_s, u"10:00:00.100"_s}
        << u"14.07.26"_s;
    QTest::newRow("seconds") << 20.0 << QStringList{u"10:00:00"_s, u"10:00:02"_s, u"10:00:04"_s}
                             << u"14.07.26"_s;
    QTest::newRow("quarters of an hour")
        << 20000.0 << QStringList{u"10:00"_s, u"10:15"_s, u"10:30"_s} << u"14.07.26"_s;
    QTest::newRow("days") << double(day) / 70
                          << QStringList{u"15.07.26"_s, u"16.07.26"_s, u"17.07.26"_s}
                          << u"July 2026"_s;
    QTest::newRow("weeks") << double(7 * day) / 70
                           << QStringList{u"20.07.26"_s, u"27.07.26"_s, u"03.08.26"_s}
                           << u"July 2026"_s;
    QTest::newRow("months") << double(30 * day) / 50 << QStringList{u"Aug"_s, u"Sep"_s, u"Oct"_s}
                            << u"2026"_s;
    QTest::newRow("centuries") << double(100 * 365 * day) / 60
                               << QStringList{u"2100"_s, u"2200"_s, u"2300"_s} << QString();
}

void TestCalendarTicks::steps()
{
    QFETCH(const double, msecsPerPixel);
    QFETCH(const QStringList, upper);
    QFETCH(const QString, lower);

    const CalendarView view{msecs("2026-07-14T10:00:00Z"), msecsPerPixel, 10, 1010};
    ClockChanges clock;
    clock.setZone(QTimeZone::utc());
    const CalendarScale scale = layOutCalendar(view, clock, style());
    QStringList texts[2];
    for (const CalendarLabel& label : scale.labels)
        texts[label.row].append(label.text);
    QCOMPARE(texts[0].first(3), upper);
    QCOMPARE(texts[1].value(0), lower);
}

void TestCalendarTicks::clockChange_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<qint64>("from");
    QTest::addColumn<double>("msecsPerPixel");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<qint64>("change"); // milliseconds that the clocks are put forward

    QTest::newRow("the repeated hour")
        << QByteArray("Europe/Brussels") << msecs("2026-10-24T23:30:00Z") << double(hour) / 80
        << QStringList{u"01:30"_s, u"02:00 +02"_s, u"02:00 +01"_s, u"03:00"_s} << -hour;
    QTest::newRow("the skipped hour")
        << QByteArray("Europe/Brussels") << msecs("2026-03-29T00:00:00Z") << double(hour) / 50
        << QStringList{u"01:00"_s, u"03:00"_s, u"04:00"_s, u"05:00"_s} << hour;
    QTest::newRow("half an hour, half hours from UTC")
        << QByteArray("Australia/Lord_Howe") << msecs("2026-04-04T14:30:00Z")
        << double(30 * minute) / 90
        << QStringList{u"01:30 +11"_s, u"01:30 +10:30"_s, u"02:00"_s, u"02:15"_s} << -30 * minute;
    QTest::newRow("midnight is skipped")
        << QByteArray("America/Sao_Paulo") << msecs("2018-11-03T03:00:00Z") << double(day) / 70
        << QStringList{u"03.11.18"_s, u"04.11.18"_s, u"05.11.18"_s} << hour;
    QTest::newRow("a day is skipped")
        << QByteArray("Pacific/Apia") << msecs("2011-12-29T10:00:00Z") << double(day) / 70
        << QStringList{u"29.12.11"_s, u"31.12.11"_s, u"01.01.12"_s} << day;
}

void TestCalendarTicks::clockChange()
{
    QFETCH(const QByteArray, zone);
    QFETCH(const qint64, from);
    QFETCH(const double, msecsPerPixel);
    QFETCH(const QStringList, texts);
    QFETCH(const qint64, change);

    ClockChanges clock;
    clock.setZone(QTimeZone(zone));
    const CalendarScale scale = layOutCalendar({from, msecsPerPixel, 0, 500}, clock, style());
    QStringList upper;
    for (const CalendarLabel& label : scale.labels)
        if (label.row == 0)
            upper.append(label.text);
    QCOMPARE(upper.first(texts.size()), texts);
    QCOMPARE(scale.changes.size(), size_t(1));
    QCOMPARE(scale.changes.front().after - scale.changes.front().before, change);
}

// Against a plain reckoning with Qt's calendar and zones, over every kind of view.
void TestCalendarTicks::labelsOfRandomViews()
{
    const QByteArray zones[] = {"UTC",          "Europe/Brussels", "America/New_York",
                                "Asia/Almaty",  "Asia/Kathmandu",  "Australia/Lord_Howe",
                                "Africa/Cairo", "Pacific/Apia",    "America/Sao_Paulo"};
    QRandomGenerator random(20261121);
    for (const QByteArray& id : zones) {
        const QTimeZone zone(id);
        ClockChanges clock;
        clock.setZone(zone);
        for (int round = 0; round < 1200; ++round) {
            CalendarView view;
            view.from =
                msecs("1990-01-01T00:00:00Z") + qint64(random.generateDouble() * 50 * 365 * day);
            view.msecsPerPixel = 0.4 * std::pow(10.0, random.generateDouble() * 9);
            // Every second one close to a clock change.
            if (round % 2 == 0) {
                const auto next = zone.nextTransition(inZone(view.from, zone)).atUtc;
                if (next.isValid())
                    view.from = next.toMSecsSinceEpoch() -
                                qint64(random.generateDouble() * 300 * view.msecsPerPixel);
            }
            view.left = random.bounded(20);
            view.right = view.left + 100 + random.bounded(3740);
            const CalendarStyle chosen = style(8 + random.bounded(13));
            const CalendarScale scale = layOutCalendar(view, clock, chosen);
            const QString fault = faultOf(scale, view, zone, chosen);
            QVERIFY2(fault.isEmpty(),
                     qPrintable(fault + u" in the view "_s + describe(view, zone)));
            QVERIFY(!scale.ticks.empty());
        }
    }
}

// Wherever days are told apart, each has its tick at its begin.
void TestCalendarTicks::days()
{
    for (const char* id : {"Europe/Brussels", "America/Sao_Paulo", "Pacific/Apia"}) {
        const QTimeZone zone(id);
        ClockChanges clock;
        clock.setZone(zone);
        const qint64 from = msecs("2011-01-01T00:00:00Z");
        const CalendarView view{from, double(day) / 7, 0, 7 * 365 * 8};
        QSet<qint64> ticks;
        for (const CalendarTick& tick : layOutCalendar(view, clock, style()).ticks)
            ticks.insert(tick.instant);
        const QDate last = inZone(from + 365 * 8 * day, zone).date();
        for (QDate date = inZone(from, zone).date().addDays(1); date < last; date = date.addDays(1))
            if (const QDateTime start = date.startOfDay(zone); start.date() == date)
                QVERIFY2(ticks.contains(start.toMSecsSinceEpoch()), qPrintable(date.toString()));
    }
}

QTEST_MAIN(TestCalendarTicks)
#include "tst_calendarticks.moc"
