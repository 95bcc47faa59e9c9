// SPDX-License-Identifier: MIT
#include "data/eventwriter.h"
#include "data/reviewloader.h"
#include "export/clipexport.h"
#include "numberedclip.h"
#include "testsupport.h"
#include "times.h"
#include "video/videosource.h"

#include <QCryptographicHash>
#include <QLockFile>

using namespace Review;
using NumberedClip::numberOf;

namespace {

// With key frames every two seconds.
constexpr qint64 length = qint64(NumberedClip::usualCount) * NumberedClip::frameLength;
constexpr qint64 cacheBytes = 10'000'000;

/// Without what lies between two parts of it; whole packets of a transport stream.
QByteArray withoutPart(const QByteArray& stream, double from, double until)
{
    constexpr qsizetype packet = 188;
    const auto at = [&](double part) {
        return qsizetype(part * double(stream.size() / packet)) * packet;
    };
    return stream.first(at(from)) + stream.sliced(at(until));
}

} // namespace

class TestClipExport : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void samePictures_data();
    void samePictures();
    void timesThatJumpBack();
    void clipsAreJoined();
    void listsBeside();
    void allOrNothing_data();
    void allOrNothing();
    void leftoversGo();

private:
    static Camera camera(const QList<VideoFile>& files)
    {
        return {{u"a"_s, u"Gate/(1)?"_s, monday, monday + day, {}}, files, TimeTexts(u"UTC"_s)};
    }
    ClipPlan plan(const QList<VideoFile>& files, qint64 from, qint64 until) const
    {
        return {{monday + from, monday + until}, {camera(files)}, EventWriter(), m_target.path()};
    }
    /// A copy of one that was made for tests.
    QString copyClip(const QString& made, const QString& name) const
    {
        const QString path = m_sources.filePath(name);
        QFile::remove(path);
        return QFile::copy(QStringLiteral(TEST_CLIPS "/") + made, path) ? path : QString();
    }
    void run(ClipExport& job)
    {
        m_outcomes.clear();
        connect(&job, &ClipExport::ended, this,
                [this](auto outcome) { m_outcomes.append(outcome); });
        job.start();
        QTRY_COMPARE(m_outcomes.size(), 1);
    }
    /// What the client finds in the folder of an export.
    QList<VideoFile> exported(const ClipExport& job) const
    {
        ReviewLoader loader;
        const QString error = loader.load(ReviewFiles::inFolder(job.folder()));
        return error.isEmpty() && loader.problems().count() == 0 ? loader.data().files[u"a"_s]
                                                                 : QList<VideoFile>();
    }
    /// Compares what two sets of files show in a range, picture by picture.
    void compare(const QList<VideoFile>& copies, const QList<VideoFile>& files, qint64 from,
                 qint64 until);

    QTemporaryDir m_sources;
    QTemporaryDir m_target;
    QList<ExportJob::Outcome> m_outcomes;
};

void TestClipExport::compare(const QList<VideoFile>& copies, const QList<VideoFile>& files,
                             qint64 from, qint64 until)
{
    VideoSource copy(copies, cacheBytes);
    VideoSource original(files, cacheBytes);
    for (qint64 time = from + NumberedClip::frameLength / 2; time < until;
         time += NumberedClip::frameLength) {
        const VideoFrame expected = original.frameAt(monday + time);
        const VideoFrame frame = copy.frameAt(monday + time);
        QVERIFY2(frame.state == expected.state, qPrintable(QString::number(time) + frame.text));
        if (expected.state != VideoFrame::State::Picture)
            continue;
        QVERIFY2(qAbs(frame.time - expected.time) <= 1, qPrintable(QString::number(time)));
        QCOMPARE(numberOf(frame.image), numberOf(expected.image));
    }
}

