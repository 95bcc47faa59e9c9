// SPDX-License-Identifier: MIT
#include "samplewindow.h"
#include "testsupport.h"
#include "useranswers.h"
#include "window/updatemenu.h"

#include <CorvelGui/PChangeLogDialog>

#include <QProcess>
#include <QTextEdit>

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

void useServer(const SampleWindow& sample, const QString& base)
{
    sample.window.findChild<Review::UpdateMenu*>()->setServers(
        {.internalChannel = base + u"/internal/"_s,
         .publicServer = base + u'/',
         .queryServer = base});
}

} // namespace

class TestReviewUpdates : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setApplicationVersion(u"0.1.0"_s); }

    void updatesAreDownloaded()
    {
        const QString byFile = u"Check version file"_s;
        const QString byQuery = u"Ask update server"_s;
        // What is asked, how the server is started, and the dialogs that follow.
        const std::tuple<QString, QString, QString> rows[] = {
            {byFile, {}, u"Offer Save Question"_s},
            {byFile, u"--internal"_s, u"Offer Save Question"_s},
            {byQuery, {}, u"Offer Save Question"_s},
            {byQuery, u"--offer 0.1.0"_s, u"Information"_s},
            {byQuery, u"--misbehave cut"_s, u"Warning"_s},
            {byFile, u"--misbehave portal"_s, u"Critical"_s}};
        for (const auto& [action, server, said] : rows) {
            const ServerProgram program(server.split(u' ', Qt::SkipEmptyParts));
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
                return result.join(u' ');
            };
            QTRY_COMPARE(kinds(), said);
            QTRY_VERIFY(!QApplication::activeModalWidget());
            QCOMPARE(kinds(), said);
            QCOMPARE(QFileInfo(user.savePath).size(), said.contains(u"Save"_s) ? 300'000 : 0);
            QTRY_VERIFY(!sample.withText<QLabel>(waiting)->isVisible());
        }
    }

    void changeLogIsFetched()
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
            QAction* show = sample.action(u"Show change log"_s);
            QTRY_VERIFY(show->isEnabled()); // told later than the first one's dialog is shown
            show->trigger();
            QTRY_VERIFY2(!notes.isEmpty(), again ? "once more" : "before a check");
        }
    }

    void requestsAreShown()
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
};

QTEST_MAIN(TestReviewUpdates)
#include "tst_reviewupdates.moc"
