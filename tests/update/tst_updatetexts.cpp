#include "installerpath.h"
#include "testsupport.h"
#include "versionfile.h"

#include <QStandardPaths>
#include <QTest>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

class TestUpdateTexts : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void versionsAreRead_data();
    void versionsAreRead();
    void versionsAreOrdered();
    void versionFilesAreRead_data();
    void versionFilesAreRead();
    void hugeVersionFilesTakeNoTime();
    void serverNamesBecomeFileNames_data();
    void serverNamesBecomeFileNames();
};

void TestUpdateTexts::versionsAreRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char* text, const char* shown) {
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(shown);
    };
    row("2.1.0.5", "2.1.0.5");
    row("1.10", "1.10.0.0");
    row(" 3 ", "3.0.0.0");
    row("2.1.0.5-beta", "2.1.0.5");
    row("2..5", "2.0.0.0");
    row("2.x.5", "2.0.0.0");
    row("1.2.3.4.5", "1.2.3.4");
    row("-1.+2", "-1.2.0.0");
    row("99999999999.4294967296", "2147483647.2147483647.0.0");
    row("-99999999999", "-2147483648.0.0.0");
    row("", "none");
    row(".1", "none");
    row("v2.1", "none");
    row("\u0661.\u0662", "none");
}

void TestUpdateTexts::versionsAreRead()
{
    QFETCH(QString, text);
    const std::optional<ReleaseVersion> version = ReleaseVersion::parse(text);
    QTEST(version ? version->text(true) : u"none"_s, "shown");
}

void TestUpdateTexts::versionsAreOrdered()
{
    const QStringList ascending{u"-1"_s,       u"0.9.9.9"_s, u"1.9"_s,     u"1.10"_s,
                                u"1.10.0.1"_s, u"1.10.1"_s,  u"2.1.0.5"_s, u"99999999999"_s};
    for (qsizetype i = 0; i + 1 < ascending.size(); ++i)
        QVERIFY2(*ReleaseVersion::parse(ascending[i]) < *ReleaseVersion::parse(ascending[i + 1]),
                 qPrintable(ascending[i]));
    QVERIFY(ReleaseVersion::parse(u"2.1"_s) == ReleaseVersion::parse(u"2.1.0.0"_s));
    QCOMPARE(ReleaseVersion::parse(u"2.1.0.5"_s)->text(false), u"2.1.0"_s);
}

void TestUpdateTexts::versionFilesAreRead_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("read");
    const auto row = [](const char* name, const QByteArray& content, const char* read) {
        QTest::newRow(name) << content << QString::fromUtf8(read);
    };
    row("all keys",
        "version=2.1.0.5\nupdatefile= Setup 2.exe \nreadmefile=notes.html\nreleasedate=1 May\n",
        "2.1.0.5|Setup 2.exe|notes.html|1 May");
    row("only what is needed, no line end", "updatefile=a.exe\nversion=1", "1.0.0.0|a.exe||");
    row("carriage returns", "version=1.2\r\nupdatefile=a.exe\r\n", "1.2.0.0|a.exe||");
    row("byte order mark", "\xef\xbb\xbfversion=1.2\nupdatefile=a.exe", "1.2.0.0|a.exe||");
    row("last of doubled keys", "version=1\nupdatefile=a\nversion=2\nupdatefile=b", "2.0.0.0|b||");
    row("value with =", "version=1\nupdatefile=a\nupdatefile=b=c", "1.0.0.0|a||");
    row("unknown keys and lines", "hello\n\n=\nversion=1\nupdatefile=a\nmd5=0", "1.0.0.0|a||");
    row("wrong UTF-8",
        "version=1\nupdatefile=\xff"
        "a\nreleasedate=\xc3",
        "1.0.0.0|\ufffd"
        "a||\ufffd");
    row("long date", "version=1\nupdatefile=a\nreleasedate=" + QByteArray(1 << 20, 'x'),
        ("1.0.0.0|a||" + QByteArray(100, 'x')).constData());
    row("NUL in a line", QByteArray("x\0=1\nversion=1\nupdatefile=a", 27), "1.0.0.0|a||");
    row("key with a blank", "version =2.1.0.5\nupdatefile=a", "none");
    row("key in capitals", "Version=2.1.0.5\nupdatefile=a", "none");
    row("no update file", "version=2.1.0.5\nreadmefile=notes.html", "none");
    row("empty update file", "version=2.1.0.5\nupdatefile=  ", "none");
    row("no version", "updatefile=a", "none");
    row("version without a number", "version=soon\nupdatefile=a", "none");
    row("empty", "", "none");
    row("a portal's page", "<html><a href=\"x?version=9&updatefile=a\">Log in</a></html>", "none");
}

