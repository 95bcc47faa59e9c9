// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include <CorvelGui/StringHelper>

#include <QFontMetrics>

using CorvelGui::StringHelper;

class TestStringHelper : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void middlesAreElided()
    {
        const std::tuple<QString, int, QString> rows[] = {
            {u"abcdef"_s, 6, u"abcdef"_s},
            {u"abcdef"_s, 5, u"ab…ef"_s},
            {u"abcdef"_s, 4, u"ab…f"_s},
            {u"abcdef"_s, 1, u"…"_s},
            {u"abcdef"_s, 0, {}},
            {u"abcdef"_s, -1, {}},
            // Characters of two units, and of a letter with its accent, stay whole.
            {u"a😀bc😀d"_s, 5, u"a…d"_s},
            {u"e\u0301fge\u0301"_s, 4, u"e\u0301…"_s}};
        for (const auto& [text, longest, elided] : rows)
            QCOMPARE(StringHelper::elidedInMiddle(text, longest), elided);

        const QFontMetrics metrics{QFont()};
        const int width = metrics.horizontalAdvance(u"one two th"_s);
        const QString elided = StringHelper::elidedInMiddle(u"one\ntwo three"_s, metrics, width);
        QVERIFY2(elided.startsWith(u"one") && elided.endsWith(u"ee"), qPrintable(elided));
        QCOMPARE(StringHelper::elidedInMiddle(u"one\ntwo"_s, metrics, width), u"one two"_s);
    }

    void namesAreInNaturalOrder()
    {
        const QStringList sorted{u"apple"_s, u"Camera 2"_s, u"camera 10"_s, u"Camera 10 b"_s,
                                 u"Zoo"_s};
        for (const QLocale& locale : {QLocale::c(), QLocale(u"de_DE"_s)}) {
            QLocale::setDefault(locale);
            for (qsizetype next = 1; next < sorted.size(); ++next) {
                QVERIFY(StringHelper::compareNaturally(sorted[next - 1], sorted[next]) < 0);
                QVERIFY(StringHelper::compareNaturally(sorted[next], sorted[next - 1]) > 0);
            }
            QCOMPARE(StringHelper::compareNaturally(u"GATE 7"_s, u"gate 7"_s), 0);
        }
    }

    void sizesAndDurations()
    {
        const std::tuple<qint64, QString, QString> sizes[] = {
            {-1, {}, {}},
            {1'536, u"1.5 KiB"_s, u"1,5 KiB"_s},
            {10'188, u"9.9 KiB"_s, u"9,9 KiB"_s},
            {10'190, u"10 KiB"_s, u"10 KiB"_s},
            {1'048'063, u"1,023 KiB"_s, u"1.023 KiB"_s},
            {1'048'064, u"1 MiB"_s, u"1 MiB"_s},
            {qint64(64) << 30, u"64 GiB"_s, u"64 GiB"_s},
            {std::numeric_limits<qint64>::max(), u"8 EiB"_s, u"8 EiB"_s}};
        QCOMPARE(StringHelper::size(1'023), u"1023 bytes"_s); // in the C locale
        constexpr qint64 hour = 3'600'000;
        const std::tuple<qint64, QString, QString> durations[] = {
            {-5, u"0 s"_s, u"0 s"_s},
            {1'250, u"1.250 s"_s, u"1,250 s"_s},
            {59'000, u"59 s"_s, u"59 s"_s},
            {61'499, u"1 min 1 s"_s, u"1 min 1 s"_s},
            {61'500, u"1 min 2 s"_s, u"1 min 2 s"_s},
            {hour - 1, u"1 h"_s, u"1 h"_s},
            {1'500 * 24 * hour + hour + 62'000, u"1,500 d 1 h 1 min 2 s"_s,
             u"1.500 d 1 h 1 min 2 s"_s}};
        for (const bool german : {false, true}) {
            QLocale::setDefault(QLocale(german ? u"de_DE"_s : u"en_US"_s));
            for (const auto& [bytes, inEnglish, inGerman] : sizes)
                QCOMPARE(StringHelper::size(bytes), german ? inGerman : inEnglish);
            for (const auto& [msecs, inEnglish, inGerman] : durations)
                QCOMPARE(StringHelper::duration(msecs), german ? inGerman : inEnglish);
        }
    }

    void fileNamesAreSafe()
    {
        QList<std::pair<QString, QString>> rows = {
            {u"Prüfer (2).exe"_s, u"Prüfer (2).exe"_s},
            {u".."_s, u"file"_s},
            {u" . .bashrc"_s, u"bashrc"_s},
            {u"../etc"_s, u"_etc"_s},
            {u"a\n\t\0b.exe"_s, u"a b.exe"_s},
            {u"C:\\a<>\"|?*"_s, u"C__a______"_s},
            {u"gpj\u202eexe.exe"_s, u"gpjexe.exe"_s},
            {u"setup.exe . ."_s, u"setup.exe"_s},
            {u"console.exe"_s, u"console.exe"_s},
            {u"😀 Tor"_s, u"😀 Tor"_s},
            {u"com10 a\ufffdb\u007f"_s, u"com10 ab"_s},
            {u"com10"_s, u"com10"_s},
            {u"comx"_s, u"comx"_s},
            {u"cam1"_s, u"cam1"_s},
            {QString(500, u'a') + u".123456789"_s, QString(110, u'a') + u".123456789"_s},
            {QString(500, u'a') + u".1234567890"_s, QString(120, u'a')},
            {u"a"_s + QChar(0xd83d), u"a"_s},
            {QString(500, u'a') + u".exe"_s, QString(116, u'a') + u".exe"_s},
            {u"a."_s + QString(500, u'b'), u"a."_s + QString(118, u'b')},
            {QString(500, u'門') + u".png"_s, QString(78, u'門') + u".png"_s},
            {QString(119, u'a') + u"😀b"_s, QString(119, u'a')}};
        for (const QString& device : {u"CON"_s, u"nul.exe"_s, u"Com1.tar.gz"_s, u"lpt\u00b2.exe"_s,
                                      u"aux .exe"_s, u"conin$"_s})
            rows.append({device, u'_' + device});
        for (const auto& [text, name] : std::as_const(rows))
            QCOMPARE(StringHelper::safeFileName(text, u"file"_s), name);
        QCOMPARE(StringHelper::safeFileName(u"nul."_s + QString(99, u'a'), {}, 20),
                 u"_nul."_s + QString(15, u'a'));
    }

    void textsAreShownToTheLetter()
    {
        QCOMPARE(StringHelper::plainToolTip(u"/a & b"_s), u"/a & b"_s);
        QCOMPARE(StringHelper::plainToolTip(u"<b>x"_s), u"<p>&lt;b&gt;x</p>"_s);
        QCOMPARE(StringHelper::plainLabel(u"a & b"_s), u"a && b"_s);
    }
};

QTEST_MAIN(TestStringHelper)
#include "tst_stringhelper.moc"
