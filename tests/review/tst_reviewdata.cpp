// SPDX-License-Identifier: MIT
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

using namespace Review;
using CorvelGui::TimeSpan;
using CorvelGui::TrackDescription;

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

/// Each as "line text".
QStringList problemsOf(const ReviewLoader& loader)
{
    QStringList texts;
    for (const Problem& problem : loader.problems().listed())
        texts.append(u"%1 %2"_s.arg(problem.line).arg(problem.text.text()));
    return texts;
}

} // namespace

class TestReviewData : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void instants()
    {
        using Fault = Instant::Fault;
        const std::tuple<const char*, qint64, Fault> rows[] = {
            {"2026-03-02T00:00:00Z", monday, Fault::None},
            {"1970-01-01T00:00:00Z", 0, Fault::None},
            {"2026-03-02t00:00:00z", monday, Fault::None},
            {"2026-03-02 00:00Z", monday, Fault::None},
            {"2026-03-02T00:00:00.2509Z", monday + 250, Fault::None},
            {"2026-03-02T00:00:00,5Z", monday + 500, Fault::None},
            {"2026-03-02T01:00:00+01", monday, Fault::None},
            {"2026-03-02T05:45:00+0545", monday, Fault::None},
            {"2026-03-01T23:30:00-00:30", monday, Fault::None},
            {"2024-02-29T00:00:00Z", monday - 732 * day, Fault::None},
            // Before and after the clocks of Brussels skip from two to three.
            {"2026-03-29T01:59:59+01:00", monday + 27 * day + hour - second, Fault::None},
            {"2026-03-29T03:00:00+02:00", monday + 27 * day + hour, Fault::None},
            {"2026-03-02T00:00:00", 0, Fault::NoOffset},
            {"2026-03-02T00:00", 0, Fault::NoOffset},
            {"1970-01-01T00:59:59.999+01:00", 0, Fault::BeforeEpoch}};
        for (const auto& [text, msecs, fault] : rows) {
            const Instant instant = Instant::parse(text);
            QVERIFY2(instant.msecs == msecs && instant.fault == fault, text);
        }
        for (const char* text :
             {"", "yesterday", "2026-03-02", "2026-03-02Z", "2026-02-29T00:00:00Z",
              "2026-13-01T00:00Z", "2026-03-02T24:00:00Z", "2026-03-02T00:60:00Z",
              "2026-03-02T00:00:60Z", "2026-03-02T00:00:00.Z", "2026-03-02T00:00:00Zulu",
              "2026-03-02T00:00:00+1:00", "2026-03-02T00:00:00+01:", "2026-03-02T00:00:00+15:00",
              "2026-3-2T0:0:0Z", "+026-03-02T00:00:00Z", "1772409600000"})
            QVERIFY2(Instant::parse(text).fault == Fault::Malformed, text);
    }

    void csvRecords()
    {
        const std::pair<const char*, QStringList> rows[] = {
            {"a,b\nc,d\n", {u"1: a|b"_s, u"2: c|d"_s}},
            {"a,b\r\nc,d\r\n", {u"1: a|b"_s, u"2: c|d"_s}},
            {"\"a,b\";c\nd;e,f\n", {u"1: a,b|c"_s, u"2: d|e,f"_s}},
            {"\na\tb\nc;\t\"d\"\n", {u"2: a|b"_s, u"3: c;|d"_s}},
            {"a\nb\r", {u"1: a"_s, u"2: b"_s}},
            {"\xEF\xBB\xBF\"a\",b", {u"1: a|b"_s}},
            {"\n\r\na\n\nb\n", {u"3: a"_s, u"5: b"_s}},
            {",\n\"\",a,\n", {u"1: |"_s, u"2: |a|"_s}},
            {"\"a,b\",\"say \"\"hi\"\"\"\nc\"d,e\n", {u"1: a,b|say \"hi\""_s, u"2: c\"d|e"_s}},
            {"\"a\nb\",c\r\nd\n", {u"1: a\nb|c"_s, u"3: d"_s}},
            // Text behind a quote, an open quote, and what is no UTF-8.
            {"\"a\nb\" c\nd\n", {u"1! 3"_s, u"2: b\" c"_s, u"3: d"_s}},
            {"a,\"b\nc\nd\n", {u"1! 2"_s, u"2: c"_s, u"3: d"_s}},
            {"\xC3\xA9\n\xE9\nb\n", {u"1: é"_s, u"2! 1"_s, u"3: b"_s}}};
        for (const auto& [text, records] : rows)
            QCOMPARE(recordsOf(text), records);
    }

    void malformedLines()
    {
        const std::pair<QByteArray, QString> rows[] = {
            {"a,2026-03-02T00:00Z", u"2 fields instead of 3"_s},
            {"a,2026-03-02T00:00Z,2026-03-02T00:01Z,", u"4 fields instead of 3"_s},
            {" ,2026-03-02T00:00Z,2026-03-02T00:01Z", u"the camera has no name"_s},
            {"a,today,2026-03-02T00:01Z", u"“today” is not an ISO 8601 date and time"_s},
            {"a,2026-03-02T00:00Z,", u"“” is not an ISO 8601 date and time"_s},
            {"a,2026-03-02T00:00Z,2026-03-02T00:01",
             u"“2026-03-02T00:01” has neither an offset from UTC nor a Z"_s},
            {"a,1969-03-02T00:00Z,2026-03-02T00:01Z",
             u"“1969-03-02T00:00Z” lies before the year 1970"_s},
            {"a,2026-03-02T01:00Z,2026-03-02T01:59+01:00", u"the end lies before the begin"_s},
            {"a,2026-03-02T00:00Z,2026-03-02T01:00+01:00", u"begin and end are the same instant"_s},
            {"\"a\"b,2026-03-02T00:00Z,2026-03-02T00:01Z",
             u"there is text behind a closing quote"_s},
            {"a,2026-03-02T00:00Z,\"2026-03-02T00:01Z", u"a quote is not closed"_s},
            {"\xE9,2026-03-02T00:00Z,2026-03-02T00:01Z", u"the line is not UTF-8"_s},
            {"a," + QByteArray(100, 'x') + ",2026-03-02T00:01Z",
             u"“%1…” is not an ISO 8601 date and time"_s.arg(QString(40, u'x'))}};
        QByteArray text = "track,begin,end\r\na,2026-03-02T00:01Z,2026-03-02T00:02Z\r\n\r\n";
        QList<Problem> problems;
        const QString path = m_dir.filePath(u"recordings.csv"_s);
        for (const auto& [line, problem] : rows) {
            problems.append({path, int(text.count('\n')) + 1, problem});
            text += line + "\r\n";
        }
        write(u"recordings.csv"_s, text + "a,2026-03-02T00:03Z,2026-03-02T00:04Z");
        ReviewLoader loader;
        QCOMPARE(loader.load({.recordings = path, .events = {}, .deployments = {}}), QString());
        QCOMPARE(tracksOf(loader.data()), QStringList{u"a 1-4: 1-2 3-4"_s});
        QCOMPARE(loader.problems().listed(), problems);
    }

    void unusableFiles()
    {
        const std::pair<const char*, QString> rows[] = {
            {"\r\n\r\n", u"it has no header line that names its columns"_s},
            {"track,camera,begin,end\n", u"it has more than one column “camera”"_s},
            {"a,2026-03-02T00:00Z,2026-03-02T00:01Z\n", u"it has no column “camera”"_s},
            {"track,begin,End\n", u"it has no column “end”"_s},
            {"track,end,begin,end\n", u"it has more than one column “end”"_s}};
        for (const auto& [text, reason] : rows) {
            const QString path = write(u"bad.csv"_s, text);
            QCOMPARE(ReviewLoader().load({.recordings = {}, .events = {}, .deployments = path}),
                     u"Cannot read %1: %2"_s.arg(QDir::toNativeSeparators(path), reason));
        }
    }

    void filesAreRead()
    {
        // Nobody looks at what is named before it is located.
        const ReviewFiles named = ReviewFiles::named({m_dir.filePath(u"later"_s)});
        QVERIFY(QDir(m_dir.path()).mkdir(u"later"_s));
        // The columns stand in any order.
        const QString recordings =
            write(u"later/recordings.csv"_s,
                  "\xEF\xBB\xBF\"end\", note ,begin,\"track\",file,offset\r\n"
                  "2026-03-02T00:08Z,x, 2026-03-02T00:05Z ,b, b/1.mp4 , 2.5 \r\n"
                  "2026-03-02T00:02Z,,2026-03-02T00:01Z,\"a,c\",,\r\n"
                  "2026-03-02T00:04Z,x,2026-03-02T00:02Z,b,/b/2.ts,\r\n"
                  "2026-03-02T00:04Z,x,2026-03-02T00:02Z,c,/c.ts,-1\r\n");
        write(u"later/deployments.csv"_s,
              "camera,begin,end\na,2026-03-02T00:01Z,2026-03-02T00:02Z\n"
              "b,2026-03-02T00:03Z,2026-03-02T00:04Z\n"
              "b,2026-03-02T00:08Z,2026-03-02T00:09Z\n");
        // As spreadsheets write Unicode text.
        const QString lines = u"\uFEFFtext\tkind\ttime\n"
                              "später\tperson\t2026-03-02T00:02Z\n"
                              "\"two\nlines\"\tanimal\t2026-03-02T00:01Z\n"
                              "none\t\t2026-03-02T00:01Z\n"
                              "also later\talarm\t2026-03-02T00:02Z\n"_s;
        const QString events =
            write(u"later/events.csv"_s, QStringEncoder(QStringEncoder::Utf16BE).encode(lines));
        ReviewLoader loader;
        QCOMPARE(loader.load(named.located()), QString());
        QCOMPARE(loader.progress().percent(), 100);
        const ReviewData& data = loader.data();
        QCOMPARE(tracksOf(data),
                 (QStringList{u"b 3-9: 5-8 2-4"_s, u"a,c 1-2: 1-2"_s, u"a 1-2:"_s}));
        // On Windows, the root is that of the drive.
        const QDir folder = QFileInfo(recordings).dir();
        const QList<VideoFile> files{
            {folder.filePath(u"b/1.mp4"_s), monday + 5 * minute, monday + 8 * minute, 2'500},
            {folder.absoluteFilePath(u"/b/2.ts"_s), monday + 2 * minute, monday + 4 * minute, 0}};
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

    void jsonLines()
    {
        const QString path =
            write(u"events.jsonl"_s,
                  "\xEF\xBB\xBF"
                  "{\"time\":\"2026-03-02T00:02Z\",\"kind\":\"person\",\"track\":7,"
                  "\"duration\":2.5,\"severity\":\"Alarm\"}\n\n"
                  "{\"kind\":\"car\",\"time\":\"2026-03-02T00:01Z\",\"text\":\"\xC3\xBC\","
                  "\"camera\":\"b\",\"box\":[1],\"severity\":1}\r\n"
                  "[1]\n{\"kind\":\"x\"}\n{\"time\":\"now\",\"kind\":\"x\"}\n"
                  "{\"time\":\"2026-03-02T00:01Z\",\"kind\":[]}\n{\"time\":\n"
                  "{\"time\":\"2026-03-02T00:01Z\",\"kind\":\"x\",\"duration\":\"-1\"}\n"
                  "{\"time\":\"2026-03-02T00:01Z\",\"kind\":\"x\",\"severity\":4}");
        ReviewLoader loader;
        QCOMPARE(loader.load(ReviewFiles::named({path}).located()), QString());
        QCOMPARE(loader.progress().percent(), 100);
        QCOMPARE(loader.data().events,
                 (Events{{monday + minute, u"car"_s, u"ü"_s, u"b"_s, 0, Severity::Information},
                         {monday + 2 * minute, u"person"_s, {}, u"7"_s, 2'500, Severity::Alarm}}));
        QCOMPARE(loader.data().period(), (TimeSpan{monday + minute, monday + 2 * minute + 2'500}));
        QCOMPARE(
            problemsOf(loader),
            (QStringList{u"4 the line is no JSON object"_s, u"5 the object has no “time”"_s,
                         u"6 “now” is not an ISO 8601 date and time"_s,
                         u"7 “kind” is neither a text nor a number"_s,
                         u"8 the line is no JSON object"_s, u"9 “-1” is not a number of seconds"_s,
                         u"10 “4” is neither none nor information, warning or alarm"_s}));
    }

    void cameraTraps()
    {
        const QString path = write(u"set.json"_s, R"({
            "images": [
                {"id": 1, "file_name": "a/1.jpg", "location": 7, "datetime": "2026-03-02 01:00:01", "seq_id": "s"},
                {"id": 2, "file_name": "a/2.jpg", "location": 7, "datetime": "2026-03-02 01:00:00", "seq_id": "s"},
                {"id": "x", "file_name": "b/3.jpg", "datetime": "2026-03-02T00:05:00Z"},
                {"id": 4, "file_name": "b/4.jpg", "datetime": "02.03.2026"}],
            "categories": [{"id": 0, "name": "empty"}, {"id": 1, "name": "Vulpes vulpes"}],
            "annotations": [
                {"id": 1, "image_id": 1, "category_id": 1}, {"id": 2, "image_id": 2, "category_id": 1},
                {"id": 3, "image_id": "x", "category_id": 0}, {"id": 4, "image_id": 4, "category_id": 1},
                {"id": 5, "image_id": 1, "category_id": 9}]})");
        ReviewLoader loader;
        QCOMPARE(loader.load(ReviewFiles::named({path}).located(), QTimeZone("Europe/Brussels")),
                 QString());
        QCOMPARE(loader.data().events,
                 (Events{{monday, u"animal"_s, u"Vulpes vulpes"_s, u"7"_s},
                         {monday + 5 * minute, u"empty"_s, u"empty"_s, u"b"_s}}));
        QCOMPARE(loader.data().files[u"7"_s][0],
                 (VideoFile{m_dir.filePath(u"a/1.jpg"_s), monday + 1'000, monday + 2'000, 0}));
        QCOMPARE(loader.data().files[u"b"_s].size(), 1);
        QCOMPARE(problemsOf(loader),
                 (QStringList{u"0 the image “4” has no date and time"_s,
                              u"0 the annotation “4” is of no image with a time"_s,
                              u"0 the annotation “5” is of no category"_s}));
        for (const char* bad : {"{", "[]", R"({"images":[],"annotations":{}})"})
            QVERIFY2(ReviewLoader()
                         .load(ReviewFiles::named({write(u"bad.json"_s, bad)}).located())
                         .startsWith(u"Cannot read "_s),
                     bad);
    }

    void writtenEventsComeBack()
    {
        const qint64 time = monday + 237 * day + 30 * minute + 7;
        const Events events{
            {day, u"x"_s, {}, u"ü"_s, 1'000'000'000'000 - 1, {}},
            {time, u"person"_s, u"\"a\", b; c\td"_s, u"10,1"_s, 1, Severity::None},
            {time + hour, u"Auto"_s, u"two\r\nlines"_s, {}, hour, Severity::Warning}};
        // An hour apart, and on the first clock the same. The offset of the last one was at first
        // not one of whole minutes.
        const std::tuple<const char*, char, QByteArray, QByteArray> rows[] = {
            {"Europe/Brussels", ',', "2026-10-25T02:30:00.007+02:00",
             "2026-10-25T02:30:00.007+01:00"},
            {"America/St_Johns", ';', "2026-10-24T22:00:00.007-02:30",
             "2026-10-24T23:00:00.007-02:30"},
            {"Africa/Monrovia", '\t', "2026-10-25T00:30:00.007Z", "2026-10-25T01:30:00.007Z"}};
        for (const auto& [zone, separator, earlier, later] : rows) {
            EventWriter writer(events, QTimeZone(zone), separator);
            for (qsizetype i = 0; i < events.size(); ++i)
                writer.add(i);
            for (const QByteArray& text : {earlier, later})
                QVERIFY2(writer.text().contains("\r\n" + text + separator), text.constData());
            ReviewLoader loader;
            const QString path = write(u"events.csv"_s, writer.text());
            QCOMPARE(loader.load({.recordings = {}, .events = path, .deployments = {}}), QString());
            QCOMPARE(loader.data().events, events);
            QCOMPARE(loader.problems().count(), 0);
        }
    }

    void historyKnowsFourStates()
    {
        // The last span reaches beyond the described period.
        const TrackHistory history({.identifier = u"a"_s,
                                    .name = u"a"_s,
                                    .begin = 100,
                                    .end = 200,
                                    .recorded = {{190, 220}, {120, 130}, {125, 140}, {122, 124}},
                                    .loading = {{130, 150}, {145, 160}}});
        QString states;
        for (const qint64 time : {99, 100, 119, 120, 130, 139, 140, 159, 189, 190, 219, 220})
            states += u"rgl-"_s[int(history.stateAt(time))];
        QCOMPARE(states, u"-ggrrrllgrr-"_s);
        QCOMPARE(history.recordedTime(), 50); // overlaps count once
        QCOMPARE(int(TrackHistory({}).stateAt(0)), int(TrackState::NothingKnown));
    }

    void clockChanges()
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

    void typedTimes()
    {
        using Order = TimeFormat::Order;
        const QDateTime shown(QDate(2026, 2, 28), QTime(11, 11, 11, 125), Qt::UTC);
        const auto read = [&](const char* text, Order order) {
            const auto typed = readTypedTime(QString::fromLatin1(text), {.order = order}, shown);
            return typed ? typed->toString(u"yyyy-MM-ddTHH:mm:ss.zzz"_s) : QString();
        };
        const std::tuple<const char*, Order, QString> rows[] = {
            {"12:30:00", Order::DayFirst, u"2026-02-28T12:30:00.000"_s},
            {" 9:5 ", Order::DayFirst, u"2026-02-28T09:05:00.000"_s},
            {"31.03.2026", Order::DayFirst, u"2026-03-31T11:11:11.125"_s},
            {"29.2.2024  1:02:03.5", Order::DayFirst, u"2024-02-29T01:02:03.500"_s},
            {"3/4/2026", Order::MonthFirst, u"2026-03-04T11:11:11.125"_s},
            {"2026-04-03 00:00", Order::DayFirst, u"2026-04-03T00:00:00.000"_s},
            {"2026-4-3", Order::YearFirst, u"2026-04-03T11:11:11.125"_s}};
        for (const auto& [text, order, time] : rows)
            QCOMPARE(read(text, order), time);
        for (const char* bad : {"", "noon", "12", "24:00", "12:60", "1.2", "29.2.2026", "1.13.2026",
                                "1.2-2026", "12:30 1.2.2026", "1.2.202612:30"})
            QVERIFY2(read(bad, Order::DayFirst).isNull(), bad);
    }

    void sampleIsSound()
    {
        const ReviewData sample = SampleData::make();
        QCOMPARE(tracksOf(SampleData::make()), tracksOf(sample));
        QCOMPARE(SampleData::make().events, sample.events);
        QCOMPARE(sample.period(), (TimeSpan{monday, monday + 14 * day}));
        // The same on every platform.
        QCOMPARE(sample.recordingCount(), 2721);
        QCOMPARE(sample.events.size(), 1632);

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
            const auto state = event.duration > day ? TrackState::Gap : TrackState::Recorded;
            const TrackHistory& history = *histories.find(event.track);
            for (const qint64 time :
                 {event.time, event.time + std::max<qint64>(event.duration, 1) - 1})
                QCOMPARE(history.stateAt(time), state);
        }
    }

private:
    QString write(const QString& name, const QByteArray& text) const
    {
        return writeFile(m_dir.filePath(name), text);
    }

    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(TestReviewData)
#include "tst_reviewdata.moc"
