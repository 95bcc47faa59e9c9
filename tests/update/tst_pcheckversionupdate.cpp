#include "scriptedserver.h"
#include "testsupport.h"
#include "useranswers.h"

#include <CorvelGui/PChangeLogDialog>
#include <CorvelGui/PCheckVersionUpdate>
#include <CorvelGui/PCheckVersionUpdateDialog>

#include <QDesktopServices>
#include <QDir>
#include <QElapsedTimer>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace CorvelGui;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using LocalHttp::Misbehaviour;

namespace {

const QByteArray versionFile = "version=2.1.0.5\nupdatefile=setup.exe\nreadmefile=notes.html\n"
                               "releasedate=1 May 2026\n";
const QByteArray notes = "<h1>2.1</h1>";
const QByteArray installer = QByteArray("installer ").repeated(5'000);

const QString title = u"Test Client"_s;
const QString offer = u"Offer: Test Client: Test Client%1\n\nCurrent version: 2.0.9\nA new version "
                      "is available: 2.1.0\nRelease date: 1 May 2026\n\nWould you like to download "
                      "this version?"_s;
const QString inside = u" (Internal Release Channel)"_s;
const QString upToDate = u"Information: Test Client: Your Test Client Version is up to date"_s;
const QString unreadable =
    u"Critical: Update check failed: Internal error!\nCannot parse version information."_s;
const QString unreachable = u"Critical: Update check failed: Cannot connect to Orvane Software "
                            "Update Server!\nPlease check internet connection."_s;
const QString save = u"Save: Save Software: setup.exe"_s;
const QString failed = u"Critical: Download failed: Download failed!\n\nError: "_s;

/// Both channels on one local server, the check, and the user.
struct Bench
{
    Bench()
    {
        user.savePath = folder.filePath(u"saved.exe"_s);
        update = new PCheckVersionUpdate(&parent, u"2.0.9.1"_s, server.base() + u"/out/"_s,
                                         server.base() + u"/in/"_s, false);
        update->setLimits({.deadline = 400ms, .silence = 200ms, .size = 100'000},
                          {.deadline = 400ms, .silence = 200ms, .size = 100'000});
    }

    void script(const QByteArray& channel, const QByteArray& version = versionFile)
    {
        server.script(channel + "version.txt", version);
        server.script(channel + "notes.html", notes);
        server.script(channel + "setup.exe", installer);
    }

    QByteArray saved() const
    {
        QFile file(folder.filePath(u"saved.exe"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void saveBefore(const QByteArray& content)
    {
        QFile file(folder.filePath(u"saved.exe"_s));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("Cannot write");
    }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files); }

    QTemporaryDir folder;
    ScriptedServer server;
    UserAnswers user;
    QWidget parent;
    QPointer<PCheckVersionUpdate> update;
};

// Runs until nothing is under way and every dialog is answered.
void settle(Bench& bench, const QStringList& said)
{
    QTRY_COMPARE(bench.user.said(), said);
    QTRY_VERIFY(!bench.update || !bench.update->isBusy());
    QTRY_VERIFY(!QApplication::activeModalWidget());
    QCoreApplication::processEvents();
    QCOMPARE(bench.user.said(), said);
}

} // namespace

class TestPCheckVersionUpdate : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void channelsAreAskedInOrder_data();
    void channelsAreAskedInOrder();
    void faultyVersionFileMeansNextChannel_data() { faults(); }
    void faultyVersionFileMeansNextChannel();
    void versionsAreCompared_data();
    void versionsAreCompared();
    void installerIsSaved();
    void faultyDownloadKeepsTheFile_data() { faults(); }
    void faultyDownloadKeepsTheFile();
    void unwritableTargetIsTold();
    void checksStandAlone();
    void goesAtAnyMoment_data();
    void goesAtAnyMoment();
    void changeLogIsShown();
    void windowStaysResponsive();

public Q_SLOTS:
    void open(const QUrl& url) { m_opened.append(url); }

private:
    static void faults();

    QList<QUrl> m_opened;
};

void TestPCheckVersionUpdate::initTestCase()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QCoreApplication::setApplicationName(title);
}

void TestPCheckVersionUpdate::channelsAreAskedInOrder_data()
{
    QTest::addColumn<QByteArrayList>("channels");
    QTest::addColumn<bool>("showResult");
    QTest::addColumn<QByteArrayList>("requests");
    QTest::addColumn<QStringList>("said");
    const QByteArray in = "/in/version.txt";
    const QByteArray out = "/out/version.txt";
    QTest::newRow("internal") << QByteArrayList{"/in/", "/out/"} << false
                              << QByteArrayList{in, "/in/notes.html"}
                              << QStringList{offer.arg(inside)};
    QTest::newRow("public") << QByteArrayList{"/out/"} << false
                            << QByteArrayList{in, out, "/out/notes.html"}
                            << QStringList{offer.arg(QString())};
    QTest::newRow("none, told") << QByteArrayList{} << true << QByteArrayList{in, out}
                                << QStringList{unreachable};
    QTest::newRow("none, silent") << QByteArrayList{} << false << QByteArrayList{in, out}
                                  << QStringList{};
}

void TestPCheckVersionUpdate::channelsAreAskedInOrder()
{
    QFETCH(QByteArrayList, channels);
    QFETCH(bool, showResult);
    QFETCH(QByteArrayList, requests);
    QFETCH(QStringList, said);
    Bench bench;
    bench.user.wantsDownload = false;
    for (const QByteArray& channel : channels)
        bench.script(channel);
    const QSignalSpy busy(bench.update, &PCheckVersionUpdate::busyChanged);
    bench.update->checkVersion(showResult);
    QVERIFY(bench.update->isBusy());
    QTRY_COMPARE(bench.server.targets(), requests);
    settle(bench, said);
    QCOMPARE(busy, (QList<QVariantList>{{true}, {false}}));
    QCOMPARE(bench.server.targets(), requests);
    QCOMPARE(bench.update->hasInternalReleaseChannelConnection(), channels.contains("/in/"));
    QCOMPARE(bench.update->GetReadMeFile().toUtf8(), channels.isEmpty() ? QByteArray() : notes);
}

void TestPCheckVersionUpdate::faults()
{
    QTest::addColumn<Misbehaviour>("how");
    for (const QString& name : LocalHttp::misbehaviourNames().mid(1)) // the first is none
        QTest::newRow(qPrintable(name)) << *LocalHttp::misbehaviourNamed(name);
}

void TestPCheckVersionUpdate::faultyVersionFileMeansNextChannel()
{
    QFETCH(Misbehaviour, how);
    Bench bench;
    bench.script("/in/");
    bench.script("/out/");
    bench.server.script("/in/version.txt", versionFile, how);
    bench.server.script("/out/version.txt", versionFile, how);
    bench.update->checkVersion(true);
    settle(bench, {how == Misbehaviour::Portal ? unreadable : unreachable});
    QVERIFY(!bench.server.targets().contains("/out/notes.html"));
    QCOMPARE(bench.server.targets().contains("/out/version.txt"), how != Misbehaviour::Portal);
}

void TestPCheckVersionUpdate::versionsAreCompared_data()
{
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<bool>("showResult");
    QTest::addColumn<QStringList>("said");
    const QByteArray rest = "\nupdatefile=setup.exe\nreadmefile=notes.html\nreleasedate=1 May 2026";
    QTest::newRow("equal") << "version=2.0.9.1" + rest << true << QStringList{upToDate};
    QTest::newRow("equal, silent") << "version=2.0.9.1" + rest << false << QStringList{};
    QTest::newRow("lower") << "version=2.0.8.9" + rest << true << QStringList{upToDate};
    QTest::newRow("revision") << "version=2.0.9.2" + rest << true
                              << QStringList{offer.arg(inside).replace(u"available: 2.1.0"_s,
                                                                       u"available: 2.0.9"_s)};
    QTest::newRow("1.10") << "version=2.0.10" + rest << true
                          << QStringList{offer.arg(inside).replace(u"2.1.0"_s, u"2.0.10"_s)};
    QTest::newRow("huge") << "version=99999999999" + rest << true
                          << QStringList{
                                 offer.arg(inside).replace(u"2.1.0"_s, u"2147483647.0.0"_s)};
    QTest::newRow("unreadable, silent") << QByteArray("hello") << false << QStringList{unreadable};
    QTest::newRow("no notes at their address")
        << QByteArray("version=3\nupdatefile=setup.exe\nreadmefile=gone.html") << true
        << QStringList{};
}

void TestPCheckVersionUpdate::versionsAreCompared()
{
    QFETCH(QByteArray, version);
    QFETCH(bool, showResult);
    QFETCH(QStringList, said);
    Bench bench;
    bench.user.wantsDownload = false;
    bench.script("/in/", version);
    bench.update->checkVersion(showResult);
    settle(bench, said);
    if (version.contains("gone.html"))
        QCOMPARE(bench.update->GetReadMeFile(),
                 u"Error reading %1/in/gone.html"_s.arg(bench.server.base()));
}

void TestPCheckVersionUpdate::installerIsSaved()
{
    QDesktopServices::setUrlHandler(u"file"_s, this, "open");
    Bench bench;
    bench.user.opensFolder = true;
    bench.script("/in/");
    bench.saveBefore("an earlier release");
    QList<std::pair<qint64, qint64>> progress;
    connect(bench.update, &PCheckVersionUpdate::signalDownloadProgress, this,
            [&](qint64 received, qint64 total) {
                progress.append({received, total});
            });
    bench.update->checkVersion(false);
    settle(bench, {offer.arg(inside), save,
                   u"Question: Test Client: Downloading of new version was finished "
                   "successfully!\n\nLocation: %1\n\nOpen download file location?"_s.arg(
                       QDir::toNativeSeparators(bench.user.savePath))});
    QCOMPARE(bench.saved(), installer);
    QCOMPARE(bench.files(), QStringList{u"saved.exe"_s});
    QCOMPARE(m_opened, QList<QUrl>{QUrl::fromLocalFile(bench.folder.path())});
    QVERIFY(progress.size() >= 3); // also of an installer that arrives at once
    QCOMPARE(progress.first(), std::pair(qint64(-1), qint64(-1)));
    QCOMPARE(progress.last(), std::pair(qint64(installer.size()), qint64(installer.size())));
    QVERIFY(std::is_sorted(progress.begin(), progress.end()));
    QDesktopServices::unsetUrlHandler(u"file"_s);
}

void TestPCheckVersionUpdate::faultyDownloadKeepsTheFile()
{
    QFETCH(Misbehaviour, how);
    if (how == Misbehaviour::Portal)
        return; // whose page is as good a file as any
    Bench bench;
    bench.script("/in/");
    bench.server.script("/in/setup.exe", installer, how);
    bench.saveBefore("an earlier release");
    QSignalSpy progress(bench.update, &PCheckVersionUpdate::signalDownloadProgress);
    bench.update->checkVersion(false);
    QTRY_COMPARE(bench.user.said().size(), 3);
    const QString last = bench.user.said().last();
    QVERIFY2(last.startsWith(failed) && last.size() > failed.size(), qPrintable(last));
    settle(bench, {offer.arg(inside), save, last});
    QCOMPARE(progress.last(), (QVariantList{0, 0}));
    QCOMPARE(bench.saved(), QByteArray("an earlier release"));
    QCOMPARE(bench.files(), QStringList{u"saved.exe"_s});
}

void TestPCheckVersionUpdate::unwritableTargetIsTold()
{
    Bench bench;
    bench.script("/in/");
    // What could be written when the user chose it can be a folder a moment later.
    connect(bench.update, &PCheckVersionUpdate::signalDownloadProgress, this, [&](qint64 received) {
        if (received == -1)
            QVERIFY(QDir().mkdir(bench.user.savePath));
    });
    bench.update->checkVersion(false);
    settle(bench,
           {offer.arg(inside), save, u"Critical: Download failed: Error while saving file!"_s});
    QVERIFY(bench.files().isEmpty());
}

void TestPCheckVersionUpdate::checksStandAlone()
{
    Bench bench;
    bench.user.wantsDownload = false;
    bench.script("/in/");
    bench.update->checkVersion(false);
    settle(bench, {offer.arg(inside)});

    // Nothing of the first check is left in a second one that finds less, and one that is
    // replaced says nothing.
    bench.server.script("/in/version.txt", versionFile, Misbehaviour::NotFound);
    bench.server.script("/out/version.txt", "version=3\nupdatefile=a.exe");
    bench.server.script("/out/", "<p>All</p>");
    bench.update->checkVersion(true);
    bench.update->checkVersion(true);
    QVERIFY(!bench.update->hasInternalReleaseChannelConnection());
    QCOMPARE(bench.update->GetReadMeFile(), QString());
    settle(bench, {offer.arg(inside),
                   offer.arg(QString()).replace(u"2.1.0"_s, u"3.0.0"_s).remove(u"1 May 2026"_s)});
    QCOMPARE(bench.update->GetReadMeFile(), u"<p>All</p>"_s);
}

void TestPCheckVersionUpdate::goesAtAnyMoment_data()
{
    QTest::addColumn<QString>("moment");
    for (const char* moment : {"request", "offer", "file", "begin", "progress", "end", "failure",
                               "question", "failure box"})
        QTest::newRow(moment) << QString::fromLatin1(moment);
}

void TestPCheckVersionUpdate::goesAtAnyMoment()
{
    QFETCH(QString, moment);
    Bench bench;
    auto* parent = new QWidget;
    bench.update->setParent(parent);
    bench.script("/in/");
    const bool fails = moment.startsWith(u"failure"_s);
    bench.server.script("/in/setup.exe", installer,
                        fails                     ? Misbehaviour::ServerError
                        : moment == u"progress"_s ? Misbehaviour::Slow
                                                  : Misbehaviour::None);
    bench.update->setLimits({}, {});
    const QMap<QString, QString> dialogs{{u"Offer"_s, u"offer"_s},
                                         {u"Save"_s, u"file"_s},
                                         {u"Question"_s, u"question"_s},
                                         {u"Critical"_s, u"failure box"_s}};
    bench.user.before = [&](const QDialog&) {
        const QString kind = bench.user.said().last().section(u':', 0, 0);
        if (dialogs.value(kind) == moment)
            delete parent;
    };
    connect(bench.update, &PCheckVersionUpdate::signalDownloadProgress, parent,
            [&](qint64 received, qint64 total) {
                const QString now = received < 0        ? u"begin"_s
                                    : total == 0        ? u"failure"_s
                                    : received == total ? u"end"_s
                                                        : u"progress"_s;
                if (now == moment)
                    delete parent;
            });
    if (moment == u"request"_s)
        bench.server.script("/in/version.txt", versionFile, Misbehaviour::Never);
    bench.update->checkVersion(false);
    if (moment == u"request") {
        QTRY_VERIFY(!bench.server.targets().isEmpty());
        delete parent;
    }
    QTRY_VERIFY(!bench.update);
    QTRY_VERIFY(!QApplication::activeModalWidget());
    const bool isComplete = moment == u"question";
    QCOMPARE(bench.saved(), isComplete ? installer : QByteArray());
    QCOMPARE(bench.files().size(), isComplete ? 1 : 0);
}

void TestPCheckVersionUpdate::changeLogIsShown()
{
    Bench bench;
    bench.update->checkChangeLog();
    settle(bench, {u"Warning: Error Download: Could not download change log information."_s});

    QString log;
    bench.user.wantsDownload = false;
    bench.user.before = [&](const QDialog& dialog) {
        bench.user.before = {};
        dialog.findChild<QPushButton*>(u"pushButtonShowChangeLog"_s)->click();
        auto* changeLog = dialog.findChild<PChangeLogDialog*>();
        QVERIFY(changeLog->isModal());
        log = changeLog->toPlainText();
        delete changeLog;
    };
    bench.script("/in/");
    bench.update->checkVersion(false);
    QTRY_COMPARE(bench.user.said().size(), 2);
    QCOMPARE(log, u"2.1"_s);
    QTRY_VERIFY(!QApplication::activeModalWidget());

    for (const bool fetched : {false, true}) {
        if (fetched)
            bench.update->fetchChangeLog();
        else
            bench.update->checkChangeLog();
        QTRY_VERIFY(bench.parent.findChild<PChangeLogDialog*>());
        const std::unique_ptr<PChangeLogDialog> changeLog(
            bench.parent.findChild<PChangeLogDialog*>());
        QVERIFY(changeLog->isVisible() && changeLog->isModal());
        QCOMPARE(changeLog->toPlainText(), u"2.1"_s);
    }
    QCOMPARE(bench.user.said().size(), 2);
    for (const QByteArray& answer : {QByteArray("hello"), QByteArray()}) {
        bench.server.script("/in/version.txt", answer,
                            answer.isEmpty() ? Misbehaviour::NotFound : Misbehaviour::None);
        bench.update->fetchChangeLog();
        QTRY_VERIFY(!bench.update->isBusy());
        QTRY_COMPARE(bench.user.said().last(),
                     u"Warning: Error Download: Could not download change log information."_s);
    }
    QTRY_COMPARE(bench.user.said().size(), 4);
}

void TestPCheckVersionUpdate::windowStaysResponsive()
{
    Bench bench;
    bench.update->setLimits({.deadline = 10s, .silence = 10s, .size = 1'000'000},
                            {.deadline = 60s, .silence = 10s, .size = 100'000'000});
    bench.script("/in/");
    bench.server.script("/in/setup.exe", QByteArray(30'000'000, 'x'));
    qint64 longest = 0;
    QElapsedTimer sinceLast;
    QTimer beat;
    connect(&beat, &QTimer::timeout, this,
            [&] { longest = std::max(longest, sinceLast.restart()); });
    sinceLast.start();
    beat.start(0);
    bench.update->checkVersion(false);
    QTRY_COMPARE_WITH_TIMEOUT(bench.user.said().size(), 3, 30'000);
    QCOMPARE(bench.saved().size(), 30'000'000);
    qInfo("Longest wait of an event: %lld ms", longest);
    QVERIFY(longest < 2'000);
}

QTEST_MAIN(TestPCheckVersionUpdate)
#include "tst_pcheckversionupdate.moc"
