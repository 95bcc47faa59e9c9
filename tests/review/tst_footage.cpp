// SPDX-License-Identifier: MIT
#include "footage/exiftime.h"
#include "footage/footageindex.h"
#include "footage/footagescan.h"
#include "footage/loadjob.h"
#include "footage/pathpattern.h"
#include "numberedclip.h"
#include "testsupport.h"

#include <QStandardPaths>
#ifndef Q_OS_WIN
#include <unistd.h>
#endif

using namespace Review;
using namespace std::chrono_literals;

namespace {

QString textOf(const std::optional<WallTime>& time)
{
    if (!time)
        return u"none"_s;
    const QString clock = time->clock.toString(u"yyyy-MM-dd HH:mm:ss.zzz"_s);
    return time->offset ? clock + u' ' + QString::number(*time->offset) : clock;
}

/// A JPEG file with nothing but when it was taken. The byte order is that of the first letter.
QByteArray jpegTakenAt(const QByteArray& order, const QByteArray& time, const QByteArray& offset)
{
    const auto number = [&order](quint32 value, int bytes) {
        QByteArray text;
        for (int i = 0; i < bytes; ++i)
            text.append(char(value >> 8 * (order == "MM" ? bytes - 1 - i : i)));
        return text;
    };
    const auto entry = [&](quint32 tag, quint32 type, qsizetype count, quint32 value) {
        return number(tag, 2) + number(type, 2) + number(quint32(count), 4) + number(value, 4);
    };
    constexpr quint32 second = 8 + 2 + 12 + 4;
    constexpr quint32 texts = second + 2 + 2 * 12 + 4;
    const QByteArray tiff = order + number(42, 2) + number(8, 4) + number(1, 2) +
                            entry(0x8769, 4, 1, second) + number(0, 4) + number(2, 2) +
                            entry(0x9003, 2, time.size() + 1, texts) +
                            entry(0x9011, 2, offset.size() + 1, texts + quint32(time.size()) + 1) +
                            number(0, 4) + time + '\0' + offset + '\0';
    const QByteArray exif = QByteArray("Exif\0\0", 6) + tiff;
    const auto segment = [](char marker, const QByteArray& content) {
        const auto size = quint32(content.size()) + 2;
        return QByteArray("\xFF") + marker + char(size >> 8) + char(size & 0xFF) + content;
    };
    return "\xFF\xD8" + segment('\xE0', "JFIF") + segment('\xE1', exif) + "\xFF\xDA";
}

bool ends(LoadJob& job)
{
    QSignalSpy loaded(&job, &LoadJob::loaded);
    job.start();
    return loaded.wait();
}

} // namespace

class TestFootage : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void paths_data();
    void paths();
    void ownPattern();
    void exif();
    void foldersAreScanned();
    void offsets();
    void whatIsKnownIsKept();
    void secondLooks();
};

void TestFootage::paths_data()
{
    QTest::addColumn<QString>("time");
    const auto row = [](const char* path, const QString& time) {
        QTest::newRow(path) << time;
    };
    const QString morning = u"2026-03-02 10:15:00.000"_s;
    row("Gate/VID_20260302_101500.mp4", morning);
    row("Gate/20260302101500-20260302102000.mkv", morning);
    row("Gate/2026-03-02/10/15.00.mp4", morning);
    row("Gate/2026/03/02/10/15.mp4", morning);
    row("Gate/20200101_000000/cam 2026-03-02 10.15.00 2026-03-02 10.16.00.mp4", morning);
    row("Gate/2026-03-02_10-15-00-0100.mp4", morning);
    row("Gate/2026-03-02_10-15-00.250.mp4", u"2026-03-02 10:15:00.250"_s);
    row("Gate/2026-03-02T10:15:00Z.ts", morning + u" 0"_s);
    row("Gate/2026-03-02T101500-0330.ts", morning + u" -12600"_s);
    row("Gate/1772446500.mp4", morning + u" 0"_s);
    row("Gate/1772446500250.mp4", u"2026-03-02 10:15:00.250 0"_s);
    row("Gate/20260231_101500.mp4", u"none"_s);
    row("Gate/20260302_251500.mp4", u"none"_s);
    row("Gate/5920230310.mp4", u"none"_s);
    row("Gate/clip-0001.mp4", u"none"_s);
}

