#include "data/csvreader.h"
#include "data/eventwriter.h"
#include "data/instant.h"
#include "data/reviewloader.h"
#include "data/sampledata.h"
#include "data/trackhistory.h"
#include "look/typedtime.h"
#include "testsupport.h"
#include "times.h"

#include <QHash>
#include <QStringConverter>
#include <QTemporaryDir>
#include <QTest>

#include <utility>

using namespace Qt::StringLiterals;
using namespace Review;
using CorvelGui::TimeSpan;
using CorvelGui::TrackDescription;

Q_DECLARE_METATYPE(Review::Instant::Fault)

namespace {

/// The records of @p text, each as "line: field|field" or "line! fault".
QStringList recordsOf(const QByteArray& text)
{
    QStringList records;
    for (CsvReader reader(text); reader.next();) {
        const bool good = reader.fault() == CsvReader::Fault::None;
        records.append(u"%1%2 %3"_s.arg(reader.line())
                           .arg(good ? u":"_s : u"!"_s)
                           .arg(good ? QString::fromUtf8(reader.fields().join('|'))
                                     : QString::number(int(reader.fault()))));
    }
    return records;
}

/// The tracks of @p data, each as "name begin-end: begin-end …" in minutes after the Monday.
QStringList tracksOf(const ReviewData& data)
{
    const auto text = [](qint64 begin, qint64 end) {
        return u"%1-%2"_s.arg((begin - monday) / minute).arg((end - monday) / minute);
    };
    QStringList tracks;
    for (const TrackDescription& track : data.tracks) {
        QStringList words{track.name, text(track.begin, track.end) + u':'};
        for (const TimeSpan& span : track.recorded)
            words.append(text(span.begin, span.end));
        tracks.append(words.join(u' '));
    }
    return tracks;
}

} // namespace

class TestReviewData : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void instants_data();
    void instants();
    void csvRecords_data();
    void csvRecords();
    void malformedLines_data();
    void malformedLines();
    void unusableFiles_data();
    void unusableFiles();
    void filesAreRead();
    void writtenEventsComeBack_data();
    void writtenEventsComeBack();
    void garbageHarmsNothing();
    void historyKnowsThreeStates();
    void clockChanges();
    void typedTimes_data();
    void typedTimes();
    void sampleIsSound();

private:
    QString write(const QString& name, const QByteArray& text);

    QTemporaryDir m_dir;
};