void TestUpdateTexts::versionFilesAreRead()
{
    QFETCH(QByteArray, content);
    const std::optional<VersionFile> file = VersionFile::parse(content);
    const QString read = file ? QStringList{file->version.text(true), file->updateFile,
                                            file->readmeFile, file->releaseDate}
                                    .join(u'|')
                              : u"none"_s;
    QTEST(read, "read");
}

void TestUpdateTexts::hugeVersionFilesTakeNoTime()
{
    const QByteArray line(1 << 20, '=');
    const QByteArray lines = QByteArray("a=b\n").repeated(1 << 18);
    const QByteArray good = "\nversion=1\nupdatefile=a";
    QElapsedTimer timer;
    timer.start();
    QVERIFY(VersionFile::parse(line + good));
    QVERIFY(VersionFile::parse(lines + good));
    QVERIFY(VersionFile::parse("version=1" + line.chopped(1).replace('=', '7') + good));
    QVERIFY2(timer.elapsed() < 5'000, "the time must not grow with the square of the length");
}

void TestUpdateTexts::serverNamesBecomeFileNames_data()
{
    QTest::addColumn<QString>("serverName");
    QTest::addColumn<QString>("fileName");
    const auto row = [](const QString& serverName, const QString& fileName) {
        QTest::newRow(qPrintable(serverName.left(40))) << serverName << fileName;
    };
    row(u"Setup 2.1 (x64).exe"_s, u"Setup 2.1 (x64).exe"_s);
    row(u"Prüfer.exe"_s, u"Prüfer.exe"_s);
    row(u"../../etc/passwd"_s, u"passwd"_s);
    row(u"C:\\Windows\\system32\\cmd.exe"_s, u"cmd.exe"_s);
    row(u"a/b\\c.exe"_s, u"c.exe"_s);
    row(u"folder/"_s, u"update"_s);
    row(u".."_s, u"update"_s);
    row(u".bashrc"_s, u"bashrc"_s);
    row(u"a\n\t\0b.exe"_s, u"ab.exe"_s);
    row(u"a.exe:stream<>\"|?*"_s, u"a.exestream"_s);
    row(u"gpj\u202eexe.exe"_s, u"gpjexe.exe"_s);
    row(u"setup.exe . ."_s, u"setup.exe"_s);
    for (const QString& device :
         {u"CON"_s, u"nul.exe"_s, u"Com1.tar.gz"_s, u"lpt\u00b2.exe"_s, u"aux .exe"_s, u"conin$"_s})
        row(device, u'_' + device);
    row(u"console.exe"_s, u"console.exe"_s);
    row(QString(500, u'a') + u".exe"_s, QString(116, u'a') + u".exe"_s);
    row(u"a."_s + QString(500, u'b'), u"a."_s + QString(118, u'b'));
}

void TestUpdateTexts::serverNamesBecomeFileNames()
{
    QFETCH(QString, serverName);
    QFETCH(QString, fileName);
    QCOMPARE(safeFileName(serverName), fileName);
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    QCOMPARE(suggestedInstallerPath(serverName),
             QDir::toNativeSeparators(folder + u'/' + fileName));
}

QTEST_GUILESS_MAIN(TestUpdateTexts)
#include "tst_updatetexts.moc"