void TestFootage::paths()
{
    const auto match = PathPattern().match(QString::fromUtf8(QTest::currentDataTag()));
    QTEST(textOf(match ? std::optional(match->begin) : std::nullopt), "time");
}

void TestFootage::ownPattern()
{
    const PathPattern pattern(u"{camera}/{dd}.{MM}.{yyyy}/{HH}h{mm}.mp4"_s);
    const auto match = pattern.match(u"all/Gate 2/02.03.2026/10h15.mp4"_s);
    QVERIFY(match);
    QCOMPARE(match->camera, u"Gate 2"_s);
    QCOMPARE(textOf(match->begin), u"2026-03-02 10:15:00.000"_s);
    QVERIFY(!pattern.match(u"Gate/02.03.2026/10h15.mp4x"_s));
    QVERIFY(!pattern.match(u"Gate/02.13.2026/10h15.mp4"_s));
    QVERIFY(!PathPattern(u"{camera}/{camera}-{yyyy}{MM}{dd}.mp4"_s).isValid());
}

void TestFootage::exif()
{
    const QByteArray time = "2026:03:02 10:15:00";
    QCOMPARE(textOf(exifTime(jpegTakenAt("MM", time, "+01:00"))),
             u"2026-03-02 10:15:00.000 3600"_s);
    const QByteArray whole = jpegTakenAt("II", time, "");
    QCOMPARE(textOf(exifTime(whole)), u"2026-03-02 10:15:00.000"_s);
    QCOMPARE(textOf(exifTime(jpegTakenAt("II", "    :  :     :  :  ", ""))), u"none"_s);
    // Nothing is read beyond the end, which sanitizers see, and no damage is believed.
    for (qsizetype size = 0; size < whole.size(); ++size) {
        QByteArray part = whole.first(size);
        part.squeeze();
        const QString text = textOf(exifTime(part));
        QVERIFY(text == u"none"_s || text.startsWith(u"2026"_s));
    }
}

