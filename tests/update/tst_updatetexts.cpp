// SPDX-License-Identifier: MIT
#include "installerpath.h"
#include "testsupport.h"
#include "versionfile.h"

#include <QStandardPaths>

using namespace CorvelGui;

class TestUpdateTexts : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void versionsAreRead()
    {
        const std::pair<const char*, const char*> rows[] = {
            {"2.1.0.5", "2.1.0.5"},
            {"1.10", "1.10.0.0"},
            {" 3 ", "3.0.0.0"},
            {"2.1.0.5-beta", "2.1.0.5"},
            {"2..5", "2.0.0.0"},
            {"2.x.5", "2.0.0.0"},
            {"1.2.3.4.5", "1.2.3.4"},
            {"-1.+2", "-1.2.0.0"},
            {"99999999999.4294967296", "2147483647.2147483647.0.0"},
            {"-99999999999", "-2147483648.0.0.0"},
            {"", "none"},
            {".1", "none"},
            {"v2.1", "none"},
            {"\u0661.\u0662", "none"}};
        for (const auto& [text, shown] : rows) {
            const std::optional<ReleaseVersion> version =
                ReleaseVersion::parse(QString::fromUtf8(text));
            QCOMPARE(version ? version->text(true) : u"none"_s, QString::fromUtf8(shown));
        }
    }

    void versionsAreOrdered()
    {
        const QStringList ascending{u"-1"_s,       u"0.9.9.9"_s, u"1.9"_s,     u"1.10"_s,
                                    u"1.10.0.1"_s, u"1.10.1"_s,  u"2.1.0.5"_s, u"99999999999"_s};
        for (qsizetype i = 0; i + 1 < ascending.size(); ++i)
            QVERIFY2(*ReleaseVersion::parse(ascending[i]) <
                         *ReleaseVersion::parse(ascending[i + 1]),
                     qPrintable(ascending[i]));
        QVERIFY(ReleaseVersion::parse(u"2.1"_s) == ReleaseVersion::parse(u"2.1.0.0"_s));
        QCOMPARE(ReleaseVersion::parse(u"2.1.0.5"_s)->text(false), u"2.1.0"_s);
    }

    void versionFilesAreRead()
    {
        const std::pair<QByteArray, QByteArray> rows[] = {
            {"version=2.1.0.5\nupdatefile= Setup 2.exe \nreadmefile=notes.html\nreleasedate=1 "
             "May\n",
             "2.1.0.5|Setup 2.exe|notes.html|1 May"},
            {"updatefile=a.exe\nversion=1", "1.0.0.0|a.exe||"},
            {"version=1.2\r\nupdatefile=a.exe\r\n", "1.2.0.0|a.exe||"},
            {"\xef\xbb\xbfversion=1.2\nupdatefile=a.exe", "1.2.0.0|a.exe||"},
            {"version=1\nupdatefile=a\nversion=2\nupdatefile=b", "2.0.0.0|b||"},
            {"version=1\nupdatefile=a\nupdatefile=b=c", "1.0.0.0|a||"},
            {"hello\n\n=\nversion=1\nupdatefile=a\nmd5=0", "1.0.0.0|a||"},
            {"version=1\nupdatefile=\xff"
             "a\nreleasedate=\xc3",
             "1.0.0.0|\ufffd"
             "a||\ufffd"},
            {QByteArray("x\0=1\nversion=1\nupdatefile=a", 27), "1.0.0.0|a||"},
            {"version =2.1.0.5\nupdatefile=a", "none"},
            {"Version=2.1.0.5\nupdatefile=a", "none"},
            {"version=2.1.0.5\nupdatefile=  ", "none"},
            {"updatefile=a", "none"},
            {"version=soon\nupdatefile=a", "none"},
            {"<html><a href=\"x?version=9&updatefile=a\">Log in</a></html>", "none"},
            {"version=1\nupdatefile=a\nreleasedate=" + QByteArray(1 << 20, 'x'),
             "1.0.0.0|a||" + QByteArray(100, 'x')},
            {"version=1\nupdatefile=a\nreleasedate=" + QByteArray(99, 'x') + "\xf0\x9f\x98\x80",
             "1.0.0.0|a||" + QByteArray(99, 'x')},
        };
        for (const auto& [content, read] : rows) {
            const std::optional<VersionFile> file = VersionFile::parse(content);
            const QStringList texts = file ? QStringList{file->version.text(true), file->updateFile,
                                                         file->readmeFile, file->releaseDate}
                                           : QStringList{u"none"_s};
            QCOMPARE(texts.join(u'|'), QString::fromUtf8(read));
        }
    }

    void serverNamesBecomeFileNames()
    {
        const std::pair<QString, QString> rows[] = {
            {u"Setup 2.1 (x64).exe"_s, u"Setup 2.1 (x64).exe"_s},
            {u"../../etc/passwd"_s, u"passwd"_s},
            {u"C:\\Windows\\system32\\cmd.exe"_s, u"cmd.exe"_s},
            {u"a/b\\c.exe"_s, u"c.exe"_s},
            {u"folder/"_s, u"update"_s},
            {u"a/nul.exe"_s, u"_nul.exe"_s}};
        const QString folder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
        for (const auto& [serverName, fileName] : rows) {
            QCOMPARE(suggestedInstallerPath(serverName),
                     QDir::toNativeSeparators(folder + u'/' + fileName));
        }
    }
};

QTEST_GUILESS_MAIN(TestUpdateTexts)
#include "tst_updatetexts.moc"