QString TestReviewData::write(const QString& name, const QByteArray& text)
{
    QFile file(m_dir.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("Cannot write a test file");
    return file.fileName();
}

void TestReviewData::instants_data()
{
    using Fault = Instant::Fault;
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<qint64>("msecs");
    QTest::addColumn<Fault>("fault");

    const auto good = [](const char* text, qint64 msecs) {
        QTest::newRow(text) << QByteArray(text) << msecs << Fault::None;
    };
    good("2026-03-02T00:00:00Z", monday);
    good("1970-01-01T00:00:00Z", 0);
    good("2026-03-02t00:00:00z", monday);
    good("2026-03-02 00:00Z", monday);
    good("2026-03-02T00:00:00.2509Z", monday + 250);
    good("2026-03-02T00:00:00,5Z", monday + 500);
    good("2026-03-02T01:00:00+01", monday);
    good("2026-03-02T05:45:00+0545", monday);
    good("2026-03-01T23:30:00-00:30", monday);
    good("2024-02-29T00:00:00Z", monday - 732 * day);
    // Before and after the clocks of Brussels skip from two to three.
    good("2026-03-29T01:59:59+01:00", monday + 27 * day + hour - second);
    good("2026-03-29T03:00:00+02:00", monday + 27 * day + hour);

    const auto bad = [](const char* text, Fault fault) {
        QTest::newRow(text) << QByteArray(text) << qint64(0) << fault;
    };
    bad("2026-03-02T00:00:00", Fault::NoOffset);
    bad("2026-03-02T00:00", Fault::NoOffset);
    bad("1970-01-01T00:59:59.999+01:00", Fault::BeforeEpoch);
    for (const char* text :
         {"", "yesterday", "2026-03-02", "2026-03-02Z", "2026-02-29T00:00:00Z", "2026-13-01T00:00Z",
          "2026-03-02T24:00:00Z", "2026-03-02T00:60:00Z", "2026-03-02T00:00:60Z",
          "2026-03-02T00:00:00.Z", "2026-03-02T00:00:00Zulu", "2026-03-02T00:00:00+1:00",
          "2026-03-02T00:00:00+01:", "2026-03-02T00:00:00+15:00", "2026-3-2T0:0:0Z",
          "+026-03-02T00:00:00Z", "1772409600000"})
        bad(text, Fault::Malformed);
}

void TestReviewData::instants()
{
    QFETCH(const QByteArray, text);
    const Instant instant = Instant::parse(text);
    QTEST(instant.msecs, "msecs");
    QTEST(instant.fault, "fault");
}

void TestReviewData::csvRecords_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("records");

    const auto row = [](const char* name, const char* text, const QStringList& records) {
        QTest::newRow(name) << QByteArray(text) << records;
    };
    row("LF", "a,b\nc,d\n", {u"1: a|b"_s, u"2: c|d"_s});
    row("CRLF", "a,b\r\nc,d\r\n", {u"1: a|b"_s, u"2: c|d"_s});
    row("semicolons", "\"a,b\";c\nd;e,f\n", {u"1: a,b|c"_s, u"2: d|e,f"_s});
    row("tabs", "\na\tb\nc;\t\"d\"\n", {u"2: a|b"_s, u"3: c;|d"_s});
    row("no last LF", "a\nb\r", {u"1: a"_s, u"2: b"_s});
    row("byte order mark", "\xEF\xBB\xBF\"a\",b", {u"1: a|b"_s});
    row("empty lines", "\n\r\na\n\nb\n", {u"3: a"_s, u"5: b"_s});
    row("empty fields", ",\n\"\",a,\n", {u"1: |"_s, u"2: |a|"_s});
    row("quotes", "\"a,b\",\"say \"\"hi\"\"\"\nc\"d,e\n", {u"1: a,b|say \"hi\""_s, u"2: c\"d|e"_s});
    row("line break in quotes", "\"a\nb\",c\r\nd\n", {u"1: a\nb|c"_s, u"3: d"_s});
    row("text behind a quote", "\"a\nb\" c\nd\n", {u"1! 3"_s, u"2: b\" c"_s, u"3: d"_s});
    row("open quote", "a,\"b\nc\nd\n", {u"1! 2"_s, u"2: c"_s, u"3: d"_s});
    row("not UTF-8", "\xC3\xA9\n\xE9\nb\n", {u"1: é"_s, u"2! 1"_s, u"3: b"_s});
}

void TestReviewData::csvRecords()
{
    QFETCH(const QByteArray, text);
    QTEST(recordsOf(text), "records");
}

void TestReviewData::malformedLines_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("problem");

    const auto row = [](const QByteArray& line, const QString& problem) {
        QTest::newRow(line.constData()) << line << problem;
    };
    row("a,2026-03-02T00:00Z", u"2 fields instead of 3"_s);
    row("a,2026-03-02T00:00Z,2026-03-02T00:01Z,", u"4 fields instead of 3"_s);
    row(" ,2026-03-02T00:00Z,2026-03-02T00:01Z", u"the camera has no name"_s);
    row("a,today,2026-03-02T00:01Z", u"“today” is not an ISO 8601 date and time"_s);
    row("a,2026-03-02T00:00Z,", u"“” is not an ISO 8601 date and time"_s);
    row("a,2026-03-02T00:00Z,2026-03-02T00:01",
        u"“2026-03-02T00:01” has neither an offset from UTC nor a Z"_s);
    row("a,1969-03-02T00:00Z,2026-03-02T00:01Z",
        u"“1969-03-02T00:00Z” lies before the year 1970"_s);
    row("a,2026-03-02T01:00Z,2026-03-02T01:59+01:00", u"the end lies before the begin"_s);
    row("a,2026-03-02T00:00Z,2026-03-02T01:00+01:00", u"begin and end are the same instant"_s);
    row("\"a\"b,2026-03-02T00:00Z,2026-03-02T00:01Z", u"there is text behind a closing quote"_s);
    row("a,2026-03-02T00:00Z,\"2026-03-02T00:01Z", u"a quote is not closed"_s);
    row("\xE9,2026-03-02T00:00Z,2026-03-02T00:01Z", u"the line is not UTF-8"_s);
    row("a," + QByteArray(100, 'x') + ",2026-03-02T00:01Z",
        u"“%1…” is not an ISO 8601 date and time"_s.arg(QString(40, u'x')));
}

