#include "testsupport.h"

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString noDisplay = u"none"_s;

} // namespace

class TestReviewProgram : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void refusals_data();
    void refusals();
    void answers();
    void pictures_data();
    void pictures();
    void pictureThatCannotBeWritten();

private:
    /// Runs the program to its end. Returns its exit code.
    int run(const QStringList& arguments, const QString& platform = u"offscreen"_s);

    QTemporaryDir m_dir;
    QString m_output;
    QString m_errors;
};

int TestReviewProgram::run(const QStringList& arguments, const QString& platform)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, platform);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_dir.path());
    process.start(QStringLiteral(REVIEW_PROGRAM), arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit) {
        process.kill();
        process.waitForFinished();
        return -1;
    }
    m_output = QString::fromUtf8(process.readAllStandardOutput());
    m_errors = QString::fromUtf8(process.readAllStandardError());
    return process.exitCode();
}

void TestReviewProgram::refusals_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");

    const auto row = [](const QStringList& arguments, const QString& message) {
        QTest::newRow(qPrintable(arguments.join(u' '))) << arguments << message;
    };
    row({u"--recordings"_s, u"missing.csv"_s}, u"Cannot read missing.csv: "_s);
    row({u"--deployments"_s, u"."_s}, u"Cannot read .: it is a folder"_s);
    row({u"--recordings"_s}, u"recordings"_s);
    row({u"--recordings="_s}, u"--recordings needs a value"_s);
    row({u"--zone"_s, u"Europe/Nowhere"_s}, u"Unknown time zone “Europe/Nowhere”"_s);
    row({u"--look"_s, u"Dark"_s}, u"Unknown look “Dark”"_s);
    row({u"--size"_s, u"1200"_s}, u"Bad size “1200”"_s);
    row({u"--size"_s, u"100x700"_s}, u"Bad size “100x700”"_s);
    row({u"--colour"_s}, u"colour"_s);
    row({u"--pattern"_s, u"{yyyy}-{dd}.mp4"_s}, u"Bad pattern “{yyyy}-{dd}.mp4”"_s);
    row({u"recordings.csv"_s}, u"There is no file or folder “recordings.csv”"_s);
}

void TestReviewProgram::refusals()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, message);
    const bool reads = message.startsWith(u"Cannot read"_s);
    QCOMPARE(run(arguments, reads ? u"offscreen"_s : noDisplay), 2);
    const qsizetype line = m_errors.indexOf(u"corvel-review: "_s);
    QVERIFY2(line >= 0, qPrintable(m_errors));
    QVERIFY2(m_errors.sliced(line).contains(message), qPrintable(m_errors));
    QCOMPARE(m_output, QString());
}

void TestReviewProgram::answers()
{
    QCOMPARE(run({u"--help"_s}, noDisplay), 0);
    QVERIFY(m_output.contains(u"--size <size>"_s));
    QCOMPARE(run({u"-style"_s, u"fusion"_s, u"--version"_s}, noDisplay), 0);
    QVERIFY(m_output.startsWith(u"corvel-review "_s));
}

void TestReviewProgram::pictures_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("dark");

    QTest::newRow("sample") << QStringList{} << QSize(1200, 700) << true;
    QTest::newRow("light look") << QStringList{u"--look"_s, u"light"_s, u"--size"_s, u"1000x500"_s}
                                << QSize(1000, 500) << false;
    QTest::newRow("nothing in it")
        << QStringList{u"--recordings"_s, u"empty.csv"_s} << QSize(1200, 700) << true;
    // A period of eight thousand years.
    QTest::newRow("very long") << QStringList{u"--recordings"_s, u"long.csv"_s} << QSize(1200, 700)
                               << true;
}

void TestReviewProgram::pictures()
{
    const auto write = [this](const QString& name, const QByteArray& text) {
        QFile file(m_dir.filePath(name));
        return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
    };
    QVERIFY(write(u"empty.csv"_s, "track,begin,end\n"));
    QVERIFY(write(u"long.csv"_s, "track,begin,end\na,1971-01-01T00:00Z,1971-01-01T00:01Z\n"
                                 "a,9999-12-31T00:00Z,9999-12-31T00:01Z\n"));

    QFETCH(const QStringList, arguments);
    QFETCH(const bool, dark);
    const QStringList request{u"--picture"_s, u"window.png"_s, u"--zone"_s, u"Europe/Brussels"_s};
    QVERIFY2(run(request + arguments) == 0, qPrintable(m_errors));
    const QImage picture(m_dir.filePath(u"window.png"_s));
    QTEST(picture.size(), "size");
    // The body of the cameras, below their few rows.
    QCOMPARE(picture.pixelColor(picture.width() / 10, 280).lightness() < 128, dark);
}

void TestReviewProgram::pictureThatCannotBeWritten()
{
    QCOMPARE(run({u"--picture"_s, u"no/such/directory/window.png"_s}), 1);
    QVERIFY2(m_errors.contains(u"corvel-review: Cannot write "_s), qPrintable(m_errors));
}

QTEST_GUILESS_MAIN(TestReviewProgram)
#include "tst_reviewprogram.moc"
