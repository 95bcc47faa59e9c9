// SPDX-License-Identifier: MIT
#include "harmlesshtml.h"

#include "weblink.h"

#include <QList>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr qsizetype longestText = 200'000;
constexpr qsizetype longestUrl = 2'000;
constexpr qsizetype longestWord = 200;
constexpr qsizetype deepestNesting = 24;

using Names = QSet<QString>;

const Names& keptElements()
{
    static const Names names{u"a"_s,   u"b"_s,   u"blockquote"_s, u"br"_s, u"code"_s, u"dd"_s,
                             u"div"_s, u"dl"_s,  u"dt"_s,         u"em"_s, u"h1"_s,   u"h2"_s,
                             u"h3"_s,  u"h4"_s,  u"h5"_s,         u"h6"_s, u"hr"_s,   u"i"_s,
                             u"li"_s,  u"ol"_s,  u"p"_s,          u"s"_s,  u"pre"_s,  u"strong"_s,
                             u"sub"_s, u"sup"_s, u"table"_s,      u"td"_s, u"th"_s,   u"tr"_s,
                             u"tt"_s,  u"u"_s,   u"ul"_s};
    return names;
}

const Names& elementsWithForeignContent()
{
    static const Names names{u"iframe"_s, u"noscript"_s, u"object"_s,   u"script"_s, u"style"_s,
                             u"svg"_s,    u"template"_s, u"textarea"_s, u"title"_s};
    return names;
}

/// The end tags that HTML allows to be left out: an element that begins ends the open one of
/// @c ends, unless an element of @c inside was opened since.
struct ImpliedEnd
{
    Names begins;
    Names ends;
    Names inside;
};

const QList<ImpliedEnd>& impliedEnds()
{
    static const QList<ImpliedEnd> all{
        {{u"li"_s}, {u"li"_s}, {u"ul"_s, u"ol"_s}},
        {{u"dt"_s, u"dd"_s}, {u"dt"_s, u"dd"_s}, {u"dl"_s}},
        {{u"td"_s, u"th"_s}, {u"td"_s, u"th"_s}, {u"tr"_s, u"table"_s}},
        {{u"tr"_s}, {u"tr"_s}, {u"table"_s}},
        {{u"p"_s, u"div"_s, u"h1"_s, u"h2"_s, u"h3"_s, u"h4"_s, u"h5"_s, u"h6"_s, u"ul"_s, u"ol"_s,
          u"dl"_s, u"pre"_s, u"table"_s, u"hr"_s, u"blockquote"_s},
         {u"p"_s},
         {u"td"_s, u"th"_s, u"li"_s, u"dd"_s, u"blockquote"_s, u"div"_s}}};
    return all;
}

/// Reads HTML from begin to end, once.
class Reducer
{
public:
    explicit Reducer(QStringView html) : m_rest(html) {}

    QString reduced()
    {
        while (!m_rest.isEmpty()) {
            if (m_rest.front() != u'<')
                takeText();
            else if (!takeComment() && !takeTag())
                takeLessThan();
        }
        while (!m_open.isEmpty())
            endLast();
        return m_result;
    }

private:
    struct Element
    {
        QString name;
        bool kept;
    };

    void takeText()
    {
        const qsizetype end = m_rest.indexOf(u'<');
        const QStringView text = end < 0 ? m_rest : m_rest.left(end);
        for (qsizetype i = 0; i < text.size();)
            i += append(text.mid(i, lengthOfCharacter(text, i)));
        m_rest = m_rest.mid(text.size());
    }

    void takeLessThan()
    {
        append(u"&lt;");
        m_rest = m_rest.mid(1);
    }

    // Appends one character, and a place to break the line where a word has none for long: laying
    // out a line takes time that grows with the square of its length.
    qsizetype append(QStringView character)
    {
        constexpr QChar breakPlace(0x200b);
        const bool isBreak = character.front().isSpace() || character.front() == breakPlace;
        m_wordLength = isBreak ? 0 : m_wordLength + 1;
        if (m_wordLength > longestWord) {
            m_result += breakPlace;
            m_wordLength = 1;
        }
        m_result += character;
        return character.size();
    }

    /// Of the character at @p index, as HTML writes it: "&amp;" is one.
    static qsizetype lengthOfCharacter(QStringView text, qsizetype index)
    {
        constexpr qsizetype longestEntity = 34;
        if (text[index].isHighSurrogate() && index + 1 < text.size())
            return 2;
        if (text[index] != u'&')
            return 1;
        const qsizetype end = text.mid(index, longestEntity).indexOf(u';');
        return end < 0 ? 1 : end + 1;
    }

    bool takeComment()
    {
        if (!m_rest.startsWith(u"<!") && !m_rest.startsWith(u"<?"))
            return false;
        const QStringView close = m_rest.startsWith(u"<!--") ? u"-->" : u">";
        skipBehind(m_rest.indexOf(close), close.size());
        return true;
    }

    bool takeTag()
    {
        const bool isEnd = m_rest.startsWith(u"</");
        QStringView tag = m_rest.mid(isEnd ? 2 : 1);
        const qsizetype nameLength =
            std::find_if_not(tag.begin(), tag.end(),
                             [](QChar c) { return c.unicode() < 128 && c.isLetterOrNumber(); }) -
            tag.begin();
        if (nameLength == 0 || !tag.front().isLetter())
            return false;
        const QString name = tag.left(nameLength).toString().toLower();
        const QString link = takeAttributes(tag.mid(nameLength));
        if (isEnd)
            end(name);
        else if (elementsWithForeignContent().contains(name))
            skipContent(name);
        else
            begin(name, link);
        return true;
    }

