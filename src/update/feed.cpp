// SPDX-License-Identifier: MIT
#include "feed.h"

#include "harmlesshtml.h"
#include "weblink.h"

#include <QSet>
#include <QTextDocumentFragment>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr qsizetype longestTitle = 300;
constexpr qsizetype longestId = 2'000;

QString inOneLine(const QString& text)
{
    // Only the begin is looked at: a title of a million blanks is none.
    QString line = text.left(10 * longestTitle).simplified();
    if (line.size() <= longestTitle)
        return line;
    line.truncate(line[longestTitle - 1].isHighSurrogate() ? longestTitle - 1 : longestTitle);
    return line + u'…';
}

/// "Mon, 02 Mar 2026 10:00:00 GMT", or as ISO 8601 writes it. Without an offset it is UTC.
QDateTime dateOf(const QString& text)
{
    constexpr qsizetype longestDate = 64;
    QString date = text.left(longestDate).trimmed();
    for (const QString& utc : {u" GMT"_s, u" UTC"_s, u" UT"_s, u" Z"_s}) {
        if (date.endsWith(utc))
            date = date.chopped(utc.size()) + u" +0000"_s;
    }
    QDateTime time = QDateTime::fromString(date, Qt::RFC2822Date);
    if (!time.isValid())
        time = QDateTime::fromString(date, Qt::ISODateWithMs);
    if (time.timeSpec() == Qt::LocalTime)
        time.setTimeSpec(Qt::UTC);
    return time.toUTC();
}

QUrl linkOf(const QString& text)
{
    const QUrl url(text.left(longestId).trimmed());
    return leadsToTheWeb(url) ? url : QUrl();
}

/// Whether an element has more attributes than Qt reads in time, which compares each with all
/// others of its element.
bool hasLongTag(const QByteArray& xml)
{
    constexpr qsizetype longestTag = 16 * 1024;
    qsizetype at = 0;
    const auto skip = [&xml, &at](QByteArrayView begin, QByteArrayView end) {
        if (!QByteArrayView(xml).sliced(at).startsWith(begin))
            return false;
        at = xml.indexOf(end, at);
        return true;
    };
    for (at = xml.indexOf('<'); at >= 0; at = xml.indexOf('<', at)) {
        if (skip("<!--", "-->") || skip("<![CDATA[", "]]>")) {
            if (at < 0)
                return false;
            continue;
        }
        const qsizetype begin = at;
        char quote = 0;
        for (; at < xml.size() && (quote || xml[at] != '>'); ++at) {
            if (at - begin > longestTag)
                return true;
            if (quote)
                quote = xml[at] == quote ? 0 : quote;
            else if (xml[at] == '"' || xml[at] == '\'')
                quote = xml[at];
        }
    }
    return false;
}

/// Reads the XML from begin to end, once. Nothing here calls itself: elements may be nested as
/// deeply as they like.
class FeedXml
{
public:
    explicit FeedXml(const QByteArray& xml) : m_xml(xml) { m_xml.setNamespaceProcessing(false); }

    Feed read()
    {
        if (m_feed.fault = takeProlog(); m_feed.fault != Feed::Fault::None)
            return m_feed;
        if (m_isAtom)
            takeChannel();
        else
            while (!m_isFull && m_xml.readNextStartElement())
                m_xml.name() == u"channel" ? takeChannel() : m_xml.skipCurrentElement();
        if (m_xml.hasError() && !m_isFull)
            return {.fault = Feed::Fault::Damaged};
        std::ranges::stable_sort(m_feed.entries, [](const FeedEntry& one, const FeedEntry& other) {
            return one.published.isValid() &&
                   (!other.published.isValid() || one.published > other.published);
        });
        return m_feed;
    }

private:
    Feed::Fault takeProlog()
    {
        while (!m_xml.atEnd() && m_xml.readNext() != QXmlStreamReader::StartElement) {
            if (!m_xml.entityDeclarations().isEmpty())
                return Feed::Fault::Entities;
        }
        const QStringView root = m_xml.qualifiedName();
        m_prefix = root.left(root.indexOf(u':') + 1).toString();
        m_isAtom = name() == u"feed";
        return !m_xml.hasError() && (m_isAtom || root == u"rss") ? Feed::Fault::None
                                                                 : Feed::Fault::NoFeed;
    }

