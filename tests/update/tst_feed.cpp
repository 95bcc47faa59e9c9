// SPDX-License-Identifier: MIT
#include "feed.h"
#include "readmarks.h"
#include "scriptedserver.h"
#include "testsupport.h"

#include <CorvelGui/RSSFeedDialog>

#include <QElapsedTimer>
#include <QTextBrowser>
#include <QTreeWidget>

using namespace CorvelGui;
using LocalHttp::Misbehaviour;

namespace {

QByteArray rss(const QByteArray& inside)
{
    return "<rss version='2.0'><channel>" + inside + "</channel></rss>";
}

QByteArray atom(const QByteArray& entry)
{
    return "<feed xmlns='http://www.w3.org/2005/Atom'><entry>" + entry + "</entry></feed>";
}

/// id|title|link|date|text of each entry.
QString told(const Feed& feed)
{
    if (feed.fault != Feed::Fault::None)
        return QStringList{u"none"_s, u"no feed"_s, u"damaged"_s, u"entities"_s}[int(feed.fault)];
    QStringList entries;
    for (const FeedEntry& entry : feed.entries)
        entries.append(QStringList{entry.id, entry.title, entry.link.toString(),
                                   entry.published.toString(Qt::ISODate), entry.text}
                           .join(u'|'));
    return entries.join(u'\n');
}

const QByteArray twoNews = rss("<item><guid>a</guid><title>Old</title><pubDate>1 Mar 2026 10:00:00 "
                               "GMT</pubDate><description>x &lt;img src='file:///a'&gt;y"
                               "</description></item><item><guid>b</guid><title>New</title>"
                               "<pubDate>2 Mar 2026 10:00:00 GMT</pubDate></item>");

struct FeedBench
{
    FeedBench()
    {
        server.script("/feed", twoNews);
        dialog.setAddress(server.address(u"/feed"_s));
        dialog.show();
    }
    QString told() const
    {
        QStringList rows;
        for (int row = 0; row < list->topLevelItemCount(); ++row)
            rows.append(list->topLevelItem(row)->text(0) +
                        (list->topLevelItem(row)->font(0).bold() ? u"!"_s : QString()));
        return rows.join(u' ');
    }

    QString status() const
    {
        return dialog.findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly)->text();
    }

    ScriptedServer server;
    RSSFeedDialog dialog;
    QTreeWidget* const list = dialog.findChild<QTreeWidget*>();
};

} // namespace

