// SPDX-License-Identifier: MIT
#include "updatebench.h"

#include <CorvelGui/PChangeLogDialog>
#include <CorvelGui/PCheckVersionUpdate>
#include <CorvelGui/PCheckVersionUpdateDialog>

using namespace CorvelGui;
using namespace std::chrono_literals;
using LocalHttp::Misbehaviour;

namespace {

const QByteArray keys = "\nupdatefile=setup.exe\nreadmefile=notes.html\nreleasedate=1 May 2026\n";
const QByteArray versionFile = "version=2.1.0.5" + keys;
const QByteArray notes = "<h1>2.1</h1>";

const QString title = u"Test Client"_s;
const QString upToDate = u"Information: Test Client: Your Test Client Version is up to date"_s;
const QString unreadable =
    u"Critical: Update check failed: Internal error!\nCannot parse version information."_s;
const QString unreachable = u"Critical: Update check failed: Cannot connect to Orvane Software "
                            "Update Server!\nPlease check internet connection."_s;
const QString noLog = u"Warning: Error Download: Could not download change log information."_s;
const QString save = u"Save: Save Software: setup.exe"_s;
const QString failed = u"Critical: Download failed: "_s;

QString offer(const QString& version = u"2.1.0"_s,
              const QString& channel = u" (Internal Release Channel)"_s)
{
    return u"Offer: Test Client: Test Client%1\n\nCurrent version: 2.0.9\nA new version is "
           "available: %2\nRelease date: 1 May 2026\n\nWould you like to download this version?"_s
               .arg(channel, version);
}

/// Both channels on one local server.
struct Bench : UpdateBench<PCheckVersionUpdate>
{
    Bench()
    {
        updater = new PCheckVersionUpdate(parent, u"2.0.9.1"_s, server.base() + u"/out/"_s,
                                          server.base() + u"/in/"_s, false);
        updater->setLimits({.deadline = 400ms, .silence = 200ms, .size = 100'000},
                           {.deadline = 400ms, .silence = 200ms, .size = 100'000});
    }

    /// @p version may be the name of a misbehaviour; without one there is no such channel.
    void script(const QByteArray& channel, const QByteArray& version = versionFile)
    {
        if (version.isEmpty())
            return;
        server.script(channel + "version.txt", version,
                      LocalHttp::misbehaviourNamed(QString::fromLatin1(version))
                          .value_or(Misbehaviour::None));
        server.script(channel + "notes.html", notes);
        server.script(channel + "setup.exe", installer);
    }
};

} // namespace

class TestPCheckVersionUpdate : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setApplicationName(title); }

    void titleOfTheCallerStays()
    {
        PCheckVersionUpdateDialog dialog({}, {});
        dialog.setWindowTitle(u"Mine"_s);
        QEvent change(QEvent::LanguageChange);
        QApplication::sendEvent(&dialog, &change);
        QCOMPARE(dialog.windowTitle(), u"Mine"_s);
    }

