// SPDX-License-Identifier: MIT
#include "licencetext.h"
#include "testsupport.h"
#include "useranswers.h"

#include <CorvelGui/AboutInfo7>
#include <CorvelGui/FilterLineEdit>
#include <CorvelGui/Info3rdLicences>
#include <CorvelGui/PSystemInfoWidget>

#include <Hueloft/POrvGuiTheme>

using namespace CorvelGui;

class TestProductInfo : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void aboutShowsWhatThereIs()
    {
        AboutInfo7 about;
        QSignalSpy changes(&about, &AboutInfo7::infoChanged);
        about.setProductName(u"<b>A</b>"_s);
        about.setVersion(u"1.2"_s);
        about.setVersion(u"1.2"_s);
        about.setCopyright(u"© B"_s);
        QCOMPARE(changes.count(), 3);
        QCOMPARE(about.toPlainText(), u"<b>A</b>\nVersion: 1.2\nLook: Light\n© B"_s);
        about.setBuild(u"7"_s);
        QVERIFY(about.toPlainText().contains(u"Build: 7"_s));
        Hueloft::POrvGuiTheme::bPantherTheme = true;
        about.setPalette(Qt::darkGray);
        QVERIFY(about.toPlainText().contains(u"Look: Dark"_s));
        Hueloft::POrvGuiTheme::bPantherTheme = false;

        const UserAnswers user;
        about.addLink(u"Page"_s, QUrl(u"https://example.org/"_s));
        about.addLink(u"Program"_s, QUrl(u"file:///bin/sh"_s));
        about.show();
        for (QLabel* label : about.findChildren<QLabel*>())
            if (label->isVisible())
                Q_EMIT label->linkActivated(label->text().contains(u"Program"_s)
                                                ? u"file:///bin/sh"_s
                                                : label->text().section(u'"', 1, 1));
        QCOMPARE(user.opened(), QStringList{u"https://example.org/"_s});
        about.clearLinks();
        for (const QLabel* label : about.findChildren<QLabel*>())
            QVERIFY(!label->isVisible() || !label->text().contains(u"Page"_s));
    }

    void licencesOfAnyKindAreRead()
    {
        QTemporaryDir folder;
        const auto read = [&folder](const QByteArray& content) {
            return licenceText(writeFile(folder.filePath(u"text"_s), content));
        };
        QCOMPARE(read("a\r\n\xc3\xbc"), u"a\nü"_s);
        QCOMPARE(read("\xa9 a"), u"© a"_s);
        QCOMPARE(read(QByteArray("a\0b", 3)), u"ab"_s);
        for (const auto& [length, lines] : {std::pair(1'000, 1), {1'001, 2}, {2'500, 3}})
            QCOMPARE(read(QByteArray(length, 'x')).split(u'\n').size(), lines);
        const QString large = read(QByteArray("\xc3\xbc\n").repeated(1'000'000));
        QVERIFY(large.size() < 500'000 && large.startsWith(u"ü\n"_s) && large.endsWith(u"\n…"_s));
        QVERIFY(read({}).isNull());
        QVERIFY(licenceText(folder.path()).isNull());
        QVERIFY(licenceText(u"/dev/zero"_s).isNull());
    }

    void licencesAreFilteredAndCopied()
    {
        QTemporaryDir folder;
        const QString file = writeFile(folder.filePath(u"text"_s), "Do what you like.");
        Info3rdLicences licences;
        QSignalSpy changes(&licences, &Info3rdLicences::currentChanged);
        licences.setComponents({{.name = u"Zip"_s, .licence = u"BSD"_s, .textFiles = {file}},
                                {.name = u"App"_s,
                                 .version = u"2"_s,
                                 .licence = u"MIT"_s,
                                 .note = u"By C."_s,
                                 .homepage = QUrl(u"https://a.example"_s),
                                 .textFiles = {u":/missing"_s}}});
        QCOMPARE(
            licences.toPlainText(),
            u"App 2\n\nLicence: MIT\n\nBy C.\n\nhttps://a.example\n\nThe text of the licence is "
            "missing: "_s +
                QDir::toNativeSeparators(u":/missing"_s));
        licences.setFilter(u"bsd"_s);
        QCOMPARE(licences.current(), u"Zip"_s);
        licences.setCurrent(u"App"_s); // is not in the list now
        licences.copy();
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 u"Zip\n\nLicence: BSD\n\nDo what you like."_s);
        for (const auto& [filter, name] :
             {std::pair(u"2"_s, u"App"_s), {u"ZIP"_s, u"Zip"_s}, {u"p"_s, u"Zip"_s}}) {
            licences.setFilter(filter);
            QCOMPARE(licences.current(), name);
        }
        licences.setFilter(u"nothing"_s);
        QCOMPARE(licences.toPlainText() + licences.current(), QString());
        licences.setFilter({});
        QCOMPARE(licences.current(), u"App"_s);
        QCOMPARE(changes.count(), 6);
        licences.setCurrent(u"Zip"_s);
        QCOMPARE(licences.current(), u"Zip"_s);
    }

    void systemIsToldAsText()
    {
        PSystemInfoWidget system;
        QCOMPARE(system.toPlainText(), QString());
        system.show();
        system.copy();
        const QString text = QGuiApplication::clipboard()->text();
        for (const QString& fact :
             {u"\n  Qt: "_s + QString::fromLatin1(qVersion()),
              u"\n  Name: "_s + QSysInfo::prettyProductName(), u", primary"_s, u"\n  Memory: "_s,
              u"\n  Time zone: "_s + QString::fromUtf8(QTimeZone::systemTimeZoneId()) + u" (UTC"_s,
              u"\nNetwork\n"_s})
            QVERIFY2(text.contains(fact), qPrintable(fact + u" in "_s + text));
    }
};

QTEST_MAIN(TestProductInfo)
#include "tst_productinfo.moc"
