#include "harmlesshtml.h"
#include "testsupport.h"

#include <CorvelGui/PChangeLogDialog>

#include <QDesktopServices>
#include <QElapsedTimer>
#include <QTest>
#include <QTextBrowser>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

class TestChangeLog : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void htmlIsReduced_data();
    void htmlIsReduced();
    void hostileHtmlIsShownInTime();
    void nothingIsLoaded();
    void plainTextKeepsItsLines();
    void linksAreFollowedOnAClick();

public Q_SLOTS:
    void open(const QUrl& url) { m_opened.append(url); }

private:
    QList<QUrl> m_opened;
};

void TestChangeLog::htmlIsReduced_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<QString>("reduced");
    const auto row = [](const char* name, const char* html, const char* reduced) {
        QTest::newRow(name) << QString::fromUtf8(html) << QString::fromUtf8(reduced);
    };
    row("kept", "<h1>2.1</h1><p>A <b>bold</b> &amp; <i>new</i> one</p>",
        "<h1>2.1</h1><p>A <b>bold</b> &amp; <i>new</i> one</p>");
    row("attributes go", "<P Style='color:#fff' onclick=x() id = \"a>b\">text</P>", "<p>text</p>");
    row("link", "<a title=x HREF='https://example.org/?a=1&b=\"2'>l</a>",
        "<a href=\"https://example.org/?a=1&amp;b=%222\">l</a>");
    row("links elsewhere", "<a href=file:///etc/passwd>a</a><a href=\"javascript:x\">b</a><a>c</a>",
        "abc");
    row("foreign content", "a<style>p{}</style><SCRIPT>if(a<b)x()</SCRIPT >b<title>t</title>c",
        "abc");
    row("unclosed foreign content", "a<script>b", "a");
    row("comments", "a<!-- <b> -- > -->b<!DOCTYPE html><?php ?>c<!-- d", "abc");
    row("unknown and pictures", "<main><img src=x onerror=y>a</main><font size=99>b</font>", "ab");
    row("less-than signs", "1 < 2 <3 <", "1 &lt; 2 &lt;3 &lt;");
    row("unclosed tags", "<b>a<i>b", "<b>a<i>b</i></b>");
    row("wrong order", "<b>a<i>b</b>c</i>", "<b>a<i>b</i></b>c");
    row("blanks at the end", "<p >a </p>\n", "<p>a </p>\n");
    row("cut tag", "a<b title=\"x", "a<b></b>");
    row("items without ends", "<ul><li>a<li>b<ul><li>c</ul><li>d</ul>",
        "<ul><li>a</li><li>b<ul><li>c</li></ul></li><li>d</li></ul>");
    row("paragraphs without ends", "<p>a<p>b<ul><li><p>c<li>d</ul>",
        "<p>a</p><p>b</p><ul><li><p>c</p></li><li>d</li></ul>");
    row("cells without ends", "<table><tr><td colspan=9999999>a<td>b<tr><th>c</table>",
        "<table><tr><td>a</td><td>b</td></tr><tr><th>c</th></tr></table>");
    row("cells without a table", "<p>a<tr><td>b<p>c", "<p>ab</p><p>c</p>");
    row("table in table", "<table><tr><td>a<table><tr><td>b</table>c</table>d",
        "<table><tr><td>abc</td></tr></table>d");
}

void TestChangeLog::htmlIsReduced()
{
    QFETCH(QString, html);
    QTEST(harmlessHtml(html), "reduced");
    // What is harmless stays as it is.
    QTEST(harmlessHtml(harmlessHtml(html)), "reduced");
}

void TestChangeLog::hostileHtmlIsShownInTime()
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

void TestChangeLog::nothingIsLoaded()
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

void TestChangeLog::plainTextKeepsItsLines()
{
    PChangeLogDialog dialog;
    dialog.setHtml(u"2.1 & more\n- a\n- b"_s);
    QCOMPARE(dialog.toPlainText(), u"2.1 & more\n- a\n- b"_s);
    dialog.setHtml(u"1 < 2"_s);
    QCOMPARE(dialog.toPlainText(), u"1 < 2"_s);
}

void TestChangeLog::linksAreFollowedOnAClick()
{
    for (const QString& scheme : {u"https"_s, u"file"_s})
        QDesktopServices::setUrlHandler(scheme, this, "open");
    PChangeLogDialog dialog;
    dialog.setHtml(u"<a href='https://example.org/notes'>mmmmmm</a>"_s);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCOMPARE(m_opened, QList<QUrl>());
    auto* browser = dialog.findChild<QTextBrowser*>();
    QTest::mouseClick(browser->viewport(), Qt::LeftButton, {}, QPoint(20, 12));
    QCOMPARE(m_opened, QList<QUrl>{QUrl(u"https://example.org/notes"_s)});
    Q_EMIT browser->anchorClicked(QUrl(u"file:///etc/passwd"_s));
    QCOMPARE(m_opened.size(), 1);
    for (const QString& scheme : {u"https"_s, u"file"_s})
        QDesktopServices::unsetUrlHandler(scheme);
}

QTEST_MAIN(TestChangeLog)
#include "tst_changelog.moc"
