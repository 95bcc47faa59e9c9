// SPDX-License-Identifier: MIT
#include "testsupport.h"
#include "updatebench.h"

#include <CorvelGui/AppUpdater>
#include <CorvelGui/AppUpdaterDialog>

#include <Corvel/FileDownloader>

#include <QJsonDocument>
#include <QJsonObject>
#include <QProgressDialog>

using namespace CorvelGui;
using Corvel::FileDownloader;
using LocalHttp::Answer;
using LocalHttp::Misbehaviour;

namespace {

const QString save = u"Save: Save Software: setup.exe"_s;
const QString question = u"Question: Download finished: Software Update download finished "
                         "successfully.\nOpen download location?"_s;
const QString downloadError = u"Warning: Error: Error during download of Software Update:\n\n"_s;
const QString checkError = u"Warning: Error: Error while checking for Software Updates:\n"_s;

const QJsonObject nothing{{u"updateAvailable"_s, false}};
const QJsonObject release{{u"updateAvailable"_s, true},
                          {u"softwareId"_s, 4711},
                          {u"newVersion"_s, u"2.1"_s},
                          {u"releaseNotesUrl"_s, u"https://example.org/notes"_s},
                          {u"fileName"_s, u"folder/setup.exe"_s},
                          {u"size"_s, installer.size()},
                          {u"releaseDate"_s, u"2026-05-01T10:00:00Z"_s}};

QString offer()
{
    return u"Offer: Update Available: Client\n\nCurrent Version: 2.0.9\nNew Version "
           "Available: 2.1\nRelease Date: %1\n\nWould you like to download this version?"_s.arg(
               QLocale::system().toString(QDate(2026, 5, 1), QLocale::ShortFormat));
}

struct Bench : UpdateBench<AppUpdater>
{
    explicit Bench(const QJsonObject& answer = release)
    {
        server.script("/update", QJsonDocument(answer).toJson());
        server.script("/software", installer);
        updater = new AppUpdater(u"Client"_s, server.base(), parent);
    }
    void check(bool showResult = false)
    {
        updater->checkForUpdates(u"a key"_s, QVersionNumber(2, 0, 9), showResult);
        QVERIFY(updater->isBusy());
    }
};

} // namespace

class TestAppUpdater : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void endsWithOneMessage()
    {
        const QString none =
            u"Information: No Updates Available: Your version of Client is already "
            "up-to-date."_s;
        const QString closed = u"The connection was closed too early."_s;
        const QString noStart = u"Warning: Error: Unable to start download of Software Update."_s;
        // The third is the path of an answer that is not complete.
        const std::tuple<QJsonObject, bool, QByteArray, QString, QStringList> rows[] = {
            {nothing, true, {}, u"a"_s, {none}},
            {nothing, false, {}, u"a"_s, {}},
            {release, true, {}, {}, {offer(), save}},
            {release, false, {}, u"a"_s, {offer(), save, question}},
            {release, true, {}, u"nowhere/a"_s, {offer(), save, noStart}},
            {release, false, "/update", u"a"_s, {checkError + closed}},
            {release, false, "/software", u"a"_s, {offer(), save, downloadError + closed}}};
        for (const auto& [answer, showResult, cut, saveAs, said] : rows) {
            Bench bench(answer);
            bench.user.savePath = saveAs.isEmpty() ? saveAs : bench.folder.filePath(saveAs);
            bench.user.opensFolder = true;
            if (!cut.isEmpty())
                bench.server.script(cut, installer, Misbehaviour::Cut);
            bench.check(showResult);
            bench.settle(said);
            const bool downloads = said.contains(question);
            QCOMPARE(bench.server.targets().first(), "/update?key=a%20key&version=2.0.9");
            QCOMPARE(bench.server.targets().contains("/software?id=4711"),
                     downloads || cut == "/software");
            QCOMPARE(bench.saved(), downloads ? installer : QByteArray());
            QCOMPARE(bench.files().size(), downloads ? 1 : 0);
            const QString folder = QUrl::fromLocalFile(bench.folder.path()).toString();
            QCOMPARE(bench.user.opened().join(u' '), downloads ? folder : QString());
            QTRY_VERIFY(!bench.parent->findChild<QProgressDialog*>());
        }
    }

    void progressIsShownUntilCancelled()
    {
        // The length announced by the transfer, the size of the release, and what one byte is of
        // them.
        for (const auto& [announced, size, value] :
             {std::tuple(200, 10, 0), {-1, 10, 10}, {-1, 1, 100}, {-1, 0, 0}}) {
            QJsonObject sized = release;
            sized.insert(u"size"_s, size);
            Bench bench(sized);
            Answer slow = Answer::ok("xxxxxxxxxx");
            slow.announcedLength = announced;
            slow.pace = Answer::Pace::Slow;
            bench.server.script("/software", slow);
            QSignalSpy progressed(bench.updater->findChild<FileDownloader*>(),
                                  &FileDownloader::downloadProgress);
            bench.check();
            QTRY_VERIFY(!progressed.isEmpty());
            const auto* progress = bench.parent->findChild<QProgressDialog*>();
            QTRY_VERIFY(progress->isVisible());
            QCOMPARE(progress->labelText(), u"Downloading Software Update..."_s);
            QCOMPARE(progress->value(), value);
            progress->findChild<QPushButton*>()->click();
            bench.settle({offer(), save, downloadError + u"The download was cancelled."_s});
            QVERIFY(bench.files().isEmpty());
        }
    }

    void goesAtAnyMoment()
    {
        for (const QString& moment :
             {u"Offer"_s, u"Save"_s, u"Question"_s, u"Warning"_s, u"Information"_s}) {
            Bench bench(moment == u"Information"_s ? nothing : release);
            if (moment == u"Warning"_s)
                bench.server.script("/software", installer, Misbehaviour::Cut);
            bench.user.deleteAt(moment, bench.parent);
            bench.check(true);
            QTRY_VERIFY2(!bench.updater, qPrintable(moment));
            QTRY_VERIFY(!QApplication::activeModalWidget());
            QCOMPARE(bench.saved(), moment == u"Question"_s ? installer : QByteArray());
        }
    }

    void notesAreOpenedInTheBrowserOnly()
    {
        const UserAnswers user;
        const QString web = u"https://example.org/notes?a=1"_s;
        for (const QString& address :
             {web, QString(), u"http://"_s, u"file:///C:/Windows/system32/calc.exe"_s}) {
            AppUpdaterDialog dialog(u"Client"_s, QVersionNumber(1), QVersionNumber(2), address, {});
            dialog.show();
            auto* notes = dialog.findChild<QPushButton*>(u"buttonReleaseNotes"_s);
            QCOMPARE(notes->isVisible(), address == web);
            if (notes->isVisible())
                notes->click();
        }
        QCOMPARE(user.opened(), QStringList{web});
    }
};

QTEST_MAIN(TestAppUpdater)
#include "tst_appupdater.moc"