    void checks()
    {
        const QByteArray in = "/in/version.txt";
        const QByteArray inAndNotes = in + " /in/notes.html";
        const QByteArray both = in + " /out/version.txt";
        const auto version = [](const QByteArray& number) {
            return "version=" + number + keys;
        };
        const QByteArray lacksNotes = "version=3\nupdatefile=a\nreadmefile=gone.html";
        const QByteArray bothAndNotes = both + " /out/notes.html";
        using Outcome = PCheckVersionUpdate::Outcome;
        using enum Outcome;
        using Row = std::tuple<QByteArray, QByteArray, bool, QByteArray, Outcome, QStringList>;
        // The version files of both channels come first.
        const Row rows[] = {
            {versionFile, versionFile, false, inAndNotes, NewerRelease, {offer()}},
            {{}, versionFile, false, bothAndNotes, NewerRelease, {offer(u"2.1.0"_s, {})}},
            {{}, {}, false, both, Failed, {}},
            {"never", "cut", true, both, Failed, {unreachable}},
            {"hello", versionFile, false, in, Failed, {unreadable}},
            {version("2.0.9.1"), {}, false, inAndNotes, UpToDate, {}},
            {version("2.0.8.9"), {}, true, inAndNotes, UpToDate, {upToDate}},
            {version("2.0.9.2"), {}, true, inAndNotes, NewerRelease, {offer(u"2.0.9"_s)}},
            {lacksNotes, {}, true, in + " /in/gone.html", Failed, {}}};
        for (const auto& [internal, external, showResult, requests, outcome, said] : rows) {
            Bench bench;
            bench.user.wantsDownload = false;
            bench.script("/in/", internal);
            bench.script("/out/", external);
            const QSignalSpy busy(bench.updater, &PCheckVersionUpdate::busyChanged);
            const QSignalSpy ended(bench.updater, &PCheckVersionUpdate::checkEnded);
            connect(bench.updater, &PCheckVersionUpdate::checkEnded, this,
                    [&busy] { QCOMPARE(busy.size(), 2); });
            bench.updater->checkVersion(showResult);
            QVERIFY(bench.updater->isBusy());
            QTRY_COMPARE(bench.server.targets().join(' '), requests);
            bench.settle(said);
            QCOMPARE(busy, (QList<QVariantList>{{true}, {false}}));
            QTRY_COMPARE(ended.size(), 1);
            QCOMPARE(ended[0][0].value<Outcome>(), outcome);
            QCOMPARE(ended[0][1].toString().isEmpty(), outcome != Failed);
            QCOMPARE(bench.server.targets().join(' '), requests);
            QCOMPARE(bench.updater->hasInternalReleaseChannelConnection(),
                     requests.startsWith(in + " /in/"));
            const QString missing = u"Error reading %1/in/gone.html"_s.arg(bench.server.base());
            QCOMPARE(bench.updater->GetReadMeFile().toUtf8(), requests.contains("notes") ? notes
                                                              : requests.contains("gone")
                                                                  ? missing.toUtf8()
                                                                  : QByteArray());
        }
    }

    void installerIsSaved()
    {
        Bench bench;
        bench.user.opensFolder = true;
        bench.script("/in/");
        writeFile(bench.user.savePath, "an earlier release");
        QList<std::pair<qint64, qint64>> progress;
        connect(bench.updater, &PCheckVersionUpdate::signalDownloadProgress, this,
                [&](qint64 received, qint64 total) {
                    progress.append({received, total});
                });
        bench.updater->checkVersion(false);
        bench.settle({offer(), save,
                      u"Question: Test Client: Downloading of new version was finished "
                      "successfully!\n\nLocation: %1\n\nOpen download file location?"_s.arg(
                          QDir::toNativeSeparators(bench.user.savePath))});
        QCOMPARE(bench.saved(), installer);
        QCOMPARE(bench.files(), QStringList{u"saved.exe"_s});
        QCOMPARE(bench.user.opened(),
                 QStringList{QUrl::fromLocalFile(bench.folder.path()).toString()});
        QVERIFY(progress.size() >= 3); // also of an installer that arrives at once
        QCOMPARE(progress.first(), std::pair(qint64(-1), qint64(-1)));
        QCOMPARE(progress.last(), std::pair(qint64(installer.size()), qint64(installer.size())));
        QVERIFY(std::is_sorted(progress.begin(), progress.end()));
    }

    void failuresAreTold()
    {
        const QString network = u"Download failed!\n\nError: "_s;
        for (const auto& [how, saveAs, told] :
             {std::tuple(Misbehaviour::Slow, u"a"_s, network + u"The server does not answer."_s),
              {Misbehaviour::None, u"nowhere/a"_s, u"Error while saving file!"_s}}) {
            Bench bench;
            bench.script("/in/");
            bench.server.script("/in/setup.exe", installer, how);
            bench.user.savePath = bench.folder.filePath(saveAs);
            if (how != Misbehaviour::None)
                writeFile(bench.user.savePath, "an earlier release");
            QSignalSpy progress(bench.updater, &PCheckVersionUpdate::signalDownloadProgress);
            const QStringList files = bench.files();
            bench.updater->checkVersion(false);
            bench.settle({offer(), save, failed + told});
            QCOMPARE(progress.last(), (QVariantList{0, 0}));
            QCOMPARE(bench.saved(), files.isEmpty() ? "" : "an earlier release");
            QCOMPARE(bench.files(), files);
        }
    }

