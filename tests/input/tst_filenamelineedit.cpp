// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include "input/filenamerules.h"

#include <CorvelGui/FileNameValidatingLineEdit>

using namespace CorvelGui;

namespace {

const QString untouched;
const QString device =
    uR"(Name matches MS Windows device. (\A(?:.*[/\\](CON,AUX,PRN,COM1,COM2,LPT1,LPT2,NUL))\z).)"_s;

QString invalid(QChar character)
{
    return u"Invalid character '"_s + character + u"'."_s;
}

} // namespace

class TestFileNameLineEdit : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    // As on a system with and one without drive letters, wherever this runs.
    void parts()
    {
        const QString none = u"(none)"_s;
        const std::tuple<QString, QString, QString> rows[] = {
            {uR"(D:\data\report.csv)"_s, uR"(data\report.csv)"_s, uR"(data\report.csv)"_s},
            {uR"(D:\a,b:\c)"_s, u"a,b"_s, u"a,b"_s},
            {uR"(:\a)"_s, u"a"_s, u"a"_s},
            {uR"(D:\)"_s, u""_s, u""_s},
            {u"D:/data/a"_s, none, none},
            {u"report.csv"_s, none, none},
            {uR"(\data\a)"_s, none, none},
            {u"C:"_s, none, none},
            {u"a"_s, u"a"_s, u"a"_s},
            {uR"(\\server\share\a)"_s, uR"(\\server\share\a)"_s, uR"(\\server\share\a)"_s},
            {uR"(a\\b)"_s, uR"(a\\b)"_s, uR"(a\\b)"_s},
            {u"/data/a"_s, none, u"data/a"_s},
            {uR"(/data/a,b:\c)"_s, u"c"_s, u"data/a,b"_s},
            {u"/"_s, u"/"_s, u""_s},
        };
        for (const auto& [path, withLetters, without] : rows) {
            QCOMPARE(checkedNamePart(path, true).value_or(none), withLetters);
            QCOMPARE(checkedNamePart(path, false).value_or(none), without);
        }
    }

    void names()
    {
        const QString share = uR"(\\nowhere.invalid\share\a.csv)"_s;
        const std::tuple<QString, bool, QString> rows[] = {
            {m_native + u"übersicht-2024_01.csv"_s, true, untouched},
            {m_native + u"CON.csv"_s, true, untouched},
            {m_native + u"COM3"_s, true, untouched},
            {m_native + u"icon"_s, true, untouched},
            {m_native + u"con"_s, false, device},
            {m_native + u"Lpt2"_s, false, device},
            {m_dir.path() + u"/nul"_s, false, hasDriveLetters() ? untouched : device},
            {m_native + u"a:b"_s, false, invalid(u':')},
            {QDir::toNativeSeparators(QDir::rootPath()), false, u"Name is empty."_s},
            {m_native + QDir::toNativeSeparators(u"missing/a.csv"_s), false, untouched},
            {u""_s, false, untouched},
            {u"report.csv"_s, false, untouched},
            // A directory on Windows, a name in the current directory elsewhere.
            {share, !hasDriveLetters(), untouched},
            {uR"(Q:\data\a.csv)"_s, !hasDriveLetters(), untouched},
        };
        for (const auto& [path, valid, error] : rows) {
            FileNameValidatingLineEdit field;
            field.setText(path);
            field.setValidationActive(true); // the empty text is no change
            QVERIFY2(field.isValid() == valid, qPrintable(path));
            QCOMPARE(field.getErrorAsStrin(), error);
        }
        QCOMPARE(hasDriveLetters(), m_native.at(1) == u':');
    }

    void forbiddenCharacters()
    {
        const QString inOrder = u",^@=+{}[]~!?:&*\"|#%<>$'();` "_s;
        for (qsizetype first = 0; first < inOrder.size(); ++first) {
            // Those that come later in the order stand first in the name.
            QString name = inOrder.mid(first);
            std::ranges::reverse(name);
            FileNameValidatingLineEdit field;
            field.setText(m_native + name);
            QVERIFY(!field.isValid());
            QCOMPARE(field.getErrorAsStrin(), inOrder.at(first) == u' '
                                                  ? u"Name contains white space."_s
                                                  : invalid(inOrder.at(first)));
            const bool plus = inOrder.at(first) == u'+';
            QCOMPARE(forbiddenCharacter(inOrder.at(first), false).has_value(), !plus);
        }
        QVERIFY(!isDeviceName(u"nul"_s, false) && isDeviceName(u"a/nul"_s, false));
    }

    void extensions()
    {
        FileNameValidatingLineEdit field;
        const auto errorFor = [&](const QString& name) {
            field.setText(m_native + name);
            return field.isValid() ? u"(none)"_s : field.getErrorAsStrin();
        };
        field.addExtensionToCheck(u"csv"_s);
        const QString one = u"File extension csv is required:"_s;
        QCOMPARE(errorFor(u"report.csv"_s), u"(none)"_s);
        QCOMPARE(errorFor(u"report.CSV"_s), one);
        QCOMPARE(errorFor(u"reportcsv"_s), one);
        field.addExtensionToCheck(u"tar.gz"_s);
        QVERIFY(!field.isValid());
        const QString both = u"File extensions csv, tar.gz are required:"_s;
        QCOMPARE(errorFor(u"report.txt"_s), both);
        QCOMPARE(errorFor(u"report.tar.gz"_s), u"(none)"_s);
        // The suffix alone is not a name.
        QVERIFY(!hasExtension(u".csv"_s, {u"csv"_s}) && hasExtension(u"a.csv"_s, {u"csv"_s}));
        // The text of a fault stays, both after a good name and after one without a text of its
        // own.
        for (const QString& text :
             {m_native + u"a+b.csv"_s, m_native + u"ab.csv"_s, u"ab"_s, u""_s}) {
            field.setText(text);
            QCOMPARE(field.getErrorAsStrin(), invalid(u'+'));
        }
    }

private:
    QTemporaryDir m_dir;
    // A drive prefix and an existing directory: C:\…\ or /…/
    QString m_native = QDir::toNativeSeparators(m_dir.path() + u'/');
};

QTEST_MAIN(TestFileNameLineEdit)
#include "tst_filenamelineedit.moc"