void TestClipExport::samePictures_data()
{
    QTest::addColumn<QString>("made");
    QTest::addColumn<double>("from"); // of the part of the file that is lost
    QTest::addColumn<double>("until");
    QTest::addColumn<qint64>("begin"); // of the copy of what begins at 5 seconds
    const auto row = [](const char* title, const QString& made, qint64 begin, double from = 0,
                        double until = 0) {
        QTest::newRow(title) << made << from << until << begin;
    };
    row("MPEG-4", u"mpeg4.mp4"_s, 4'000);
    row("H.264 with B-frames", u"h264.mp4"_s, 4'000);
    row("HEVC", u"hevc.mkv"_s, 4'000);
    row("MJPEG", u"mjpeg.avi"_s, 5'000);
    row("transport stream", u"h264.ts"_s, 4'000);
    row("without a begin", u"h264.ts"_s, 4'000, 0, 0.25);
    row("with a hole", u"h264.ts"_s, 4'000, 0.5, 0.6);
    row("without times", u"h264.avi"_s, 4'000);
}

// The copy shows the same as the client shows, from the key frame before on.
void TestClipExport::samePictures()
{
    QFETCH(const QString, made);
    QFETCH(const double, from);
    QFETCH(const double, until);

    const QString path = copyClip(made, made);
    const QByteArray source = withoutPart(readFile(path), from, until);
    writeFile(path, source);
    const QList<VideoFile> files{{path, monday, monday + length, 0}};
    ClipExport job(plan(files, 5'000, 9'000));
    run(job);
    QCOMPARE(m_outcomes, {ExportJob::Outcome::Complete});
    QCOMPARE(job.leftOut(), QString());
    QCOMPARE(readFile(path), source);
    const QList<VideoFile> copies = exported(job);
    QCOMPARE(copies.size(), 1);
    QTEST(copies[0].begin - monday, "begin");
    // Around a hole, pictures have lost their times.
    const bool hasHole = from > 0;
    compare(copies, files, copies[0].begin - monday, hasHole ? 5'800 : copies[0].end - monday);
    compare(copies, files, 8'000, copies[0].end - monday);
}

void TestClipExport::timesThatJumpBack()
{
    const QString path = copyClip(u"h264.ts"_s, u"jump.ts"_s);
    writeFile(path, readFile(path) + readFile(path));
    const QList<VideoFile> files{{path, monday, monday + 2 * length, 0}};
    ClipExport job(plan(files, 0, 2 * length));
    run(job);
    QCOMPARE(m_outcomes, {ExportJob::Outcome::Complete});
    QVERIFY(job.leftOut().contains(u"jump.ts"_s));
    compare(exported(job), files, 0, length - 1'000);
}

// What follows within two seconds and looks alike comes into one file.
void TestClipExport::clipsAreJoined()
{
    const QString clip = copyClip(u"mpeg4.mp4"_s, u"alike.mp4"_s);
    const QString again = m_sources.filePath(u"again.mkv"_s);
    QCOMPARE(NumberedClip::write(again, NumberedClip::usualCount), QString());
    const QString other = copyClip(u"mjpeg.mp4"_s, u"other.mp4"_s);
    const QList<VideoFile> files{{again, monday + 12'500, monday + 12'500 + length, 0},
                                 {clip, monday, monday + length, 0},
                                 {clip, monday + 60'000, monday + 61'000, 3'000},
                                 {other, monday + 61'000, monday + 62'000, 0}};
    ClipExport job(plan(files, 0, minute * 2));
    run(job);
    QCOMPARE(m_outcomes, {ExportJob::Outcome::Complete});
    QStringList found;
    const QList<VideoFile> copies = exported(job);
    for (const VideoFile& file : copies)
        found.append(u"%1 %2-%3 %4"_s.arg(QFileInfo(file.path).fileName())
                         .arg(file.begin - monday)
                         .arg(file.end - monday)
                         .arg(file.offset));
    QCOMPARE(found, (QStringList{u"Gate_(1)__2026-03-02T000000Z.mp4 0-12000 0"_s,
                                 u"Gate_(1)__2026-03-02T000000Z.mp4 12500-24500 12500"_s,
                                 u"Gate_(1)__2026-03-02T000059Z.mp4 59000-61000 0"_s,
                                 u"Gate_(1)__2026-03-02T000101Z.mp4 61000-62000 0"_s}));
    compare(copies, files, 0, 50'000);
    compare(copies, files, 60'000, 62'000);
}

void TestClipExport::listsBeside()
{
    const QString clip = copyClip(u"mpeg4.mp4"_s, u"listed.mp4"_s);
    const QString picture = m_sources.filePath(u"picture.jpg"_s);
    QVERIFY(NumberedClip::picture(7).save(picture));
    ClipPlan wanted = plan({{clip, monday, monday + length, 0},
                            {picture, monday + minute, monday + minute + 1'000, 0},
                            {m_sources.filePath(u"gone.mp4"_s), monday + hour, monday + day, 0}},
                           0, day);
    wanted.events = EventWriter({{monday + 1'000, u"person"_s, u"x"_s, u"a"_s}});
    wanted.events.add(0);
    wanted.folder = m_sources.path(); // beside the originals
    ClipExport job(wanted);
    run(job);
    QCOMPARE(m_outcomes, {ExportJob::Outcome::Complete});
    QVERIFY(job.leftOut().contains(u"gone.mp4"_s) && !job.leftOut().contains(u"listed.mp4"_s));
    QCOMPARE(QFileInfo(job.folder()).fileName(), u"recordings_2026-03-02T000000Z"_s);

    const QDir folder(job.folder());
    QCOMPARE(exported(job).size(), 2);
    QCOMPARE(readFile(folder.filePath(u"events.csv"_s)), wanted.events.text());
    QCOMPARE(readFile(folder.filePath(u"Gate_(1)__2026-03-02T000100Z.jpg"_s)), readFile(picture));
    QByteArrayList sums = readFile(folder.filePath(u"SHA256SUMS"_s)).split('\n');
    QCOMPARE(sums.takeLast(), QByteArray());
    QCOMPARE(sums.size(), folder.count() - 2 - 1);
    for (const QByteArray& line : std::as_const(sums)) {
        const QByteArray content = readFile(folder.filePath(QString::fromUtf8(line.sliced(66))));
        QCOMPARE(line.first(66),
                 QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex() + "  ");
    }
    ClipExport another(wanted);
    run(another);
    QCOMPARE(QFileInfo(another.folder()).fileName(), u"recordings_2026-03-02T000000Z_2"_s);
}

void TestClipExport::allOrNothing_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<ExportJob::Outcome>("outcome");
    QTest::newRow("cancelled") << u"cancel"_s << ExportJob::Outcome::Cancelled;
    QTest::newRow("full disk") << u"disk"_s << ExportJob::Outcome::Failed;
    QTest::newRow("no target") << u"target"_s << ExportJob::Outcome::Failed;
    QTest::newRow("nothing but a damaged clip") << u"clip"_s << ExportJob::Outcome::Failed;
}

void TestClipExport::allOrNothing()
{
    QFETCH(const QString, fault);
    const QString clip = copyClip(u"mpeg4.mp4"_s, u"whole.mp4"_s);
    if (fault == u"clip"_s)
        writeFile(clip, "no clip");
    QTemporaryDir target;
    ClipPlan wanted = plan({{clip, monday, monday + length, 0}}, 0, day);
    wanted.folder = fault == u"target"_s ? target.filePath(u"none"_s) : target.path();
    ClipExport job(wanted);
    if (fault == u"disk"_s && !limitFiles(50'000))
        QSKIP("The size of files cannot be limited here.");
    if (fault == u"cancel"_s)
        QMetaObject::invokeMethod(&job, &ClipExport::cancel, Qt::QueuedConnection);
    run(job);
    if (fault == u"disk"_s)
        limitFiles(0);
    QTEST(m_outcomes.value(0), "outcome");
    QCOMPARE(job.error().isEmpty(), fault == u"cancel"_s);
    QCOMPARE(QDir(target.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList());
}

void TestClipExport::leftoversGo()
{
    const QTemporaryDir target;
    QLockFile alive(m_sources.filePath(u"lock"_s));
    QVERIFY(alive.lock());
    const QByteArray lock = readFile(m_sources.filePath(u"lock"_s));
    const QByteArray process = QByteArray::number(QCoreApplication::applicationPid());
    QVERIFY(lock.startsWith(process + '\n'));
    const QByteArray dead = "99999999" + lock.sliced(process.size());
    const std::tuple<QString, QByteArray, bool> rows[] = {
        {u".export-0a1b2c3d-0000-4000-8000-000000000001"_s, dead, false},
        {u".export-0a1b2c3d-0000-4000-8000-000000000002"_s, lock, true},
        {u".export-0a1b2c3d-0000-4000-8000-000000000003"_s, {}, true},
        {u".export-mine"_s, dead, true}};
    for (const auto& [name, content, stays] : rows) {
        QVERIFY(QDir(target.path()).mkdir(name));
        writeFile(target.filePath(name + u"/clip.mp4"_s), "clip");
        writeFile(target.filePath(name + u".lock"_s), content);
    }
    ClipPlan wanted = plan({}, 0, day);
    wanted.folder = target.path();
    ClipExport job(wanted);
    run(job);
    for (const auto& [name, content, stays] : rows) {
        QCOMPARE(QFile::exists(target.filePath(name + u"/clip.mp4"_s)), stays);
        QCOMPARE(QFile::exists(target.filePath(name + u".lock"_s)), stays);
    }
}

QTEST_GUILESS_MAIN(TestClipExport)
#include "tst_clipexport.moc"
