// SPDX-License-Identifier: MIT
#include "calendarticks.h"
#include "testsupport.h"
#include "times.h"

using namespace CorvelGui;

namespace {

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

ClockChanges clockOf(const QTimeZone& zone)
{
    ClockChanges clock;
    clock.setZone(zone);
    return clock;
}

CalendarScale layOut(const QTimeZone& zone, const CalendarView& view)
{
    return layOutCalendar(view, clockOf(zone), style());
}

QStringList texts(const CalendarScale& scale, int row)
{
    QStringList result;
    for (const CalendarLabel& label : scale.labels)
        if (label.row == row)
            result << label.text;
    return result;
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

class TestCalendarTicks : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void steps()
    {
        const std::tuple<double, QString, QString> cases[] = {
            {0.4, u"10:00:00.000 10:00:00.050 10:00:00.100"_s, u"14.07.26"_s},
            {20.0, u"10:00:00 10:00:02 10:00:04"_s, u"14.07.26"_s},
            {20000.0, u"10:00 10:15 10:30"_s, u"14.07.26"_s},
            {day / 70.0, u"15.07.26 16.07.26 17.07.26"_s, u"July 2026"_s},
            {7 * day / 70.0, u"20.07.26 27.07.26 03.08.26"_s, u"July 2026"_s},
            {30 * day / 50.0, u"Aug Sep Oct"_s, u"2026"_s},
            {100 * 365 * day / 60.0, u"2100 2200 2300"_s, {}}};
        for (const auto& [msecsPerPixel, upper, lower] : cases) {
            const CalendarScale scale =
                layOut(QTimeZone::utc(), {msecs("2026-07-14T10:00:00Z"), msecsPerPixel, 10, 1010});
            QCOMPARE(texts(scale, 0).first(3).join(u' '), upper);
            QCOMPARE(texts(scale, 1).value(0), lower);
        }
        QVERIFY(layOut(QTimeZone::utc(), {0, 0.0, 10, 1010}).ticks.empty());
    }

    void clockChange()
    {
        // The last is how far the clocks are put forward, in milliseconds.
        const std::tuple<const char*, const char*, double, QString, qint64> cases[] = {
            {"Europe/Brussels", "2026-10-24T23:30:00Z", hour / 80.0,
             u"01:30, 02:00 +02, 02:00 +01, 03:00"_s, -hour},
            {"Europe/Brussels", "2026-03-29T00:00:00Z", hour / 50.0,
             u"01:00, 03:00, 04:00, 05:00"_s, hour},
            // Half an hour, half hours from UTC
            {"Australia/Lord_Howe", "2026-04-04T14:30:00Z", 30 * minute / 90.0,
             u"01:30 +11, 01:30 +10:30, 02:00, 02:15"_s, -30 * minute},
            // Midnight is skipped, and a day
            {"America/Sao_Paulo", "2018-11-03T03:00:00Z", day / 70.0,
             u"03.11.18, 04.11.18, 05.11.18"_s, hour},
#ifndef Q_OS_WIN // which does not know of it
            {"Pacific/Apia", "2011-12-29T10:00:00Z", day / 70.0, u"29.12.11, 31.12.11, 01.01.12"_s,
             day},
#endif
        };
        for (const auto& [zone, from, msecsPerPixel, expected, change] : cases) {
            const CalendarScale scale =
                layOut(QTimeZone(zone), {msecs(from), msecsPerPixel, 0, 500});
            const QString upper = texts(scale, 0).join(u", "_s);
            QCOMPARE(upper.first(expected.size()), expected);
            QCOMPARE(scale.changes.size(), size_t(1));
            QCOMPARE(scale.changes.front().after - scale.changes.front().before, change);
        }
    }

    // Its hour is tinted wherever a part of it is in view.
    void changesBesideTheView()
    {
        const std::tuple<const char*, const char*, size_t> views[] = {
            {"2026-10-24T22:00:00Z", "2026-10-25T00:00:00Z", 0},
            {"2026-10-24T22:00:00Z", "2026-10-25T00:00:01Z", 1},
            {"2026-10-25T01:59:59Z", "2026-10-25T05:00:00Z", 1},
            {"2026-10-25T02:00:00Z", "2026-10-25T05:00:00Z", 0},
            {"2026-03-29T01:00:01Z", "2026-03-29T03:00:00Z", 0},
            {"2026-03-28T23:00:00Z", "2026-03-29T01:00:00Z", 0}};
        for (const auto& [from, to, count] : views) {
            const double msecsPerPixel = double(msecs(to) - msecs(from)) / 1'000;
            const CalendarScale scale =
                layOut(QTimeZone("Europe/Brussels"), {msecs(from), msecsPerPixel, 0, 1'000});
            QVERIFY2(scale.changes.size() == count, from);
        }
    }

    // Against a plain reckoning with Qt's calendar and zones, over every kind of view.
    void labelsOfRandomViews()
    {
        QRandomGenerator random(20261121);
        for (const char* id :
             {"UTC", "Europe/Brussels", "America/New_York", "Asia/Almaty", "Asia/Katmandu",
              "Australia/Lord_Howe", "Africa/Cairo", "Pacific/Apia", "America/Sao_Paulo"}) {
            const QTimeZone zone(id);
            const ClockChanges clock = clockOf(zone);
            for (int round = 0; round < 1'112; ++round) {
                CalendarView view;
                view.from = msecs("1990-01-01T00:00:00Z") +
                            qint64(random.generateDouble() * 50 * 365 * day);
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
                QVERIFY2(fault.isEmpty(), qPrintable(u"%1: %2 from %3, %4 ms a pixel, %5 to %6"_s
                                                         .arg(QString::fromLatin1(id), fault)
                                                         .arg(view.from)
                                                         .arg(view.msecsPerPixel)
                                                         .arg(view.left)
                                                         .arg(view.right)));
                QVERIFY(!scale.ticks.empty());
                QVERIFY(std::ranges::adjacent_find(scale.ticks, std::greater_equal(),
                                                   &CalendarTick::instant) == scale.ticks.end());
            }
        }
    }

    // Wherever days are told apart, each has its tick at its begin.
    void days()
    {
        for (const char* id : {"Europe/Brussels", "America/Sao_Paulo", "Pacific/Apia"}) {
            const QTimeZone zone(id);
            const qint64 from = msecs("2011-01-01T00:00:00Z");
            const CalendarView view{from, double(day) / 7, 0, 7 * 365 * 8};
            QSet<qint64> ticks;
            for (const CalendarTick& tick : layOut(zone, view).ticks)
                ticks.insert(tick.instant);
            const QDate last = inZone(from + 365 * 8 * day, zone).date();
            for (QDate date = inZone(from, zone).date().addDays(1); date < last;
                 date = date.addDays(1))
                if (const QDateTime start = date.startOfDay(zone); start.date() == date)
                    QVERIFY2(ticks.contains(start.toMSecsSinceEpoch()),
                             qPrintable(date.toString()));
        }
    }
};

QTEST_MAIN(TestCalendarTicks)
#include "tst_calendarticks.moc"