class TestFeed : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void feedsAreRead()
    {
        const QByteArray bomb = "<!DOCTYPE rss [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;'>]>";
        const std::pair<QByteArray, const char*> rows[] = {
            {rss("<title>News</title><item><title> A\n b </title><guid> 1 </guid><link>"
                 "https://a.example/?x=1</link><pubDate>Mon, 02 Mar 2026 10:00:00 +0100</pubDate>"
                 "<description>short</description><content:encoded><![CDATA[<p>long]]>"
                 "</content:encoded><media:title>other</media:title></item>"),
             "1|A b|https://a.example/?x=1|2026-03-02T09:00:00Z|<p>long"},
            {atom("<id>1</id><title type='html'>A &amp;lt; &lt;b&gt;B&lt;/b&gt;</title><link "
                  "rel='self' href='https://no.example'/><link href='https://a.example'/><updated>"
                  "2026-03-02T10:00:00+01:00</updated><summary>s</summary>"),
             "1|A < B|https://a.example|2026-03-02T09:00:00Z|s"},
            {atom("<id>1</id><content type='xhtml'><div>a<a href='https://a.example/?b&amp;c'>&lt;"
                  "</a></div></content>"),
             "1||||<div>a<a href=\"https://a.example/?b&amp;c\">&lt;</a></div>"},
            {atom("<id>1</id><published>2026-03-01T00:00:00Z</"
                  "published><updated>2026-03-02T10:00:00Z"
                  "</updated><link rel='alternate' href='https://a.example'/><content/>"),
             "1||https://a.example|2026-03-01T00:00:00Z|"},
            {rss("<title/><item><guid> </guid><link>https://a.example</link><dc:date>2026-03-02T10:"
                 "00:00.5</dc:date><summary>s</summary></item><x><item/></x>"),
             "https://a.example||https://a.example|2026-03-02T10:00:00Z|s"},
            {"<rss><x/><channel><item><guid>1</guid></item></channel><channel><item><guid>2</guid>"
             "</item></channel></rss>",
             "1||||\n2||||"},
            {rss("<item b=\"'>\"><guid>1</guid></item><!-- <x --><![CDATA[<y]]>"), "1||||"},
            {"<a:feed xmlns:a='http://www.w3.org/2005/Atom'><a:entry><a:id>1</a:id><title>x</title>"
             "</a:entry></a:feed>",
             "1||||"},
            // The newest first, and each once.
            {rss("<item><guid>1</guid></item><item><guid>2</guid><pubDate>2026-01-01</pubDate>"
                 "</item><item><guid>3</guid><pubDate>2026-01-02T00:00:00</pubDate></item><item>"
                 "<guid>1</guid></item>"),
             "3|||2026-01-02T00:00:00Z|\n2|||2026-01-01T00:00:00Z|\n1||||"},
            {rss("<item><link>javascript:x</link><title>t</title></item><item/>"), "t|t|||"},
            {"<?xml version='1.0' encoding='ISO-8859-1'?>" + rss("<item><guid>\xfc</guid></item>"),
             "ü||||"},
            {"<?xml version='1.0' encoding='UTF-8'?>" + rss("<item><guid>\xfc</guid></item>"),
             "no feed"},
            {"<?xml version='1.0' encoding='klingon'?>" + rss("<item/>"), "no feed"},
            {QByteArray(), "no feed"},
            {"<html><body>Welcome to our guest network</body></html>", "no feed"},
            {"<rss:rss/>", "no feed"},
            {rss("<item><guid>1</guid></item>").chopped(9), "damaged"},
            {rss("<item><title>&nbsp;</title></item>"), "damaged"},
            {bomb + rss("<item><title>&b;</title></item>"), "entities"},
            {"<!DOCTYPE rss SYSTEM 'https://a.example/x'>" + rss("<item><guid>1</guid></item>"),
             "1||||"},
        };
        for (const auto& [xml, entries] : rows)
            QCOMPARE(told(Feed::parse(xml)), QString::fromUtf8(entries));
        for (const int length : {300, 301, 1'000})
            QCOMPARE(Feed::parse(rss("<item><title>" + QByteArray(length, 'x') + "</title></item>"))
                         .entries[0]
                         .title,
                     QString(300, u'x') + (length > 300 ? u"…"_s : u""_s));
        QCOMPARE(Feed::parse(rss("<item><guid>" + QByteArray(2'001, 'x') + "</guid></item>"))
                     .entries[0]
                     .id.size(),
                 2'000);
        QCOMPARE(told(Feed::parse("<rss a='" + QByteArray(16 * 1024, 'x') + "'/>")), u"damaged"_s);
        QCOMPARE(told(Feed::parse("<rss a='" + QByteArray(16 * 1024 - 9, 'x') + "'/>")), u""_s);
        QByteArray many;
        for (int i = 0; i < 2'000; ++i)
            many += "<item><guid>" + QByteArray::number(i) + "</guid></item>";
        QCOMPARE(Feed::parse(rss(many)).entries.size(), 500);
    }

    void hostileFeedsAreReadInTime()
    {
        const auto many = [](const QByteArray& text) {
            return text.repeated(2'000'000 / text.size());
        };
        QByteArray attributes = "<rss ";
        for (int i = 0; i < 150'000; ++i)
            attributes += " a" + QByteArray::number(i) + "=''";
        QByteArray bomb = "<!DOCTYPE rss [<!ENTITY % a 'aaaaaaaaaaaaaaaa'>";
        for (char name = 'b'; name <= 'z'; ++name)
            bomb += QByteArray("<!ENTITY % ") + name + " '%" + char(name - 1) + ";%" +
                    char(name - 1) + ";'>";
        const QByteArray hostile[] = {attributes + "/>",
                                      bomb + "%z;]>" + rss("<item/>"),
                                      "<rss>" + many("<channel>"),
                                      atom("<content type='xhtml'>" + many("<b>")),
                                      atom("<id>" + many("x") + "</id><title>" + many(" ")),
                                      rss("<item><title>" + many("&amp;")),
                                      many("<?a b?>"),
                                      "<!DOCTYPE " + many("x "),
                                      rss(many("<item/>"))};
        for (const QByteArray& xml : hostile) {
            QElapsedTimer timer;
            timer.start();
            Feed::parse(xml);
            QVERIFY2(timer.elapsed() < 10'000, xml.left(60).constData());
        }
    }

    void newsAreShownAndRemembered()
    {
        QTemporaryDir folder;
        QSettings settings(folder.filePath(u"state.ini"_s), QSettings::IniFormat);
        {
            FeedBench bench;
            QSignalSpy unread(&bench.dialog, &RSSFeedDialog::unreadCountChanged);
            QCOMPARE(bench.status(), u"Fetching the news…"_s);
            QTRY_COMPARE(bench.told(), u"New! Old!"_s);
            QTest::keyClick(bench.list, Qt::Key_Down);
            QCOMPARE(bench.told(), u"New Old!"_s);
            QCOMPARE(bench.status(), u"News: 2, not read: 1"_s);
            QCOMPARE(unread.last().first().toInt(), 1);
            bench.dialog.resize(711, 611);
            bench.dialog.writeUserSettings(settings);
            QTest::keyClick(bench.list, Qt::Key_Down);
            const QString text = bench.dialog.findChild<QTextBrowser*>()->toPlainText();
            QVERIFY(text.startsWith(u"Old\n"_s));
            QVERIFY(text.endsWith(u"\nx y"_s));
            QCOMPARE(unread.count(), 3);
        }
        FeedBench bench;
        bench.dialog.setAddress({}); // marks are those of an address
        settings.setValue(u"RSSFeedDialog/Parts"_s, u"damaged"_s);
        bench.dialog.readUserSettings(settings);
        QCOMPARE(bench.dialog.size(), QSize(711, 611));
        QCOMPARE(bench.dialog.unreadCount(), 0);
        QCOMPARE(settings.value(u"RSSFeedDialog/Read"_s).toStringList().size(), 1);
        bench.dialog.setAddress(bench.server.address(u"/feed"_s));
        QTRY_COMPARE(bench.told(), u"New! Old!"_s); // another server
        bench.dialog.markAllAsRead();
        QCOMPARE(bench.told(), u"New Old"_s);
        bench.server.script("/feed", rss("<item><guid>b</guid><title>B</title></item>"
                                         "<item><guid>c</guid><title>C</title></item>"));
        bench.list->setCurrentItem(bench.list->topLevelItem(0)); // stays chosen
        bench.dialog.refresh();
        QTRY_COMPARE(bench.told(), u"B C!"_s);
        QCOMPARE(bench.list->currentItem(), bench.list->topLevelItem(0));
        QCOMPARE(bench.dialog.findChild<QTextBrowser*>()->toPlainText(), u"B\n"_s);
        QSignalSpy replaced(&bench.dialog, &RSSFeedDialog::entriesChanged);
        QSignalSpy busy(&bench.dialog, &RSSFeedDialog::busyChanged);
        bench.server.script("/feed", rss({}));
        bench.dialog.refresh();
        QTRY_COMPARE(bench.status(), u"There is no news."_s);
        QTRY_COMPARE(busy, (QList<QVariantList>{{true}, {false}}));
        QCOMPARE(replaced.count(), 1);
        bench.dialog.refresh();
        bench.dialog.setAddress(bench.server.address(u"/other"_s)); // which is asked at once
        QCOMPARE(busy.mid(2), (QList<QVariantList>{{true}, {false}, {true}}));
        QTRY_COMPARE(bench.status(),
                     u"The news cannot be fetched: The server answered with status 404."_s);
        QCOMPARE(replaced.count(), 1);
        bench.dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&bench.dialog));
        QCOMPARE(unreachedByTab(bench.dialog), QStringList());
    }

    void marksAreBounded()
    {
        ReadMarks marks(QStringList{u"x"_s, QString(1 << 20, u'x')});
        for (int i = 0; i <= 2'000; ++i)
            marks.add(ReadMarks::markOf({}, QString::number(i)));
        QCOMPARE(marks.toStringList().size(), 2'000);
        QVERIFY(!marks.contains(ReadMarks::markOf({}, u"0"_s)));
        QVERIFY(ReadMarks(marks.toStringList()).contains(ReadMarks::markOf({}, u"1"_s)));
    }

    void failuresAreTold()
    {
        FeedBench bench;
        QTRY_COMPARE(bench.dialog.count(), 2);
        bench.dialog.setLimits({.size = 10'000});
        const auto failure = [&bench](const QByteArray& body, Misbehaviour how) {
            bench.server.script("/feed", body, how);
            bench.dialog.refresh();
            bench.dialog.refresh(); // is under way already
            if (!QTest::qWaitFor([&] { return !bench.dialog.isBusy(); }))
                return u"still busy"_s;
            return bench.dialog.errorText();
        };
        QVERIFY(
            failure(twoNews, Misbehaviour::Endless).startsWith(u"The server sends more than"_s));
        QCOMPARE(failure({}, Misbehaviour::Portal), u"What this address has is no feed of news."_s);
        QCOMPARE(failure(twoNews.chopped(1), Misbehaviour::None), u"The feed is damaged."_s);
        QCOMPARE(failure("<!DOCTYPE rss [<!ENTITY a 'b'>]>" + twoNews, Misbehaviour::None),
                 u"The feed is not safe to read."_s);
        QCOMPARE(bench.told(), u"New! Old!"_s); // what was there stays
        QCOMPARE(failure(twoNews, Misbehaviour::None), QString());
        QCOMPARE(bench.server.requests().size(), 6);
    }

    void everySlotMayDeleteTheDialog()
    {
        ScriptedServer server;
        server.script("/feed", twoNews);
        const auto refresh = [&server](RSSFeedDialog& dialog) {
            dialog.setAddress(server.address(u"/feed"_s));
            dialog.refresh();
        };
        const auto isDeletedIn = [&](auto signal) {
            return isDeletedBy<RSSFeedDialog>(refresh, signal);
        };
        QVERIFY(isDeletedIn(&RSSFeedDialog::entriesChanged));
        QVERIFY(isDeletedIn(&RSSFeedDialog::unreadCountChanged));
    }
};

QTEST_MAIN(TestFeed)
#include "tst_feed.moc"