void TestFootage::foldersAreScanned()
{
    const QTemporaryDir temporary;
    const QDir folder(temporary.filePath(u"Site"_s));
    for (const QString& name : {u"Gate"_s, u"Yard"_s, u"2026-03-02"_s})
        QVERIFY(folder.mkpath(name));
    const auto write = [&folder](const QString& name, const QByteArray& content) {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    };
    constexpr qint64 created = 1'772'446'560'000; // 10:16 UTC
    QCOMPARE(NumberedClip::write(folder.filePath(u"Gate/20260302_101500.mp4"_s), 50), QString());
    QCOMPARE(NumberedClip::write(folder.filePath(u"Yard/a.mp4"_s), 25, {.creationTime = created}),
             QString());
    QVERIFY(write(u"Yard/b.jpg"_s, jpegTakenAt("II", "2026:03:02 10:17:00", "")));
    QVERIFY(write(u"2026-03-02/101800.mp4"_s, {}));
    QVERIFY(write(u"Yard/c.jpeg"_s, {}));
    QVERIFY(write(u"Yard/notes.txt"_s, "20260302_101500"));
    QFile unknown(folder.filePath(u"Yard/c.jpeg"_s));
    QVERIFY(unknown.open(QIODevice::ReadWrite));
    QVERIFY(unknown.setFileTime(QDateTime::fromMSecsSinceEpoch(created, Qt::UTC),
                                QFileDevice::FileModificationTime));
    unknown.close();

    LoadJob job(ReviewFiles::named({folder.path()}), QTimeZone("Europe/Brussels"));
    QVERIFY(ends(job));
    QCOMPARE(job.error(), QString());
    QStringList found;
    for (const CorvelGui::TrackDescription& track : job.data().tracks)
        for (const VideoFile& file : job.data().files[track.identifier])
            found.append(u"%1 %2 %3 %4"_s.arg(
                track.name, folder.relativeFilePath(file.path),
                QDateTime::fromMSecsSinceEpoch(file.begin, Qt::UTC).toString(u"HH:mm:ss"_s),
                QString::number(file.end - file.begin)));
    found.sort();
    QCOMPARE(found,
             (QStringList{u"Gate Gate/20260302_101500.mp4 09:15:00 2000"_s,
                          u"Site 2026-03-02/101800.mp4 09:18:00 1000"_s,
                          u"Yard Yard/a.mp4 10:16:00 1000"_s, u"Yard Yard/b.jpg 09:17:00 1000"_s,
                          u"Yard Yard/c.jpeg 10:16:00 1000"_s}));
    QCOMPARE(job.read().footage.sources(), (Footage::Sources{2, 1, 1, 1}));

#ifndef Q_OS_WIN // where folders are not locked so
    const QString gate = folder.filePath(u"Gate"_s);
    QVERIFY(QFile::setPermissions(temporary.path(), QFile::Permissions(0x7755)));
    QVERIFY(QFile::setPermissions(gate, {}));
    const bool isRoot = geteuid() == 0; // whom nothing is locked to
    QVERIFY(!isRoot || setresuid(65534, 65534, 0) == 0);
    FootageIndex index(temporary.filePath(u"index"_s));
    JobProgress progress;
    ProblemList problems;
    Footage rest;
    FootageScan(PathPattern(), index, progress, problems).scan({folder.path()}, rest);
    QVERIFY(!isRoot || setresuid(0, 0, 0) == 0);
    QVERIFY(QFile::setPermissions(gate, QFile::Permissions(0x7700)));
    QCOMPARE(problems.count(), 1);
    QCOMPARE(problems.listed()[0].file, gate);
    QCOMPARE(rest.cameras().size(), 2);
#endif

    // Without reading a file: there is none any more.
    QVERIFY(QDir(folder).removeRecursively());
    LoadJob corrected(job.read(), {{u"Gate"_s, {u"UTC"_s, -500}}, {u"Yard"_s, {u"UTC"_s, 0}}});
    QVERIFY(ends(corrected));
    QCOMPARE(corrected.data().files[u"Gate"_s][0].begin, 1'772'446'499'500);
    QCOMPARE(std::ranges::count(corrected.data().tracks, 1'772'446'499'500,
                                &CorvelGui::TrackDescription::begin),
             1);
    const QList<VideoFile> yard = corrected.data().files[u"Yard"_s];
    QCOMPARE(std::ranges::count(yard, created, &VideoFile::begin), 2);
    QCOMPARE(std::ranges::count(yard, created + 60'000, &VideoFile::begin), 1);

    QVERIFY(QDir(folder).mkpath(u"none"_s));
    LoadJob nothing(ReviewFiles::named({folder.filePath(u"none"_s)}), QTimeZone::utc());
    QVERIFY(ends(nothing));
    QVERIFY(nothing.error().startsWith(u"There are neither recordings nor events in "_s));
}

void TestFootage::offsets()
{
    const std::tuple<QString, qint64, QString> rows[] = {
        {u"+1:02:03.5"_s, 3'723'500, u"+1:02:03.500"_s},
        {u" 90 "_s, 90'000, u"+0:01:30"_s},
        {u"-0,25"_s, -250, u"-0:00:00.250"_s},
        {u"\u2212200000:0:0"_s, -720'000'000'000, u"-200000:00:00"_s}};
    for (const auto& [text, offset, again] : rows) {
        QCOMPARE(TimeCorrection::parseOffset(text), std::optional(offset));
        QCOMPARE(TimeCorrection::offsetText(offset), again);
    }
    for (const char* bad :
         {"", "+", "1:2", "1:60:00", "1:00:60", "1h", "9999999:00:00", "1:00:00.0001"})
        QVERIFY2(!TimeCorrection::parseOffset(QString::fromLatin1(bad)), bad);

    const FolderCorrections corrections{
        {{u"/a \"b\""_s, {{u"Gate"_s, {u"Europe/Brussels"_s, -5}}, {u"Yard"_s, {{}, 1}}}}}};
    QCOMPARE(FolderCorrections::fromText(corrections.toText()), corrections);
    QCOMPARE(FolderCorrections::fromText(u"{\"a\":{\"b\":[\"Nowhere\",1e99],\"c\":3}}"_s),
             FolderCorrections());
}

void TestFootage::whatIsKnownIsKept()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"deep/index"_s);
    QFile file(folder.filePath(u"a.mp4"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const FileFacts facts{.duration = 2'000,
                          .created = 7,
                          .taken = WallTime{QDateTime({2026, 3, 2}, {10, 15}, Qt::UTC), -60},
                          .fault = u"x"_s};
    FootageIndex index(path);
    index.add(QFileInfo(file), facts);
    index.save();
    const FootageIndex known(path);
    QVERIFY(known.find(QFileInfo(file)));
    QCOMPARE(*known.find(QFileInfo(file)), facts);
    QVERIFY(file.resize(1));
    QVERIFY(!known.find(QFileInfo(file.fileName())));

    QFile saved(path);
    QVERIFY(saved.resize(saved.size() - 1));
    QVERIFY(file.resize(0));
    QVERIFY(!FootageIndex(path).find(QFileInfo(file.fileName())));
}

void TestFootage::secondLooks()
{
    const QTemporaryDir temporary;
    const QDir folder(temporary.path());
    QVERIFY(folder.mkpath(u"Gate"_s));
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    const auto pathOf = [&](qint64 secondsAgo) {
        return folder.filePath(u"Gate/%1.mp4"_s.arg(now - secondsAgo));
    };
    const auto touch = [&](qint64 secondsAgo, qint64 changedAgo) {
        QFile file(pathOf(secondsAgo));
        return file.open(QIODevice::Append) &&
               file.setFileTime(QDateTime::fromSecsSinceEpoch(now - changedAgo),
                                QFileDevice::FileModificationTime);
    };
    QCOMPARE(NumberedClip::write(pathOf(600), 50), QString());
    QCOMPARE(NumberedClip::write(pathOf(300), 25), QString());
    QVERIFY(touch(600, 500));
    // Still being written, also on a slow machine.
    QVERIFY(touch(60, -3'600));

    const auto told = [now](const LoadJob& job) {
        const CorvelGui::TrackDescription track = job.data().tracks.value(0);
        QStringList texts;
        for (const auto& [spans, sign] : {std::pair(track.recorded, u'='), {track.loading, u'?'}})
            for (const CorvelGui::TimeSpan& span : spans)
                texts += QString::number(now - span.begin / 1'000) + sign;
        return texts.join(u' ') + (job.hasNews() ? u" news"_s : QString()) +
               (job.hasNewLists() ? u" lists"_s : QString());
    };
    const CorvelGui::TimeSpan view{(now - 299) * 1'000, (now - 298) * 1'000};
    LoadJob first(ReviewFiles::named({folder.path()}), QTimeZone::utc(), {},
                  {.first = view, .patience = 0ms});
    QVERIFY(ends(first));
    QCOMPARE(told(first), u"300= 600? 60? news lists"_s);
    QCOMPARE(first.read().footage.unread(), 2);

    LoadJob second(first.read(), FolderCorrections(), {});
    QVERIFY(ends(second));
    QCOMPARE(told(second), u"600= 300= 60? news"_s);
    LoadJob third(second.read(), FolderCorrections(), {});
    QVERIFY(ends(third));
    QCOMPARE(told(third), u"600= 300= 60?"_s);

    QCOMPARE(NumberedClip::write(pathOf(60), 25), QString());
    LoadedFiles known = third.read();
    // Days of events, and whether they go on with those of the look before.
    for (const auto& [days, goesOn] : {std::pair("3", false),
                                       {"3 4", true},
                                       {"", false},
                                       {"3 4 5", true},
                                       {"3 4 5 ", true},
                                       {"2 3 4 5", false},
                                       {"2 3 7 5 9", false}}) {
        QFile events(folder.filePath(u"events.csv"_s));
        QVERIFY(events.open(QIODevice::WriteOnly));
        events.write("time,kind,text\n");
        for (const QByteArray& day : QByteArray(days).split(' '))
            events.write(day.isEmpty() ? "\n" : "1970-01-0" + day + "T00:00Z,person,one\n");
        events.close();
        LoadJob look(known, FolderCorrections(), {});
        QVERIFY(ends(look));
        QCOMPARE(told(look), u"600= 300= 60= news lists"_s);
        QVERIFY2(look.data().events.continues(known.data.events) == goesOn, days);
        known = look.read();
    }
}

QTEST_GUILESS_MAIN(TestFootage)
#include "tst_footage.moc"
