// SPDX-License-Identifier: MIT
#include "numberedclip.h"
#include "video/cameradecoder.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace NumberedClip;
using namespace Review;
using namespace Qt::StringLiterals;

namespace {

constexpr qint64 cacheBytes = 10'000'000;
constexpr int count = 500;
constexpr qint64 begin = 1'795'000'000'000;
constexpr qint64 length = qint64(count) * frameLength; // 20 seconds

} // namespace

class TestVideoSource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void frames_data();
    void frames();
    void lateFile();
    void newestWins();
    void deletionEndsTheThread();
    void silentShares();

private:
    /// The clip, from its third second on; a gap of a second; the clip from its begin on, said to
    /// last longer than it does; a picture; and files with faults.
    QList<VideoFile> files() const;

    QTemporaryDir m_folder;
    QString m_clip;
};

void TestVideoSource::initTestCase()
{
    m_clip = m_folder.filePath(u"clip.mp4"_s);
    QCOMPARE(NumberedClip::write(m_clip, count), QString());
    QVERIFY(picture(77).save(m_folder.filePath(u"picture.JPG"_s), "JPG", 95));
    QVERIFY(NumberedClip::write(m_folder.filePath(u"none.mp4"_s), 0).isEmpty());
    for (const auto& [name, content] : {std::pair(u"empty.mp4"_s, ""), {u"text.jpg"_s, "text"}}) {
        QFile file(m_folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) >= 0);
    }
}

QList<VideoFile> TestVideoSource::files() const
{
    const auto at = [](int second) {
        return begin + qint64(second) * 1000;
    };
    return {{m_folder.filePath(u"missing.mp4"_s), at(84), at(85), 0},
            {m_folder.filePath(u"empty.mp4"_s), at(82), at(83), 0},
            {m_folder.filePath(u"text.jpg"_s), at(83), at(84), 0},
            {m_folder.filePath(u"none.mp4"_s), at(85), at(86), 0},
            {m_folder.filePath(u"picture.JPG"_s), at(80), at(82), 0},
            {m_clip, at(0), at(17), 3000},
            {m_clip, at(18), at(78), 0}};
}

void TestVideoSource::frames_data()
{
    QTest::addColumn<qint64>("after"); // milliseconds since the begin
    QTest::addColumn<VideoFrame::State>("state");
    QTest::addColumn<int>("number");
    QTest::addColumn<qint64>("time");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, qint64 after, int number, qint64 time) {
        QTest::newRow(name) << after << VideoFrame::State::Picture << number << time << QString();
    };
    const auto none = [](const char* name, qint64 after, const QString& fault = {}) {
        const auto state =
            fault.isEmpty() ? VideoFrame::State::NoRecording : VideoFrame::State::Fault;
        QTest::newRow(name) << after << state << 0 << qint64(0) << fault;
    };
    row("begin, which is within the clip", 0, 75, 0);
    row("between two pictures", 1'079, 101, 1'040);
    row("last of the first stretch", 16'999, 499, 16'960);
    row("second stretch", 18'000, 0, 18'000);
    row("last picture, shown a little longer", 18'000 + length + 1000, 499, 18'000 + length - 40);
    row("picture file", 81'000, 77, 80'000);
    none("before all", -1);
    none("gap", 17'000);
    none("after all", 86'000);
    none("shorter than said", 18'000 + length + 20'000, u"The file ends before this time."_s);
    none("empty clip", 82'000, u"The file is empty."_s);
    none("no picture", 83'000, u"The file is damaged or of an unknown kind."_s);
    none("missing clip", 84'000, u"The file is missing."_s);
    none("clip without pictures", 85'000, u"The file has no pictures that can be shown."_s);
}

void TestVideoSource::frames()
{
    QFETCH(const qint64, after);
    VideoSource source(files(), cacheBytes);
    const VideoFrame frame = source.frameAt(begin + after);
    QTEST(frame.state, "state");
    QCOMPARE(frame.asked, begin + after);
    QTEST(frame.text, "text");
    if (frame.state != VideoFrame::State::Picture)
        return;
    QTEST(numberOf(frame.image), "number");
    QTEST(frame.time - begin, "time");
}

// A share may have been away, and a recorder may not be done with a file.
void TestVideoSource::lateFile()
{
    const QString path = m_folder.filePath(u"late.mp4"_s);
    VideoSource source({{path, begin, begin + length, 0}}, cacheBytes);
    QCOMPARE(source.frameAt(begin).state, VideoFrame::State::Fault);
    QVERIFY(QFile::copy(m_clip, path));
    QTRY_COMPARE(source.frameAt(begin).state, VideoFrame::State::Picture);
}

void TestVideoSource::newestWins()
{
    CameraDecoder decoder(files(), cacheBytes);
    QList<qint64> answers;
    connect(&decoder, &CameraDecoder::frameReady, this, [&](const VideoFrame& frame) {
        QVERIFY(QThread::currentThread() == thread());
        answers.append(frame.asked - begin);
    });
    for (const qint64 after : {9'000, 1'000, 5'000, 3'000})
        decoder.request(begin + after, Clip::Accuracy::Exact);
    QTRY_VERIFY(!decoder.isBusy());
    QCOMPARE(answers, (QList<qint64>{9'000, 3'000}));
}

// Nothing is left of it, which sanitizers see.
void TestVideoSource::deletionEndsTheThread()
{
    auto decoder = std::make_unique<CameraDecoder>(files(), cacheBytes);
    decoder->request(begin + 16'000, Clip::Accuracy::Exact);
    decoder.reset();
}

// A file that never answers holds up neither other cameras nor the end of the program.
void TestVideoSource::silentShares()
{
#ifdef Q_OS_UNIX
    const QByteArray pipe = QFile::encodeName(m_folder.filePath(u"silent.mp4"_s));
    QCOMPARE(mkfifo(pipe.constData(), 0600), 0);
    auto silent = std::make_unique<CameraDecoder>(
        QList<VideoFile>{{QFile::decodeName(pipe), begin, begin + length, 0}}, cacheBytes);
    CameraDecoder other(files(), cacheBytes);
    silent->request(begin, Clip::Accuracy::Exact);
    int share = -1;
    QTRY_VERIFY((share = open(pipe.constData(), O_WRONLY | O_NONBLOCK)) >= 0);
    other.request(begin, Clip::Accuracy::Exact);
    QTRY_VERIFY(!other.isBusy());
    QVERIFY(silent->isBusy());
    QElapsedTimer timer;
    timer.start();
    silent.reset();
    QVERIFY(timer.elapsed() < 1'000);
    close(share); // which lets the thread end
#else
    QSKIP("There are no named pipes here.");
#endif
}

QTEST_GUILESS_MAIN(TestVideoSource)
#include "tst_videosource.moc"