    /// Without the prefix that the root has as well: an extension's title is not the title.
    QStringView name() const
    {
        const QStringView qualified = m_xml.qualifiedName();
        return qualified.startsWith(m_prefix) ? qualified.mid(m_prefix.size()) : QStringView();
    }

    void takeChannel()
    {
        while (!m_isFull && m_xml.readNextStartElement()) {
            if (name() == (m_isAtom ? u"entry" : u"item"))
                takeEntry();
            else if (name() == u"title")
                m_feed.title = title();
            else
                m_xml.skipCurrentElement();
        }
    }

    void takeEntry()
    {
        FeedEntry entry;
        QString summary;
        while (m_xml.readNextStartElement()) {
            if (name() == u"title")
                entry.title = title();
            else if (name() == u"guid" || name() == u"id")
                entry.id = content().trimmed();
            else if (name() == u"link")
                takeLink(entry);
            else if (name() == u"pubDate" || name() == u"published" || name() == u"dc:date" ||
                     (name() == u"updated" && !entry.published.isValid()))
                entry.published = dateOf(content());
            else if (name() == u"content:encoded" || name() == u"content")
                entry.text = content();
            else if (name() == u"description" || name() == u"summary")
                summary = content();
            else
                m_xml.skipCurrentElement();
        }
        if (entry.text.isEmpty())
            entry.text = summary;
        add(entry);
    }

    void add(FeedEntry& entry)
    {
        if (entry.id.isEmpty())
            entry.id = entry.link.isEmpty() ? entry.title + entry.text : entry.link.toString();
        entry.id.truncate(longestId);
        if (m_xml.hasError() || entry.id.isEmpty() || m_ids.contains(entry.id))
            return;
        m_ids.insert(entry.id);
        m_feed.entries.append(entry);
        m_isFull = m_feed.entries.size() == Feed::mostEntries;
    }

    void takeLink(FeedEntry& entry)
    {
        if (!m_isAtom) {
            entry.link = linkOf(content());
            return;
        }
        const QStringView relation = m_xml.attributes().value(u"rel"_s);
        if (relation.isEmpty() || relation == u"alternate")
            entry.link = linkOf(m_xml.attributes().value(u"href"_s).toString());
        m_xml.skipCurrentElement();
    }

    QString title()
    {
        const bool isHtml = m_xml.attributes().value(u"type"_s) == u"html";
        const QString text = content();
        return inOneLine(isHtml ? QTextDocumentFragment::fromHtml(harmlessHtml(text)).toPlainText()
                                : text);
    }

    /// Of the current element, as HTML if it says that its children are such.
    QString content()
    {
        const bool hasMarkup = m_xml.attributes().value(u"type"_s) == u"xhtml";
        QString text;
        for (qsizetype depth = 1; depth > 0 && !m_xml.atEnd();) {
            const auto token = m_xml.readNext();
            if (token == QXmlStreamReader::StartElement) {
                ++depth;
                if (hasMarkup)
                    text += startTag();
            } else if (token == QXmlStreamReader::EndElement) {
                --depth;
                if (hasMarkup && depth > 0)
                    text += u"</%1>"_s.arg(m_xml.name());
            } else if (token == QXmlStreamReader::Characters) {
                text +=
                    hasMarkup ? m_xml.text().toString().toHtmlEscaped() : m_xml.text().toString();
            }
        }
        return text;
    }

    QString startTag() const
    {
        const QStringView link = m_xml.attributes().value(u"href"_s);
        if (link.isEmpty())
            return u"<%1>"_s.arg(m_xml.name());
        return u"<%1 href=\"%2\">"_s.arg(m_xml.name(), link.toString().toHtmlEscaped());
    }

    QXmlStreamReader m_xml;
    QString m_prefix;
    bool m_isAtom = false;
    bool m_isFull = false;
    Feed m_feed;
    QSet<QString> m_ids;
};

} // namespace

Feed Feed::parse(const QByteArray& xml)
{
    if (hasLongTag(xml))
        return {.fault = Fault::Damaged};
    return FeedXml(xml).read();
}

} // namespace CorvelGui
