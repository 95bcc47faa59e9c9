// SPDX-License-Identifier: MIT
#include "testsupport.h"
#include "useranswers.h"

#include <CorvelGui/ToolShellHelper>

#include <QDBusConnection>
#include <QDBusContext>
#include <QElapsedTimer>
#include <QProcess>
#include <QUrl>

using CorvelGui::ToolShellHelper;

/// A file manager as it stands on the session bus.
class FileManager : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    QStringList shown;
    bool refuses = false;
    bool hangs = false;

public Q_SLOTS:
    Q_SCRIPTABLE void ShowItems(const QStringList& uris, const QString&)
    {
        shown += uris;
        if (hangs)
            setDelayedReply(true);
        else if (refuses)
            sendErrorReply(QDBusError::Failed, u"no"_s);
    }
};

class TestToolShellHelper : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_bus.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address=1"_s});
        QVERIFY2(m_bus.waitForReadyRead(), "dbus-daemon is needed");
        const QByteArray address = m_bus.readLine().trimmed();
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        QDBusConnection bus =
            QDBusConnection::connectToBus(QString::fromUtf8(address), u"file manager"_s);
        QVERIFY(bus.registerObject(u"/org/freedesktop/FileManager1"_s, &m_manager,
                                   QDBusConnection::ExportScriptableSlots));
        QVERIFY(bus.registerService(u"org.freedesktop.FileManager1"_s));
        writeFile(m_path, {});
    }

    void cleanupTestCase()
    {
        QDBusConnection::disconnectFromBus(u"file manager"_s);
        m_bus.kill();
        m_bus.waitForFinished();
    }

    void filesAreShownInTheirFolder()
    {
        const UserAnswers user;
        const QString uri = QUrl::fromLocalFile(m_path).toString(QUrl::FullyEncoded);
        QVERIFY(show(m_path));
        QCOMPARE(m_manager.shown, QStringList{uri});
        QCOMPARE(user.opened(), QStringList());

        // The folder alone is what remains: without an answer, after a refusal, and of a file that
        // is no longer there.
        const QString folder = QUrl::fromLocalFile(m_folder.path()).toString();
        m_manager.refuses = true;
        QVERIFY(show(m_path));
        m_manager.hangs = true;
        QVERIFY(show(m_path));
        QCOMPARE(m_manager.shown, QStringList(3, uri));
        QVERIFY(show(m_folder.filePath(u"gone"_s)));
        QCOMPARE(m_manager.shown.size(), 3);
        QCOMPARE(user.opened(), QStringList(3, folder));

        QVERIFY(!show(m_folder.filePath(u"none/gone"_s)));
        QCOMPARE(user.opened().size(), 3);
        QVERIFY(!ToolShellHelper::openDocument(m_folder.filePath(u"gone"_s)));
        QVERIFY(ToolShellHelper::openDocument(m_path));
        QCOMPARE(user.opened().last(), QUrl::fromLocalFile(m_path).toString());

        // Nobody is told who is gone.
        auto* gone = new QObject;
        ToolShellHelper::showInFolder(m_path, gone, [](bool) { QFAIL("told"); });
        delete gone;
    }

private:
    /// What is told. The window goes on meanwhile.
    bool show(const QString& path)
    {
        QElapsedTimer sinceCall;
        sinceCall.start();
        std::optional<bool> told;
        QObject context;
        ToolShellHelper::showInFolder(path, &context, [&told](bool shown) { told = shown; });
        if (told || sinceCall.elapsed() > 1'000)
            qWarning("It was waited for");
        [&] {
            QTRY_VERIFY_WITH_TIMEOUT(told, 20'000);
        }();
        return told.value_or(false);
    }

    FileManager m_manager;
    QProcess m_bus;
    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(u"Tor 1 & ü%20.mp4"_s);
};

QTEST_MAIN(TestToolShellHelper)
#include "tst_toolshellhelper.moc"
