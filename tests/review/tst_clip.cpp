// SPDX-License-Identifier: MIT
#include "numberedclip.h"
#include "video/clip.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

using namespace NumberedClip;
using namespace Review;
using namespace Qt::StringLiterals;

namespace {

constexpr int count = usualCount;
constexpr qint64 cacheBytes = 64 * size.width() * size.height() * 3 / 2;

/// Not every container keeps times to the millisecond: the middle of a picture's time is safe.
constexpr qint64 middleOf(int number)
{
    return qint64(number) * frameLength + frameLength / 2;
}

} // namespace

class TestClip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rightPicture_data();
    void rightPicture();
    void keyFrames();
    void facts();
    void faults();
    void vanishing();

private:
    std::unique_ptr<Clip> open(const QString& path, qint64 bytes = cacheBytes)
    {
        return Clip::open(path, bytes, m_aborted, m_fault);
    }

    QTemporaryDir m_folder;
    std::atomic<bool> m_aborted = false;
    QString m_fault;
};

void TestClip::rightPicture_data()
{
    QTest::addColumn<QString>("made");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("seeks");
    const auto row = [](const char* title, const QString& made, const QString& name,
                        bool seeks = true) {
        QTest::newRow(title) << made << name << seeks;
    };
    row("H.264 with B-frames", u"h264.mp4"_s, u"10:15:00.mp4"_s);
    row("HEVC", u"hevc.mkv"_s, u"hevc.mkv"_s);
    row("MJPEG", u"mjpeg.avi"_s, u"mjpeg.avi"_s);
    row("transport stream", u"h264.ts"_s, u"stream.ts"_s);
    row("MPEG-4", u"mpeg4.mp4"_s, u"K\u00fcche.mp4"_s);
    row("without times after a seek", u"h264.avi"_s, u"b.avi"_s, false);
}

// Forwards, backwards and at random, the picture is the one that was recorded then.
void TestClip::rightPicture()
{
    QFETCH(const QString, made);
    QFETCH(QString, name);
    QFETCH(const bool, seeks);

#ifdef Q_OS_WIN
    name.remove(u':');
#endif
    const QString path = m_folder.filePath(name);
    QVERIFY(QFile::copy(QStringLiteral(TEST_CLIPS "/") + made, path));
    const std::unique_ptr<Clip> clip = open(path);
    QVERIFY2(clip, qPrintable(m_fault));

    const auto isRight = [&](qint64 time, int expected) {
        const std::optional<ClipPicture> picture = clip->pictureAt(time);
        return picture && numberOf(picture->image) == expected && picture->time <= time &&
               (!picture->until || time < *picture->until);
    };
    for (int i = 0; i < count; ++i)
        QVERIFY2(isRight(middleOf(i), i), qPrintable(QString::number(i)));
    for (int i = count - 1; i >= 0; --i)
        QVERIFY2(isRight(middleOf(i), i), qPrintable(QString::number(i)));
    bool isNumber = false;
    const int wanted = qEnvironmentVariableIntValue("CORVELGUI_RANDOM_INSTANTS", &isNumber);
    const int rounds = !seeks ? 20 : isNumber ? wanted : 100;
    QRandomGenerator random(17);
    for (int round = 0; round < rounds; ++round) {
        const int number = random.bounded(count);
        QVERIFY2(isRight(middleOf(number) + random.bounded(-10, 10), number),
                 qPrintable(QString::number(number)));
    }
    QVERIFY(isRight(qint64(count) * frameLength * 10, count - 1));
    QVERIFY(!clip->pictureAt(-1));
}

void TestClip::keyFrames()
{
    const QString path = m_folder.filePath(u"keys.mp4"_s);
    QCOMPARE(NumberedClip::write(path, count, {.keyFrameDistance = 25}), QString());
    const std::unique_ptr<Clip> clip = open(path);
    for (const int number : {26, 24, 299, 75, 74, 0}) {
        const auto picture = clip->pictureAt(middleOf(number), Clip::Accuracy::KeyFrame);
        QVERIFY(picture);
        QCOMPARE(numberOf(picture->image), number / 25 * 25);
    }
    QCOMPARE(numberOf(clip->pictureAt(middleOf(76))->image), 76);
}

void TestClip::facts()
{
    constexpr qint64 recorded = 1'795'000'000'000;
    const QString path = m_folder.filePath(u"dated.mp4"_s);
    QCOMPARE(NumberedClip::write(path, 50, {.creationTime = recorded}), QString());
    const Clip::Facts facts = Clip::factsOf(path, m_aborted);
    QCOMPARE(facts.created, std::optional(recorded));
    QCOMPARE(facts.duration, 2'000);
    QVERIFY(!Clip::factsOf(m_folder.path(), m_aborted).fault.isEmpty());
}

// A file that is cut off plays to the cut, or says that it cannot.
void TestClip::faults()
{
    const QString path = m_folder.filePath(u"cut.mkv"_s);
    std::unique_ptr<Clip> clip;
    // Nothing, a few bytes and half of it.
    for (const double part : {0.0, 0.0001, 0.5}) {
        QCOMPARE(NumberedClip::write(path, count), QString());
        QFile file(path);
        QVERIFY(file.resize(qint64(part * double(file.size()))));
        m_fault.clear();
        clip = open(path);
        QCOMPARE(clip != nullptr, part == 0.5);
        QCOMPARE(m_fault.isEmpty(), part == 0.5);
    }
    QCOMPARE(numberOf(clip->pictureAt(middleOf(100))->image), 100);
    const auto last = clip->pictureAt(middleOf(count));
    QVERIFY(last && !last->until);
    const int lastNumber = numberOf(last->image);
    QVERIFY2(lastNumber > 120 && lastNumber < 180, qPrintable(QString::number(lastNumber)));
    m_aborted = true;
    QVERIFY(!clip->pictureAt(0));
    m_aborted = false;
}

// Going back to the begin opens a file again where it cannot be sought.
void TestClip::vanishing()
{
    const QString path = m_folder.filePath(u"vanishing.mp4"_s);
    const auto write = [&] {
        return NumberedClip::write(path, count);
    };
    QCOMPARE(write(), QString());
    constexpr qint64 littleMemory = 1;
    const std::unique_ptr<Clip> clip = open(path, littleMemory);
    QVERIFY(clip->pictureAt(middleOf(200)));
    if (!QFile::remove(path))
        QSKIP("A file that is open cannot be removed here.");
    QVERIFY(!clip->pictureAt(0));
    QVERIFY(!clip->pictureAt(middleOf(250)));
    QCOMPARE(write(), QString());
    QCOMPARE(numberOf(clip->pictureAt(middleOf(250))->image), 250);
}

QTEST_GUILESS_MAIN(TestClip)
#include "tst_clip.moc"
