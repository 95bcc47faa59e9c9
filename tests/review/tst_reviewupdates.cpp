#include "samplewindow.h"
#include "testsupport.h"
#include "useranswers.h"
#include "whenshown.h"
#include "window/updatemenu.h"

#include <CorvelGui/PChangeLogDialog>

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>

using namespace Qt::StringLiterals;

namespace {

const QString waiting = u"Waiting for the update server"_s;

/// The update server's program, on a free port.
class ServerProgram
{
public:
    explicit ServerProgram(const QStringList& arguments)
    {
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.start(QStringLiteral(UPDATE_SERVER),
                        QStringList{u"--port"_s, u"0"_s, u"--installer-size"_s, u"300000"_s} +
                            arguments);
        const QString last = u"Update queries:"_s;
        while (!m_log.contains(last + u' ') && m_process.waitForReadyRead())
            m_log += QString::fromUtf8(m_process.readAllStandardOutput());
        m_base = m_log.section(last, 1).trimmed();
    }
    ~ServerProgram()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    QString base() const { return m_base; }

private:
    QProcess m_process;
    QString m_log;
    QString m_base;
};

} // namespace

class TestReviewUpdates : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void updatesAreDownloaded_data();
    void updatesAreDownloaded();
    void changeLogIsFetched();
    void requestsAreShown();
};

namespace {

void useServer(const SampleWindow& sample, const QString& base)
{
    sample.window.findChild<Review::UpdateMenu*>()->setServers(
        {.internalChannel = base + u"/internal/"_s,
         .publicServer = base + u'/',
         .queryServer = base});
}

} // namespace

void TestReviewUpdates::initTestCase()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QCoreApplication::setApplicationVersion(u"0.1.0"_s);
}

void TestReviewUpdates::updatesAreDownloaded_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QStringList>("server");
    QTest::addColumn<QStringList>("said");
    const QString byFile = u"Check version file"_s;
    const QString byQuery = u"Ask update server"_s;
    const QStringList downloaded{u"Offer"_s, u"Save"_s, u"Question"_s};
    QTest::newRow("public channel") << byFile << QStringList{} << downloaded;
    QTest::newRow("internal channel") << byFile << QStringList{u"--internal"_s} << downloaded;
    QTest::newRow("query") << byQuery << QStringList{} << downloaded;
    QTest::newRow("nothing new") << byQuery << QStringList{u"--offer"_s, u"0.1.0"_s}
                                 << QStringList{u"Information"_s};
    QTest::newRow("cut") << byQuery << QStringList{u"--misbehave"_s, u"cut"_s}
                         << QStringList{u"Warning"_s};
    QTest::newRow("portal") << byFile << QStringList{u"--misbehave"_s, u"portal"_s}
                            << QStringList{u"Critical"_s};
}

void TestReviewUpdates::updatesAreDownloaded()
{
    QFETCH(QString, action);
    QFETCH(QStringList, server);
    QFETCH(QStringList, said);
    const ServerProgram program(server);
    QVERIFY2(program.base().startsWith(u"http://127.0.0.1:"_s), qPrintable(program.base()));
    const SampleWindow sample(u"UTC"_s);
    useServer(sample, program.base());
    const QTemporaryDir folder;
    UserAnswers user;
    user.savePath = folder.filePath(u"setup.exe"_s);
    sample.action(action)->trigger();

    const auto kinds = [&user] {
        QStringList result;
        for (const QString& line : user.said())
            result.append(line.section(u':', 0, 0));
        return result;
    };
    QTRY_COMPARE(kinds(), said);
    QTRY_VERIFY(!QApplication::activeModalWidget());
    QCOMPARE(kinds(), said);
    const QFileInfo installer(user.savePath);
    QCOMPARE(installer.size(), said.contains(u"Save"_s) ? 300'000 : 0);
    QTRY_VERIFY(!sample.withText<QLabel>(waiting)->isVisible());
}

void TestReviewUpdates::changeLogIsFetched()
{
    const ServerProgram program({});
    const SampleWindow sample(u"UTC"_s);
    useServer(sample, program.base());
    for (const bool again : {false, true}) {
        QString notes;
        whenShown<CorvelGui::PChangeLogDialog>(this, [&](CorvelGui::PChangeLogDialog& dialog) {
            notes = dialog.findChild<QTextEdit*>()->toPlainText();
            dialog.close();
        });
        sample.action(u"Show change log"_s)->trigger();
        QTRY_VERIFY2(!notes.isEmpty(), again ? "once more" : "before a check");
    }
}

void TestReviewUpdates::requestsAreShown()
{
    const ServerProgram program({u"--misbehave"_s, u"never"_s});
    const SampleWindow sample(u"UTC"_s);
    useServer(sample, program.base());
    for (const QString& name :
         {u"Check version file"_s, u"Show change log"_s, u"Ask update server"_s}) {
        sample.action(name)->trigger();
        QTRY_VERIFY(sample.withText<QLabel>(waiting)->isVisible());
        QVERIFY(!sample.action(name)->isEnabled());
        useServer(sample, program.base() + name.left(1)); // gives up
        QVERIFY(!sample.withText<QLabel>(waiting)->isVisible());
        useServer(sample, program.base());
    }
}

QTEST_MAIN(TestReviewUpdates)
#include "tst_reviewupdates.moc"
