// SPDX-License-Identifier: MIT
#include "updatesite.h"

#include <QJsonDocument>
#include <QJsonObject>

using LocalHttp::Answer;
using LocalHttp::Request;
using namespace Qt::StringLiterals;

namespace UpdateServer {

namespace {

constexpr int softwareId = 1;
const QString releaseDate = u"2026-03-02"_s;

const QByteArray changeLog =
    "<html><head><title>Release notes</title></head><body>\n"
    "<h2>Corvel Review</h2>\n"
    "<ul><li>The timeline opens where it was left.</li>\n"
    "<li>Recordings of a second site are shown in its own time zone.</li>\n"
    "<li>See <a href=\"https://updates.example/\">the product page</a> for more.</li></ul>\n"
    "</body></html>\n";

} // namespace

QStringList contentNames()
{
    return {u"version"_s, u"notes"_s, u"installer"_s, u"query"_s, u"feed"_s};
}

UpdateSite::UpdateSite(const Offer& offer, const QString& base) : m_offer(offer), m_base(base) {}

Answer UpdateSite::answer(const Request& request) const
{
    const QString content = contentFor(QUrl::fromEncoded(request.target));
    if (content.isEmpty())
        return Answer::error(404, "Not Found");
    const bool misbehaves = m_offer.only.isEmpty() || m_offer.only == content;
    return misbehave(misbehaves ? m_offer.misbehaviour : LocalHttp::Misbehaviour::None, request,
                     goodAnswer(content));
}

QString UpdateSite::contentFor(const QUrl& address) const
{
    QString path = address.path();
    if (m_offer.internalChannel && path.startsWith("/internal/"_L1))
        path.remove(0, qsizetype(std::size("/internal")) - 1);
    if (path == "/version.txt"_L1)
        return u"version"_s;
    if (path == "/notes.html"_L1)
        return u"notes"_s;
    if (path == "/feed.xml"_L1)
        return u"feed"_s;
    if (path == u'/' + installerName())
        return u"installer"_s;
    if (path == "/software"_L1 && address.query() == u"id=%1"_s.arg(softwareId))
        return u"installer"_s;
    return path == "/update"_L1 ? u"query"_s : QString();
}

Answer UpdateSite::goodAnswer(const QString& content) const
{
    if (content == "version"_L1)
        return Answer::ok(versionFile());
    if (content == "notes"_L1)
        return Answer::ok(changeLog, "text/html; charset=utf-8");
    if (content == "query"_L1)
        return Answer::ok(queryAnswer(), "application/json");
    if (content == "feed"_L1)
        return Answer::ok(feed(), "application/rss+xml");
    return Answer::ok(installer(), "application/octet-stream");
}

QByteArray UpdateSite::versionFile() const
{
    return u"version=%1\nupdatefile=%2\nreadmefile=notes.html\nreleasedate=%3\n"_s
        .arg(m_offer.version.toString(), installerName(), releaseDate)
        .toUtf8();
}

QByteArray UpdateSite::queryAnswer() const
{
    return QJsonDocument(QJsonObject{{u"updateAvailable"_s, true},
                                     {u"softwareId"_s, softwareId},
                                     {u"newVersion"_s, m_offer.version.toString()},
                                     {u"releaseNotesUrl"_s, m_base + u"/notes.html"_s},
                                     {u"fileName"_s, installerName()},
                                     {u"size"_s, m_offer.installerSize},
                                     {u"releaseDate"_s, releaseDate}})
        .toJson();
}

QByteArray UpdateSite::feed() const
{
    return u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<rss version=\"2.0\"><channel><title>Corvel Review</title>\n"
           "<item><guid>%1</guid><title>Version %1 is there</title>\n"
           "<pubDate>Mon, 02 Mar 2026 10:00:00 GMT</pubDate><link>%2/notes.html</link>\n"
           "<description><![CDATA[<p>The timeline opens <b>where it was left</b>.</p>]]>"
           "</description></item>\n"
           "<item><guid>clocks</guid><title>Summer time begins on 29 March</title>\n"
           "<pubDate>Sun, 01 Mar 2026 08:30:00 +0100</pubDate>\n"
           "<description>Cameras whose clocks follow it skip an hour.</description></item>\n"
           "</channel></rss>\n"_s.arg(m_offer.version.toString(), m_base)
               .toUtf8();
}

QByteArray UpdateSite::installer() const
{
    const QByteArray line = "This is no program, but what an update server sends in its place.\n";
    return line.repeated(m_offer.installerSize / line.size() + 1).first(m_offer.installerSize);
}

QString UpdateSite::installerName() const
{
    return u"corvel-review-%1-setup.exe"_s.arg(m_offer.version.toString());
}

} // namespace UpdateServer