void TestReviewData::malformedLines()
{
    QFETCH(const QByteArray, line);
    QFETCH(const QString, problem);
    const QString path =
        write(u"recordings.csv"_s, "track,begin,end\r\n"
                                   "a,2026-03-02T00:01Z,2026-03-02T00:02Z\r\n\r\n" +
                                       line +
                                       "\r\n"
                                       "a,2026-03-02T00:03Z,2026-03-02T00:04Z");
    ReviewLoader loader;
    QCOMPARE(loader.load({.recordings = path, .events = {}, .deployments = {}}), QString());
    QCOMPARE(tracksOf(loader.data()), QStringList{u"a 1-4: 1-2 3-4"_s});
    QCOMPARE(loader.problems().listed(), QList<Problem>{Problem({path, 4, problem})});
}

void TestReviewData::unusableFiles_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("reason");

    const auto row = [](const char* name, const QByteArray& text, const QString& reason) {
        QTest::newRow(name) << text << reason;
    };
    row("empty", "\r\n\r\n", u"it has no header line that names its columns"_s);
    row("two cameras", "track,camera,begin,end\n", u"it has more than one column “camera”"_s);
    row("no header", "a,2026-03-02T00:00Z,2026-03-02T00:01Z\n", u"it has no column “camera”"_s);
    row("no end", "track,begin,End\n", u"it has no column “end”"_s);
    row("two ends", "track,end,begin,end\n", u"it has more than one column “end”"_s);
}

void TestReviewData::unusableFiles()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, reason);
    const QString path = write(u"bad.csv"_s, text);
    ReviewLoader loader;
    QCOMPARE(loader.load({.recordings = {}, .events = {}, .deployments = path}),
             u"Cannot read %1: %2"_s.arg(QDir::toNativeSeparators(path), reason));
}

void TestReviewData::filesAreRead()
{
    // The columns stand in any order.
    const QString recordings =
        write(u"recordings.csv"_s, "\xEF\xBB\xBF\"end\", note ,begin,\"track\",file,offset\r\n"
                                   "2026-03-02T00:08Z,x, 2026-03-02T00:05Z ,b, b/1.mp4 , 2.5 \r\n"
                                   "2026-03-02T00:02Z,,2026-03-02T00:01Z,\"a,c\",,\r\n"
                                   "2026-03-02T00:04Z,x,2026-03-02T00:02Z,b,/b/2.ts,\r\n"
                                   "2026-03-02T00:04Z,x,2026-03-02T00:02Z,c,/c.ts,-1\r\n");
    const QString deployments =
        write(u"deployments.csv"_s, "camera,begin,end\na,2026-03-02T00:01Z,2026-03-02T00:02Z\n"
                                    "b,2026-03-02T00:03Z,2026-03-02T00:04Z\n"
                                    "b,2026-03-02T00:08Z,2026-03-02T00:09Z\n");
    // As spreadsheets write Unicode text.
    const QString lines = u"\uFEFFtext\tkind\ttime\n"
                          "später\tperson\t2026-03-02T00:02Z\n"
                          "\"two\nlines\"\tanimal\t2026-03-02T00:01Z\n"
                          "none\t\t2026-03-02T00:01Z\n"
                          "also later\talarm\t2026-03-02T00:02Z\n"_s;
    const QString events =
        write(u"events.csv"_s, QStringEncoder(QStringEncoder::Utf16BE).encode(lines));
    ReviewLoader loader;
    QCOMPARE(loader.load({.recordings = recordings, .events = events, .deployments = deployments}),
             QString());
    QCOMPARE(loader.progress().percent(), 100);
    const ReviewData& data = loader.data();
    QCOMPARE(tracksOf(data), (QStringList{u"b 3-9: 5-8 2-4"_s, u"a,c 1-2: 1-2"_s, u"a 1-2:"_s}));
    const QList<VideoFile> files{
        {QFileInfo(recordings).dir().filePath(u"b/1.mp4"_s), monday + 5 * minute,
         monday + 8 * minute, 2'500},
        {QFileInfo(u"/b/2.ts"_s).absoluteFilePath(), monday + 2 * minute, monday + 4 * minute, 0}};
    QCOMPARE(data.files, (QHash<QString, QList<VideoFile>>{{u"b"_s, files}}));
    QCOMPARE(data.period(), (TimeSpan{monday + minute, monday + 9 * minute}));
    QCOMPARE(data.events, (Events{{monday + minute, u"animal"_s, u"two\nlines"_s, {}},
                                  {monday + 2 * minute, u"person"_s, u"später"_s, {}},
                                  {monday + 2 * minute, u"alarm"_s, u"also later"_s, {}}}));
    QCOMPARE(loader.problems().listed(),
             (QList<Problem>{Problem({recordings, 5, u"“-1” is not a number of seconds"_s}),
                             Problem({events, 5, u"the event has no kind"_s})}));

    ReviewLoader cancelled;
    cancelled.progress().cancel();
    QCOMPARE(cancelled.load({.recordings = recordings, .events = events, .deployments = {}}),
             QString());
    QVERIFY(cancelled.data().tracks.isEmpty() && cancelled.data().events.isEmpty());
}

void TestReviewData::writtenEventsComeBack_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<char>("separator");
    QTest::addColumn<QByteArray>("times");
    // An hour apart, and on this clock the same.
    QTest::newRow("repeated hour") << QByteArray("Europe/Brussels") << ','
                                   << QByteArray("2026-10-25T02:30:00.007+02:00 "
                                                 "2026-10-25T02:30:00.007+01:00");
    QTest::newRow("west") << QByteArray("America/St_Johns") << ';'
                          << QByteArray(
                                 "2026-10-24T22:00:00.007-02:30 2026-10-24T23:00:00.007-02:30");
    // Whose offset at first was not one of whole minutes.
    QTest::newRow("seconds") << QByteArray("Africa/Monrovia") << '\t'
                             << QByteArray("2026-10-25T00:30:00.007Z 2026-10-25T01:30:00.007Z");
}

