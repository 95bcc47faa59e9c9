// SPDX-License-Identifier: MIT
#include "harmlesshtml.h"
#include "testsupport.h"
#include "useranswers.h"

#include <CorvelGui/PChangeLogDialog>

#include <QElapsedTimer>
#include <QTextBrowser>

using namespace CorvelGui;

class TestChangeLog : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void htmlIsReduced()
    {
        const std::pair<const char*, const char*> rows[] = {
            {"<h1>2.1</h1><p>A <b>bold</b> &amp; <i>new</i> one</p>",
             "<h1>2.1</h1><p>A <b>bold</b> &amp; <i>new</i> one</p>"},
            {"<P Style='color:#fff' onclick=x() id = \"a>b\">text</P>", "<p>text</p>"},
            {"<a title=x HREF='https://example.org/?a=1&b=\"2'>l</a>",
             "<a href=\"https://example.org/?a=1&amp;b=%222\">l</a>"},
            {"<a href=file:///etc/passwd>a</a><a href=\"javascript:x\">b</a><a>c</a>", "abc"},
            {"a<style>p{}</style><SCRIPT>if(a<b)x()</SCRIPT >b<title>t</title>c", "abc"},
            {"a<script>b", "a"},
            {"a<!-- <b> -- > -->b<!DOCTYPE html><?php ?>c<!-- d", "abc"},
            {"<main><img src=x onerror=y>a</main><font size=99>b</font>", "ab"},
            {"1 < 2 <3 <", "1 &lt; 2 &lt;3 &lt;"},
            {"<b>a<i>b", "<b>a<i>b</i></b>"},
            {"<b>a<i>b</b>c</i>", "<b>a<i>b</i></b>c"},
            {"<p >a </p>\n", "<p>a </p>\n"},
            {"a<b title=\"x", "a<b></b>"},
            {"<ul><li>a<li>b<ul><li>c</ul><li>d</ul>",
             "<ul><li>a</li><li>b<ul><li>c</li></ul></li><li>d</li></ul>"},
            {"<p>a<p>b<ul><li><p>c<li>d</ul>",
             "<p>a</p><p>b</p><ul><li><p>c</p></li><li>d</li></ul>"},
            {"<table><tr><td colspan=9999999>a<td>b<tr><th>c</table>",
             "<table><tr><td>a</td><td>b</td></tr><tr><th>c</th></tr></table>"},
            {"<p>a<tr><td>b<p>c", "<p>ab</p><p>c</p>"},
            {"<table><tr><td>a<table><tr><td>b</table>c</table>d",
             "<table><tr><td>abc</td></tr></table>d"},
        };
        for (const auto& [html, reduced] : rows) {
            const QString once = harmlessHtml(QString::fromUtf8(html));
            QCOMPARE(once, QString::fromUtf8(reduced));
            QCOMPARE(harmlessHtml(once), once); // what is harmless stays as it is
        }
    }

    void lengthsAreBounded()
    {
        const QChar breakPlace(0x200b);
        const auto link = [](int length) {
            return u"<a href=\""_s + u"https://a.example/"_s.leftJustified(length, u'a') +
                   u"\">x</a>"_s;
        };
        const QString character = u"&amp;"_s;
        const QString bold = u"<b>"_s;
        const QString end = u"</b>"_s;
        const QString text = u"aaaa bbb\n"_s;
        const std::pair<QString, QString> rows[] = {
            {character.repeated(200), character.repeated(200)},
            {character.repeated(201), character.repeated(200) + breakPlace + character},
            {QString(150, u'a') + u' ' + QString(150, u'a'),
             QString(150, u'a') + u' ' + QString(150, u'a')},
            {u"😀"_s.repeated(201), u"😀"_s.repeated(200) + breakPlace + u"😀"_s},
            {link(2'000), link(2'000)},
            {link(2'001), u"x"_s},
            {bold.repeated(25), bold.repeated(24) + end.repeated(24)},
            {text.repeated(200'000 / 9) + u"aa"_s, text.repeated(200'000 / 9) + u"aa"_s},
            {text.repeated(200'000 / 9) + u"aaa"_s, text.repeated(200'000 / 9) + u"aa…"_s},
            {u"a"_s + QChar::Null + u'b', u"ab"_s}};
        for (const auto& [html, reduced] : rows)
            QVERIFY2(harmlessHtml(html) == reduced, qPrintable(html.left(50)));
    }

    void hostileHtmlIsShownInTime()
    {
        const auto many = [](const QString& text) {
            return text.repeated(400'000 / text.size());
        };
        QStringList hostile{u"Begin"_s + many(u"x"_s)};
        for (const QString& part :
             {u"<table><tr><td>"_s, u"<ul><li>"_s, u"<blockquote>"_s, u"<b><i>"_s, u"<p>"_s, u"<"_s,
              u"<a href='"_s, u"<a b=c "_s, u"<!--"_s, u"</b>"_s, u"&amp;"_s, u"x"_s, u"<script>"_s,
              u"<p   "_s, u"<td>a"_s})
            hostile.append(u"<p>Begin</p>"_s + many(part));
        for (const QString& html : hostile) {
            QElapsedTimer timer;
            timer.start();
            PChangeLogDialog dialog;
            dialog.setHtml(html);
            dialog.show();
            QVERIFY(QTest::qWaitForWindowExposed(&dialog));
            QVERIFY(dialog.toPlainText().startsWith(u"Begin"_s));
            QVERIFY2(timer.elapsed() < 20'000, qPrintable(html.left(40)));
        }
    }

    void nothingIsLoaded()
    {
        PChangeLogDialog dialog;
        auto* browser = dialog.findChild<QTextBrowser*>();
        for (const QUrl& url :
             {QUrl::fromLocalFile(QCoreApplication::applicationFilePath()),
              QUrl(u"data:text/html,secret"_s), QUrl(u"qrc:/CorvelGui/common/new.png"_s)}) {
            QVERIFY(!browser->loadResource(QTextDocument::ImageResource, url).isValid());
            browser->setSource(url);
            QCOMPARE(browser->toPlainText(), QString());
        }
    }

    void plainTextKeepsItsLines()
    {
        PChangeLogDialog dialog;
        dialog.setHtml(u"2.1 & more\n- a\n- b"_s);
        QCOMPARE(dialog.toPlainText(), u"2.1 & more\n- a\n- b"_s);
        dialog.setHtml(u"1 < 2"_s);
        QCOMPARE(dialog.toPlainText(), u"1 < 2"_s);
    }

    void linksAreFollowedOnAClick()
    {
        const UserAnswers user;
        PChangeLogDialog dialog;
        dialog.setHtml(u"<a href='https://example.org/notes'>mmmmmm</a>"_s);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QCOMPARE(user.opened(), QStringList());
        auto* browser = dialog.findChild<QTextBrowser*>();
        QTest::mouseClick(browser->viewport(), Qt::LeftButton, {}, QPoint(20, 12));
        Q_EMIT browser->anchorClicked(QUrl(u"file:///etc/passwd"_s));
        QCOMPARE(user.opened(), QStringList{u"https://example.org/notes"_s});
    }
};

QTEST_MAIN(TestChangeLog)
#include "tst_changelog.moc"