    void checksStandAlone()
    {
        Bench bench;
        bench.user.wantsDownload = false;
        bench.script("/in/");
        bench.updater->checkVersion(false);
        bench.settle({offer()});

        // Nothing of the first check is left in a second one that finds less, and one that is
        // replaced says nothing.
        bench.script("/in/", "404");
        bench.server.script("/out/version.txt", "version=3\nupdatefile=a.exe");
        bench.server.script("/out/", "<p>All</p>");
        bench.updater->checkVersion(true);
        bench.updater->checkVersion(true);
        QVERIFY(!bench.updater->hasInternalReleaseChannelConnection());
        QCOMPARE(bench.updater->GetReadMeFile(), QString());
        bench.settle({offer(), offer(u"3.0.0"_s, {}).remove(u"1 May 2026"_s)});
        QCOMPARE(bench.updater->GetReadMeFile(), u"<p>All</p>"_s);
    }

    void goesAtAnyMoment()
    {
        // Behind a dialog, or in the signal with so many bytes.
        const std::pair<QString, int> moments[] = {{u"Offer"_s, -2},
                                                   {u"Save"_s, -2},
                                                   {u"Question"_s, -2},
                                                   {u"Critical"_s, -2},
                                                   {u"none"_s, -1},
                                                   {u"none"_s, 0},
                                                   {u"none"_s, int(installer.size())}};
        for (const auto& [dialog, received] : moments) {
            Bench bench;
            bench.script("/in/");
            const bool fails = dialog == u"Critical"_s || received == 0;
            bench.server.script("/in/setup.exe", installer,
                                fails ? Misbehaviour::ServerError : Misbehaviour::None);
            bench.updater->setLimits({}, {});
            bench.user.deleteAt(dialog, bench.parent);
            connect(bench.updater, &PCheckVersionUpdate::signalDownloadProgress, bench.parent,
                    [&, moment = received](qint64 now) {
                        if (now == moment)
                            delete bench.parent;
                    });
            bench.updater->checkVersion(false);
            QTRY_VERIFY2(!bench.updater, qPrintable(dialog + QString::number(received)));
            QTRY_VERIFY(!QApplication::activeModalWidget());
            const bool isComplete = dialog == u"Question"_s;
            QCOMPARE(bench.saved(), isComplete ? installer : QByteArray());
            QCOMPARE(bench.files().size(), isComplete ? 1 : 0);
        }
    }

    void changeLogIsShown()
    {
        Bench bench;
        bench.updater->checkChangeLog();
        bench.settle({noLog});

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
        bench.updater->checkVersion(false);
        bench.settle({noLog, offer()});
        QCOMPARE(log, u"2.1"_s);

        for (const auto show :
             {&PCheckVersionUpdate::checkChangeLog, &PCheckVersionUpdate::fetchChangeLog}) {
            (bench.updater->*show)();
            QTRY_VERIFY(bench.parent->findChild<PChangeLogDialog*>());
            const std::unique_ptr<PChangeLogDialog> changeLog(
                bench.parent->findChild<PChangeLogDialog*>());
            QVERIFY(changeLog->isVisible() && changeLog->isModal());
            QCOMPARE(changeLog->toPlainText(), u"2.1"_s);
        }
        QStringList said{noLog, offer()};
        for (const QByteArray& version : {QByteArray("hello"), QByteArray("404")}) {
            bench.script("/in/", version);
            bench.updater->fetchChangeLog();
            bench.settle(said << noLog);
        }
    }
};

QTEST_MAIN(TestPCheckVersionUpdate)
#include "tst_pcheckversionupdate.moc"
