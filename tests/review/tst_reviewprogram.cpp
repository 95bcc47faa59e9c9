// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include <QProcess>

namespace {

const QString noDisplay = u"none"_s;

} // namespace

class TestReviewProgram : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void refusals()
    {
        const std::pair<QString, QString> rows[] = {
            {u"--recordings missing.csv"_s, u"Cannot read missing.csv: "_s},
            {u"--deployments ."_s, u"Cannot read .: it is a folder"_s},
            {u"--recordings"_s, u"recordings"_s},
            {u"--recordings="_s, u"--recordings needs a value"_s},
            {u"--zone Europe/Nowhere"_s, u"Unknown time zone “Europe/Nowhere”"_s},
            {u"--look Dark"_s, u"Unknown look “Dark”"_s},
            {u"--size 1200"_s, u"Bad size “1200”"_s},
            {u"--size 100x700"_s, u"Bad size “100x700”"_s},
            {u"--colour"_s, u"colour"_s},
            {u"--pattern {yyyy}-{dd}.mp4"_s, u"Bad pattern “{yyyy}-{dd}.mp4”"_s},
            {u"recordings.csv"_s, u"There is no file or folder “recordings.csv”"_s},
            {u"--picture no/such/folder/window.png"_s, u"Cannot write "_s}};
        for (const auto& [arguments, message] : rows) {
            // What is in a file is looked at when there is a window.
            const bool needsDisplay =
                message.startsWith(u"Cannot"_s) || message.startsWith(u"There"_s);
            QCOMPARE(run(arguments, needsDisplay ? u"offscreen"_s : noDisplay),
                     message == u"Cannot write " ? 1 : 2);
            const qsizetype line = m_errors.indexOf(u"corvel-review: "_s);
            QVERIFY2(line >= 0 && m_errors.sliced(line).contains(message), qPrintable(m_errors));
            QCOMPARE(m_output, QString());
        }
    }

    void answers()
    {
        QCOMPARE(run(u"--help"_s, noDisplay), 0);
        QVERIFY(m_output.contains(u"--size <size>"_s));
        QCOMPARE(run(u"-style fusion --version"_s, noDisplay), 0);
        QVERIFY(m_output.startsWith(u"corvel-review "_s));
    }

    void pictures()
    {
        writeFile(m_dir.filePath(u"empty.csv"_s), "track,begin,end\n");
        // A period of eight thousand years.
        writeFile(m_dir.filePath(u"long.csv"_s), "track,begin,end\n"
                                                 "a,1971-01-01T00:00Z,1971-01-01T00:01Z\n"
                                                 "a,9999-12-31T00:00Z,9999-12-31T00:01Z\n");
        for (const QString& arguments :
             {u""_s, u" --look light --size 1000x500"_s, u" --recordings empty.csv"_s,
              u" --recordings long.csv"_s}) {
            QVERIFY2(run(u"--picture window.png --zone Europe/Brussels"_s + arguments) == 0,
                     qPrintable(m_errors));
            const bool isLight = arguments.contains(u"light"_s);
            const QImage picture(m_dir.filePath(u"window.png"_s));
            QCOMPARE(picture.size(), isLight ? QSize(1000, 500) : QSize(1200, 700));
            // The body of the cameras, below their few rows.
            QCOMPARE(picture.pixelColor(picture.width() / 10, 280).lightness() < 128, !isLight);
        }
    }

private:
    /// Runs the program to its end. Returns its exit code.
    int run(const QString& arguments, const QString& platform = u"offscreen"_s)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
#ifdef Q_OS_WIN
        Q_UNUSED(platform); // there is a display, and no other platform beside the program
#else
        environment.insert(u"QT_QPA_PLATFORM"_s, platform);
#endif
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(m_dir.path());
        process.start(QStringLiteral(REVIEW_PROGRAM), arguments.split(u' '));
        if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit) {
            process.kill();
            process.waitForFinished();
            return -1;
        }
        m_output = QString::fromUtf8(process.readAllStandardOutput());
        m_errors = QString::fromUtf8(process.readAllStandardError());
        return process.exitCode();
    }

    QTemporaryDir m_dir;
    QString m_output;
    QString m_errors;
};

QTEST_GUILESS_MAIN(TestReviewProgram)
#include "tst_reviewprogram.moc"
