// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include <CorvelGui/ToolShellHelper>

using CorvelGui::ToolShellHelper;

/// The shell starts this program, as the handler of an ending of the test's own: it then writes the
/// name of the file that it was given into the file "opened" beside it.
class TestToolShellHelper : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void startsTheRegisteredProgram()
    {
        const QTemporaryDir directory;
        const QString file =
            QDir::toNativeSeparators(directory.filePath(u"Liste für Büro.corvelguitest"_s));
        QFile document(file);
        QVERIFY(document.open(QIODevice::WriteOnly));
        document.close();
        QVERIFY(!ToolShellHelper::openDocument(file)); // nobody opens it yet

        QSettings classes(u"HKEY_CLASSES_ROOT"_s, QSettings::NativeFormat);
        classes.setValue(u".corvelguitest/."_s, u"CorvelGuiTest"_s);
        classes.setValue(
            u"CorvelGuiTest/shell/open/command/."_s,
            u"\"%1\" --opened \"%2\""_s.arg(
                QDir::toNativeSeparators(QCoreApplication::applicationFilePath()), u"%1"_s));
        classes.sync();
        const bool opened = ToolShellHelper::openDocument(file);
        QFile record(directory.filePath(u"opened"_s));
        QTRY_VERIFY_WITH_TIMEOUT(!opened || record.size() > 0, 20'000);
        classes.remove(u".corvelguitest"_s);
        classes.remove(u"CorvelGuiTest"_s);
        QVERIFY(opened);
        QVERIFY(record.open(QIODevice::ReadOnly));
        QCOMPARE(QString::fromUtf8(record.readAll()), file);
    }
};

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"--opened"_s) {
        QFile record(QFileInfo(arguments.value(2)).dir().filePath(u"opened"_s));
        return record.open(QIODevice::WriteOnly) && record.write(arguments.value(2).toUtf8()) > 0
                   ? 0
                   : 1;
    }
    TestToolShellHelper test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_toolshellhelper_win.moc"