    /// Moves behind the tag whose attributes begin with @p rest. Returns the value of its href.
    QString takeAttributes(QStringView rest)
    {
        QString link;
        while (true) {
            rest = withoutBlanks(rest);
            if (rest.isEmpty() || rest.front() == u'>')
                break;
            const qsizetype nameEnd = lengthUntil(rest, u"=> \t\r\n");
            const QStringView name = rest.left(std::max(nameEnd, qsizetype(1)));
            rest = rest.mid(name.size());
            const QStringView afterBlanks = withoutBlanks(rest);
            if (!afterBlanks.startsWith(u'='))
                continue;
            rest = withoutBlanks(afterBlanks.mid(1));
            const bool quoted = rest.startsWith(u'"') || rest.startsWith(u'\'');
            const QChar quote = quoted ? rest.front() : QChar();
            if (quoted)
                rest = rest.mid(1);
            const qsizetype length = quoted ? rest.indexOf(quote) : lengthUntil(rest, u"> \t\r\n");
            const QStringView value = length < 0 ? rest : rest.left(length);
            rest = rest.mid(value.size() + (quoted && length >= 0 ? 1 : 0));
            if (name.compare(u"href", Qt::CaseInsensitive) == 0 && value.size() <= longestUrl)
                link = value.toString();
        }
        m_rest = rest.mid(1);
        return link;
    }

    // At its begin only: at the end there is the text behind the tag.
    static QStringView withoutBlanks(QStringView text)
    {
        return text.mid(
            std::find_if_not(text.begin(), text.end(), [](QChar c) { return c.isSpace(); }) -
            text.begin());
    }

    static qsizetype lengthUntil(QStringView text, QStringView characters)
    {
        return std::find_if(text.begin(), text.end(),
                            [characters](QChar c) { return characters.contains(c); }) -
               text.begin();
    }

    void skipContent(const QString& name)
    {
        const QString close = u"</"_s + name;
        skipBehind(m_rest.indexOf(close, 0, Qt::CaseInsensitive), close.size());
        skipBehind(m_rest.indexOf(u'>'), 1);
    }

    void skipBehind(qsizetype position, qsizetype length)
    {
        m_rest = position < 0 ? QStringView() : m_rest.mid(position + length);
    }

    void begin(const QString& name, const QString& link)
    {
        if (!keptElements().contains(name))
            return;
        const QString target = name == u"a" ? harmlessTarget(link) : QString();
        const bool isKept = name == u"a" ? !target.isEmpty() : fitsTables(name);
        if (isKept)
            endImplied(name);
        if (name == u"br" || name == u"hr") {
            m_result += u'<' + name + u'>';
            return;
        }
        if (m_open.size() >= deepestNesting)
            return;
        m_open.append({name, isKept});
        if (!target.isEmpty())
            m_result += u"<a href=\"%1\">"_s.arg(target);
        else if (isKept)
            m_result += u'<' + name + u'>';
    }

    /// The address as an attribute holds it. Empty if it must not be followed.
    static QString harmlessTarget(const QString& link)
    {
        const QUrl url(QString(link).replace(u"&amp;"_s, u"&"_s));
        const QString target = url.toString(QUrl::FullyEncoded).toHtmlEscaped();
        return leadsToTheWeb(url) && target.size() <= longestUrl ? target : QString();
    }

    void endImplied(const QString& beginning)
    {
        for (const ImpliedEnd& implied : impliedEnds()) {
            if (!implied.begins.contains(beginning))
                continue;
            for (qsizetype i = m_open.size() - 1; i >= 0; --i) {
                if (m_open[i].kept && implied.inside.contains(m_open[i].name))
                    break;
                if (implied.ends.contains(m_open[i].name)) {
                    endUntil(i);
                    break;
                }
            }
        }
    }

    void end(const QString& name)
    {
        for (qsizetype i = m_open.size() - 1; i >= 0; --i) {
            if (m_open[i].name == name)
                return endUntil(i);
        }
    }

    void endUntil(qsizetype index)
    {
        while (m_open.size() > index)
            endLast();
    }

    void endLast()
    {
        const Element element = m_open.takeLast();
        if (element.kept)
            m_result += u"</"_s + element.name + u'>';
    }

    // Tables inside tables go, with their rows and cells.
    bool fitsTables(const QString& name) const
    {
        const auto table = std::find_if(m_open.rbegin(), m_open.rend(), [](const Element& element) {
            return element.name == u"table";
        });
        if (name == u"table")
            return table == m_open.rend();
        const bool isPart = name == u"tr" || name == u"td" || name == u"th";
        return !isPart || (table != m_open.rend() && table->kept);
    }

    QStringView m_rest;
    QList<Element> m_open;
    qsizetype m_wordLength = 0;
    QString m_result;
};

} // namespace

QString harmlessHtml(const QString& html)
{
    QString text = html.left(longestText);
    text.remove(QChar::Null);
    if (html.size() > longestText)
        text += u'…';
    return Reducer(text).reduced();
}

} // namespace CorvelGui
