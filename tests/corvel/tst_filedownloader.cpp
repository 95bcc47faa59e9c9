// SPDX-License-Identifier: MIT
#include "scriptedserver.h"
#include "testsupport.h"

#include <Corvel/FileDownloader>
#include <Corvel/ProxyUserSettings>

using Corvel::FileDownloader;
using LocalHttp::Answer;
using LocalHttp::Misbehaviour;
using namespace std::chrono_literals;

namespace {

const QByteArray content(3'000'000, 'n');

} // namespace

class TestFileDownloader : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        WarningFreeTest::init();
        Corvel::ProxyUserSettings::m_Settings = {.mode = Corvel::ProxyUserSettings::Mode::None};
        m_folder = std::make_unique<QTemporaryDir>();
        m_server = std::make_unique<ScriptedServer>();
        m_target = m_folder->filePath(u"setup.exe"_s);
        writeFile(m_target, "old");
    }

    void complete()
    {
        FileDownloader downloader;
        QSignalSpy progress(&downloader, &FileDownloader::downloadProgress);
        QSignalSpy finished(&downloader, &FileDownloader::downloadFinished);
        m_server->script("/file", Answer::redirect("/real"));
        for (const QByteArray& body : {content, QByteArray()}) {
            for (const qint64 announced : {qint64(body.size()), qint64(-1)}) {
                Answer answer = Answer::ok(body);
                answer.announcedLength = announced;
                m_server->script("/real", answer);
                QVERIFY(downloader.downloadFile(m_server->address(u"/file"_s), m_target));
                QVERIFY(!downloader.downloadFile(m_server->address(u"/file"_s), m_target));
                QTRY_VERIFY(!downloader.isBusy());
                QCOMPARE(finished.takeFirst(), QVariantList{m_target});
                QCOMPARE(readFile(m_target), body);
                QCOMPARE(files(), QStringList{u"setup.exe"_s});
                QCOMPARE(progress.last().last().toLongLong(), body.isEmpty() ? -1 : announced);
            }
        }
    }

    void faults()
    {
        const QString tooLarge = u"The server sends more than 4.00 MiB."_s;
        const QString tooEarly = u"The connection was closed too early."_s;
        QList<std::pair<Answer, QString>> faults{
            {Answer::ok("short"), tooLarge},
            {Answer::error(204, "No Content"), u"The server answered with status 204."_s},
            {Answer::ok("2DC6C1\r\n" + content), tooEarly}}; // cut within a chunk
        faults[0].first.announcedLength = 1LL << 40;
        faults[2].first.announcedLength = -1;
        faults[2].first.headers.append(LocalHttp::Header{"Transfer-Encoding", "chunked"});
        for (const auto& [how, text] :
             {std::pair(Misbehaviour::Never, u"The server does not answer."_s),
              {Misbehaviour::Slow, u"The server did not finish in time."_s},
              {Misbehaviour::Endless, tooLarge},
              {Misbehaviour::Cut, tooEarly},
              {Misbehaviour::Length, tooEarly},
              {Misbehaviour::NotFound, u"The server answered with status 404."_s},
              {Misbehaviour::ServerError, u"The server answered with status 500."_s},
              {Misbehaviour::RedirectLoop, u"The server leads in circles."_s},
              {Misbehaviour::RedirectFile, u"The server leads to an address that is not safe."_s}})
            faults.append({misbehave(how, {.target = "/file"}, Answer::ok(content)), text});
        for (const auto& [answer, text] : std::as_const(faults)) {
            m_server->script("/file", answer);
            FileDownloader downloader;
            downloader.setLimits({.deadline = answer.pace == Answer::Pace::Slow ? 300ms : 30s,
                                  .silence = answer.pace == Answer::Pace::Never ? 100ms : 30s,
                                  .size = 4 * 1024 * 1024});
            QCOMPARE(failure(downloader), text);
        }
    }

    void redirects()
    {
        m_server->script("/5", content);
        for (int step = 0; step < 5; ++step)
            m_server->script('/' + QByteArray::number(step),
                             Answer::redirect('/' + QByteArray::number(step + 1)));
        m_server->script("/file", Answer::redirect("/0"));
        FileDownloader downloader;
        QCOMPARE(failure(downloader), u"The server leads in circles."_s);
        QVERIFY(downloader.downloadFile(m_server->address(u"/0"_s), m_target));
        QTRY_COMPARE(readFile(m_target), content);
    }

    void refusals()
    {
        QVERIFY(QDir(m_folder->path()).mkdir(u"directory"_s));
        const QUrl url(u"http://127.0.0.1/file"_s);
        const QString fresh = m_folder->filePath(u"fresh"_s);
        QFile::setPermissions(m_target, QFile::ReadOwner);

        FileDownloader downloader;
        QVERIFY(!downloader.downloadFile(QUrl(u"file:///etc/hostname"_s), fresh));
        QVERIFY(!downloader.downloadFile(QUrl(u"http:///file"_s), fresh));
        QVERIFY(!downloader.downloadFile(url, QString()));
        QVERIFY(!downloader.downloadFile(url, m_folder->filePath(u"directory"_s)));
        QVERIFY(!downloader.downloadFile(url, m_folder->filePath(u"nowhere/file"_s)));
        QVERIFY(!downloader.downloadFile(url, m_target));
        QVERIFY(!downloader.isBusy());
        QCOMPARE(files(), (QStringList{u"directory"_s, u"setup.exe"_s}));
        QFile::setPermissions(m_target, QFile::ReadOwner | QFile::WriteOwner);
    }

    void interruptions_data()
    {
        // What is done within which signal, and how the downloads end.
        const auto rows =
            u"delete progress:|quit progress:|cancel progress: error|protect progress: error|"
            "delete finished: finished|quit finished: finished|cancel finished: finished|"
            "start finished: finished finished|delete error: error|quit error: error|"
            "cancel error: error|start error: error finished"_s;
        QTest::addColumn<QString>("act");
        QTest::addColumn<QString>("at");
        QTest::addColumn<QString>("outcomes");
        for (const QString& row : rows.split(u'|'))
            QTest::newRow(qPrintable(row))
                << row.section(u' ', 0, 0) << row.section(u' ', 1, 1).chopped(1)
                << row.section(u' ', 2);
    }

    void interruptions()
    {
        QFETCH(const QString, act);
        QFETCH(QString, at);
        m_server->script("/file", content,
                         at == "error"_L1 ? Misbehaviour::Cut : Misbehaviour::None);

        QPointer<FileDownloader> downloader = new FileDownloader;
        const auto start = [&] {
            return downloader->downloadFile(m_server->address(u"/file"_s), m_target);
        };
        const auto interrupt = [&] {
            if (act == "delete"_L1) {
                delete downloader;
            } else if (act == "quit"_L1) {
                QCoreApplication::exit();
            } else if (act == "cancel"_L1) {
                downloader->cancelDownload();
                downloader->cancelDownload();
                QCOMPARE(files(), QStringList{u"setup.exe"_s});
            } else if (act == "start"_L1) {
                m_server->script("/file", content);
                QVERIFY(start());
            } else {
                QFile::setPermissions(m_target, QFile::ReadOwner);
            }
        };
        QStringList outcomes;
        const auto happens = [&](const QString& what) {
            if (what != "progress"_L1)
                outcomes.append(what);
            if (what == at && std::exchange(at, {}) == what)
                interrupt();
            if (what != "progress"_L1 && (!downloader || !downloader->isBusy()))
                QCoreApplication::exit();
        };
        connect(downloader, &FileDownloader::downloadProgress, this,
                [&] { happens(u"progress"_s); });
        connect(downloader, &FileDownloader::downloadError, this, [&] { happens(u"error"_s); });
        connect(downloader, &FileDownloader::downloadFinished, this,
                [&] { happens(u"finished"_s); });
        connect(downloader, &QObject::destroyed, this, [] { QCoreApplication::exit(); });
        QVERIFY(start());
        QCoreApplication::exec();
        delete downloader;

        QTEST(outcomes.join(u' '), "outcomes");
        QCOMPARE(readFile(m_target), outcomes.contains("finished"_L1) ? content : "old");
        QCOMPARE(files(), QStringList{u"setup.exe"_s});
        QFile::setPermissions(m_target, QFile::ReadOwner | QFile::WriteOwner);
    }

    void fullDisk()
    {
        m_server->script("/file", content);
        if (!limitFiles(1'000'000))
            QSKIP("This cannot be had here");
        FileDownloader downloader;
        const QString text = failure(downloader);
        limitFiles(0);
        QVERIFY2(text.startsWith("The file cannot be written: "_L1), qPrintable(text));
    }

private:
    // The text with which a download fails that leaves everything as it was.
    QString failure(FileDownloader& downloader)
    {
        QSignalSpy failed(&downloader, &FileDownloader::downloadError);
        QSignalSpy finished(&downloader, &FileDownloader::downloadFinished);
        const bool started = downloader.downloadFile(m_server->address(u"/file"_s), m_target);
        const bool ended = QTest::qWaitFor([&] { return !downloader.isBusy(); });
        const bool unchanged =
            readFile(m_target) == "old" && files() == QStringList{u"setup.exe"_s};
        if (!started || !ended || failed.size() != 1 || !finished.isEmpty() || !unchanged)
            return u"not a clean failure"_s;
        return failed.first().first().toString();
    }

    QStringList files() const
    {
        return QDir(m_folder->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<ScriptedServer> m_server;
    QString m_target;
};

QTEST_GUILESS_MAIN(TestFileDownloader)
#include "tst_filedownloader.moc"
