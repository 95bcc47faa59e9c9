#include "scriptedserver.h"
#include "testsupport.h"
#include "useranswers.h"

#include <CorvelGui/AppUpdater>
#include <CorvelGui/AppUpdaterDialog>

#include <Corvel/FileDownloader>

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProgressDialog>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace CorvelGui;
using Corvel::FileDownloader;
using namespace Qt::StringLiterals;
using LocalHttp::Answer;
using LocalHttp::Misbehaviour;

namespace {

const QByteArray installer = QByteArray("installer ").repeated(5'000);
const QString offer = u"Offer: Update Available: Client\n\nCurrent Version: 2.0.9\nNew Version "
                      "Available: 2.1\nRelease Date: %1\n\nWould you like to download this "
                      "version?"_s;
const QString save = u"Save: Save Software: setup.exe"_s;
const QString question = u"Question: Download finished: Software Update download finished "
                         "successfully.\nOpen download location?"_s;
const QString downloadError = u"Warning: Error: Error during download of Software Update:\n\n"_s;
const QString checkError = u"Warning: Error: Error while checking for Software Updates:\n"_s;

QJsonObject release()
{
    return {{u"updateAvailable"_s, true},
            {u"softwareId"_s, 4711},
            {u"newVersion"_s, u"2.1"_s},
            {u"releaseNotesUrl"_s, u"https://example.org/notes"_s},
            {u"fileName"_s, u"folder/setup.exe"_s},
            {u"size"_s, installer.size()},
            {u"releaseDate"_s, u"2026-05-01T10:00:00Z"_s}};
}

QString offered()
{
    return offer.arg(QLocale::system().toString(QDate(2026, 5, 1), QLocale::ShortFormat));
}

struct Bench
{
    explicit Bench(const QJsonObject& answer = release())
    {
        user.savePath = folder.filePath(u"saved.exe"_s);
        server.script("/update", QJsonDocument(answer).toJson());
        server.script("/software", installer);
        updater = new AppUpdater(u"Client"_s, server.base(), &parent);
    }

    void check(bool showResult)
    {
        updater->checkForUpdates(u"a key"_s, QVersionNumber(2, 0, 9), showResult);
        QVERIFY(updater->isBusy());
    }
    QByteArray saved() const
    {
        QFile file(folder.filePath(u"saved.exe"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder;
    ScriptedServer server;
    UserAnswers user;
    QWidget parent;
    QPointer<AppUpdater> updater;
};

void settle(Bench& bench, const QStringList& said)
{
    QTRY_COMPARE(bench.user.said(), said);
    QTRY_VERIFY(!bench.updater || !bench.updater->isBusy());
    QTRY_VERIFY(!QApplication::activeModalWidget());
    QCoreApplication::processEvents();
    QCOMPARE(bench.user.said(), said);
}

} // namespace

class TestAppUpdater : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void answersAreTold_data();
    void answersAreTold();
    void installerIsDownloaded();
    void faultsEndWithOneMessage_data();
    void faultsEndWithOneMessage();
    void progressIsShown();
    void cancelEndsTheDownload();
    void goesAtAnyMoment_data();
    void goesAtAnyMoment();
    void notesAreOpenedInTheBrowserOnly();

public Q_SLOTS:
    void open(const QUrl& url) { m_opened.append(url); }

private:
    QList<QUrl> m_opened;
};

void TestAppUpdater::answersAreTold_data()
{
    QTest::addColumn<QJsonObject>("answer");
    QTest::addColumn<bool>("showResult");
    QTest::addColumn<QString>("savePath");
    QTest::addColumn<QStringList>("said");
    const QString none = u"Information: No Updates Available: Your version of Client is already "
                         "up-to-date."_s;
    const QJsonObject nothing{{u"updateAvailable"_s, false}};
    QTest::newRow("none, told") << nothing << true << u"a"_s << QStringList{none};
    QTest::newRow("none, silent") << nothing << false << u"a"_s << QStringList{};
    QTest::newRow("no file chosen")
        << release() << true << QString() << QStringList{offered(), save};
    QTest::newRow("cannot start")
        << release() << true << u"setup.exe"_s
        << QStringList{offered(), save,
                       u"Warning: Error: Unable to start download of Software Update."_s};
    QJsonObject undated = release();
    undated.remove(u"releaseDate"_s);
    QTest::newRow("no date") << undated << false << u"a"_s
                             << QStringList{checkError +
                                            u"The server's answer has no valid “releaseDate”."_s};
}

void TestAppUpdater::answersAreTold()
{
    QFETCH(QJsonObject, answer);
    QFETCH(bool, showResult);
    QFETCH(QStringList, said);
    Bench bench(answer);
    QFETCH(QString, savePath);
    bench.user.savePath = savePath.isEmpty() ? QString() : bench.folder.filePath(savePath);
    // What could be written when the user chose it can be a folder a moment later.
    bench.user.before = [this](const QDialog& dialog) {
        if (const auto* files = qobject_cast<const QFileDialog*>(&dialog))
            connect(files, &QFileDialog::fileSelected, this,
                    [](const QString& file) { QVERIFY(QDir().mkdir(file)); });
    };
    bench.check(showResult);
    settle(bench, said);
    QCOMPARE(bench.server.targets(), QByteArrayList{"/update?key=a%20key&version=2.0.9"});
    QVERIFY(!bench.parent.findChild<QProgressDialog*>());
}

void TestAppUpdater::installerIsDownloaded()
{
    QDesktopServices::setUrlHandler(u"file"_s, this, "open");
    Bench bench;
    bench.user.opensFolder = true;
    bench.check(false);
    settle(bench, {offered(), save, question});
    QCOMPARE(bench.server.targets().last(), QByteArray("/software?id=4711"));
    QCOMPARE(bench.saved(), installer);
    QCOMPARE(m_opened, QList<QUrl>{QUrl::fromLocalFile(bench.folder.path())});
    QTRY_VERIFY(!bench.parent.findChild<QProgressDialog*>());
    QDesktopServices::unsetUrlHandler(u"file"_s);
}

void TestAppUpdater::faultsEndWithOneMessage_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<Misbehaviour>("how");
    for (const char* path : {"/update", "/software"}) {
        for (const char* name : {"cut", "length", "404", "500", "redirect-loop", "redirect-file"})
            QTest::addRow("%s %s", path, name)
                << QByteArray(path) << *LocalHttp::misbehaviourNamed(QString::fromLatin1(name));
    }
    QTest::newRow("a portal") << QByteArray("/update") << Misbehaviour::Portal;
    QTest::newRow("endless answer") << QByteArray("/update") << Misbehaviour::Endless;
}

void TestAppUpdater::faultsEndWithOneMessage()
{
    QFETCH(QByteArray, path);
    QFETCH(Misbehaviour, how);
    Bench bench;
    bench.server.script(path, path == "/update" ? QJsonDocument(release()).toJson() : installer,
                        how);
    bench.check(false);
    const bool isQuery = path == "/update";
    QTRY_COMPARE(bench.user.said().size(), isQuery ? 1 : 3);
    const QString last = bench.user.said().last();
    const QString begin = isQuery ? checkError : downloadError;
    QVERIFY2(last.startsWith(begin) && last.size() > begin.size(), qPrintable(last));
    settle(bench, isQuery ? QStringList{last} : QStringList{offered(), save, last});
    QVERIFY(QDir(bench.folder.path()).isEmpty());
    QTRY_VERIFY(!bench.parent.findChild<QProgressDialog*>());
}

void TestAppUpdater::progressIsShown()
{
    // The length announced by the transfer, the size of the release, and what one byte is of them.
    for (const auto& [announced, size, value] :
         {std::tuple(200, 10, 0), {-1, 10, 10}, {-1, 1, 100}, {-1, 0, 0}}) {
        QJsonObject answer = release();
        answer[u"size"_s] = size;
        Bench bench(answer);
        Answer slow = Answer::ok("xxxxxxxxxx");
        slow.announcedLength = announced;
        slow.pace = Answer::Pace::Slow;
        bench.server.script("/software", slow);
        QSignalSpy progressed(bench.updater->findChild<FileDownloader*>(),
                              &FileDownloader::downloadProgress);
        bench.check(false);
        QTRY_VERIFY(bench.parent.findChild<QProgressDialog*>());
        const auto* progress = bench.parent.findChild<QProgressDialog*>();
        QTRY_VERIFY(progress->isVisible());
        QCOMPARE(progress->labelText(), u"Downloading Software Update..."_s);
        QTRY_VERIFY(!progressed.isEmpty());
        QCOMPARE(progress->value(), value);
        QVERIFY(progress->isVisible());
    }
}

void TestAppUpdater::cancelEndsTheDownload()
{
    Bench bench;
    bench.server.script("/software", installer, Misbehaviour::Slow);
    bench.check(false);
    QTRY_VERIFY(bench.parent.findChild<QProgressDialog*>());
    bench.parent.findChild<QProgressDialog*>()->findChild<QPushButton*>()->click();
    QTRY_COMPARE(bench.user.said().size(), 3);
    settle(bench, {offered(), save, bench.user.said().last()});
    QVERIFY(bench.user.said().last().startsWith(downloadError));
    QVERIFY(QDir(bench.folder.path()).isEmpty());
}

void TestAppUpdater::goesAtAnyMoment_data()
{
    QTest::addColumn<QString>("moment");
    for (const char* moment : {"Offer", "Save", "Question", "Warning", "Information"})
        QTest::newRow(moment) << QString::fromLatin1(moment);
}

void TestAppUpdater::goesAtAnyMoment()
{
    QFETCH(QString, moment);
    Bench bench(moment == u"Information"_s ? QJsonObject{{u"updateAvailable"_s, false}}
                                           : release());
    auto* parent = new QWidget;
    bench.updater->setParent(parent);
    if (moment == u"Warning"_s)
        bench.server.script("/software", installer, Misbehaviour::Cut);
    bench.user.before = [&](const QDialog&) {
        if (bench.user.said().last().startsWith(moment))
            delete parent;
    };
    bench.check(true);
    QTRY_VERIFY(!bench.updater);
    QTRY_VERIFY(!QApplication::activeModalWidget());
    QCOMPARE(bench.saved(), moment == u"Question"_s ? installer : QByteArray());
}

void TestAppUpdater::notesAreOpenedInTheBrowserOnly()
{
    QDesktopServices::setUrlHandler(u"https"_s, this, "open");
    m_opened.clear();
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
    QCOMPARE(m_opened, QList<QUrl>{QUrl(web)});
    QDesktopServices::unsetUrlHandler(u"https"_s);
}

QTEST_MAIN(TestAppUpdater)
#include "tst_appupdater.moc"