void TestReviewData::writtenEventsComeBack()
{
    QFETCH(const QByteArray, zone);
    QFETCH(const char, separator);
    const qint64 time = monday + 237 * day + 30 * minute + 7;
    const Events events{{day, u"x"_s, {}, u"ü"_s},
                        {time, u"person"_s, u"\"a\", b; c\td"_s, u"10,1"_s},
                        {time + hour, u"Auto"_s, u"two\r\nlines"_s, {}}};
    EventWriter writer(QTimeZone(zone), separator);
    for (qsizetype i = 0; i < events.size(); ++i)
        writer.add(events[i]);
    QFETCH(const QByteArray, times);
    for (const QByteArray& text : times.split(' '))
        QVERIFY2(writer.text().contains("\r\n" + text + separator), text.constData());

    ReviewLoader loader;
    const QString path = write(u"events.csv"_s, writer.text());
    QCOMPARE(loader.load({.recordings = {}, .events = path, .deployments = {}}), QString());
    QCOMPARE(loader.data().events, events);
    QCOMPARE(loader.problems().count(), 0);
}

void TestReviewData::garbageHarmsNothing()
{
    QByteArray text = "track,begin,end\na,2026-03-02T00:01Z,2026-03-02T00:02Z\n";
    for (int line = 0; line < 250; ++line) {
        for (int i = 0; i < 1'000; ++i)
            text.append(char((i * i * 31 + line * 7 + i / 3) % 251));
        text.append('\n');
    }
    text += QByteArray(1'000'000, 'x') + '\n' + QByteArray(1'000'000, ',') + "\n\"" +
            QByteArray(1'000'000, ' ') + "\na,2026-03-02T00:03Z,2026-03-02T00:04Z\n";

    ReviewLoader loader;
    const QString path = write(u"garbage.csv"_s, text);
    QCOMPARE(loader.load({.recordings = path, .events = {}, .deployments = {}}), QString());
    QCOMPARE(tracksOf(loader.data()), QStringList{u"a 1-4: 1-2 3-4"_s});
    QCOMPARE(loader.problems().listed().size(), ProblemList::maximumListed);
    QVERIFY(loader.problems().count() >= 253);
    QCOMPARE(loader.problems().unlisted(), loader.problems().count() - ProblemList::maximumListed);
}

void TestReviewData::historyKnowsThreeStates()
{
    // The last span reaches beyond the described period.
    const TrackHistory history({.identifier = u"a"_s,
                                .name = u"a"_s,
                                .begin = 100,
                                .end = 200,
                                .recorded = {{190, 220}, {120, 130}, {125, 140}, {122, 124}}});
    QString states;
    for (const qint64 time : {99, 100, 119, 120, 130, 139, 140, 189, 190, 219, 220})
        states += u"rg-"_s[int(history.stateAt(time))];
    QCOMPARE(states, u"-ggrrrggrr-"_s);
    QCOMPARE(history.recordedTime(), 50); // overlaps count once
    QCOMPARE(int(TrackHistory({}).stateAt(0)), int(TrackState::NothingKnown));
}

void TestReviewData::clockChanges()
{
    const auto time = [](const char* text) {
        return QDateTime::fromString(QLatin1StringView(text) + u'Z', Qt::ISODate);
    };
    const TimeTexts times(u"Europe/Brussels"_s);
    const char* const rows[][3] = {
        {"2026-03-29T01:59:59", "2026-03-29T00:59:59", "2026-03-29T01:59:59"},  // winter
        {"2026-03-29T02:30:00", "2026-03-29T01:30:00", "2026-03-29T03:30:00"},  // skipped
        {"2026-03-29T03:00:00", "2026-03-29T01:00:00", "2026-03-29T03:00:00"},  // summer
        {"2026-10-25T02:30:00", "2026-10-25T00:30:00", "2026-10-25T02:30:00"}}; // repeated
    for (const auto& [clock, utc, clockAgain] : rows) {
        const qint64 instant = times.fromWallClock(time(clock));
        QCOMPARE(instant, time(utc).toMSecsSinceEpoch());
        QCOMPARE(times.wallClock(instant), time(clockAgain));
    }
}

void TestReviewData::typedTimes_data()
{
    QTest::addColumn<int>("order");
    QTest::addColumn<QString>("read");
    const auto row = [](const char* typed, const QString& read,
                        TimeFormat::Order order = TimeFormat::Order::DayFirst) {
        QTest::newRow(typed) << int(order) << read;
    };
    // Instead of 2026-02-28T11:11:11.125.
    row("12:30:00", u"2026-02-28T12:30:00.000"_s);
    row(" 9:5 ", u"2026-02-28T09:05:00.000"_s);
    row("31.03.2026", u"2026-03-31T11:11:11.125"_s);
    row("29.2.2024  1:02:03.5", u"2024-02-29T01:02:03.500"_s);
    row("3/4/2026", u"2026-03-04T11:11:11.125"_s, TimeFormat::Order::MonthFirst);
    row("2026-04-03 00:00", u"2026-04-03T00:00:00.000"_s);
    row("2026-4-3", u"2026-04-03T11:11:11.125"_s, TimeFormat::Order::YearFirst);
    for (const char* bad : {"", "noon", "12", "24:00", "12:60", "1.2", "29.2.2026", "1.13.2026",
                            "1.2-2026", "12:30 1.2.2026", "1.2.202612:30"})
        row(bad, {});
}

void TestReviewData::typedTimes()
{
    QFETCH(const int, order);
    const QDateTime shown(QDate(2026, 2, 28), QTime(11, 11, 11, 125), Qt::UTC);
    const auto typed = readTypedTime(QString::fromLatin1(QTest::currentDataTag()),
                                     {.order = TimeFormat::Order(order)}, shown);
    QTEST(typed ? typed->toString(u"yyyy-MM-ddTHH:mm:ss.zzz"_s) : QString(), "read");
}

void TestReviewData::sampleIsSound()
{
    const ReviewData sample = SampleData::make();
    QCOMPARE(tracksOf(SampleData::make()), tracksOf(sample));
    QCOMPARE(SampleData::make().events, sample.events);
    QCOMPARE(sample.period(), (TimeSpan{monday, monday + 14 * day}));
    // The same on every platform.
    QCOMPARE(sample.recordingCount(), 2721);
    QCOMPARE(sample.events.size(), 1631);

    QHash<QString, TrackHistory> histories;
    for (const TrackDescription& track : sample.tracks) {
        histories.insert(track.identifier, TrackHistory(track));
        // None overlap, and none reach beyond what is known of the camera.
        QCOMPARE(histories.find(track.identifier)->recorded().size(), track.recorded.size());
        QCOMPARE(histories.find(track.identifier)->known(), (TimeSpan{track.begin, track.end}));
    }
    qint64 previous = 0;
    for (qsizetype i = 0; i < sample.events.size(); ++i) {
        const Event event = sample.events[i];
        QVERIFY(event.time >= std::exchange(previous, event.time));
        QCOMPARE(histories.find(event.track)->stateAt(event.time), TrackState::Recorded);
    }
}

QTEST_GUILESS_MAIN(TestReviewData)
#include "tst_reviewdata.moc"
