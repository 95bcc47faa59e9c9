// SPDX-License-Identifier: MIT
#include "newspage.h"

#include <CorvelGui/AboutInfo7>
#include <CorvelGui/Info3rdLicences>
#include <CorvelGui/PSystemInfoWidget>
#include <CorvelGui/RSSFeedDialog>
#include <Hueloft/PPlayerIconHelper>

#include <httpserver.h>

#include <QGridLayout>
#include <QGroupBox>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

const QByteArray newsFeed =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
    "<feed xmlns=\"http://www.w3.org/2005/Atom\"><title>Gallery</title>"
    "<entry><id>1</id><title>Lanes for every camera</title><updated>2026-03-02T10:00:00Z</updated>"
    "<link href=\"https://example.org/lanes\"/><content type=\"html\">&lt;p&gt;The timeline shows "
    "&lt;b&gt;each camera&lt;/b&gt; for itself.&lt;/p&gt;&lt;ul&gt;&lt;li&gt;The current one "
    "stands out.&lt;li&gt;A click chooses another.&lt;/ul&gt;&lt;img "
    "src='https://example.org/x'&gt;"
    "&lt;script&gt;alert(1)&lt;/script&gt;</content></entry>"
    "<entry><id>2</id><title>Summer time begins on 29 March</title>"
    "<updated>2026-02-20T08:30:00+01:00</updated><summary>Cameras whose clocks follow it skip an "
    "hour.</summary></entry>"
    "<entry><id>3</id><title>Zwei neue Sprachen: Deutsch und Grün</title>"
    "<updated>2026-01-07T12:00:00Z</updated><summary>Eine davon gibt es.</summary></entry></feed>";

QWidget* group(const QString& title, QWidget* content)
{
    auto* box = new QGroupBox(title);
    auto* layout = new QVBoxLayout(box);
    layout->addWidget(content);
    return box;
}

QList<Info3rdLicences::Component> exampleComponents()
{
    const QString folder = u"/usr/share/common-licenses/"_s;
    return {{.name = u"Qt"_s,
             .version = QString::fromLatin1(qVersion()),
             .licence = u"LGPL version 3"_s,
             .homepage = QUrl(u"https://www.qt.io/"_s),
             .textFiles = {folder + u"LGPL-3"_s}},
            {.name = u"Another component"_s,
             .version = u"1.2"_s,
             .licence = u"Apache License 2.0"_s,
             .note = u"Its text is long."_s,
             .textFiles = {folder + u"Apache-2.0"_s}},
            {.name = u"One whose text is missing"_s,
             .licence = u"BSD"_s,
             .textFiles = {u":/licences/missing.txt"_s}}};
}

} // namespace

NewsPage::NewsPage(QWidget* parent) : QWidget(parent)
{
    auto* server = new LocalHttp::HttpServer(
        [](const LocalHttp::Request&) {
            return LocalHttp::Answer::ok(newsFeed, "application/atom+xml");
        },
        this);
    server->start();
    auto* news = new RSSFeedDialog;
    news->setWindowFlags(Qt::Widget);
    news->setAddress(server->address(u"/feed.xml"_s));
    news->refresh();

    auto* about = new AboutInfo7;
    about->setVersion(u"0.1.0"_s);
    about->setBuild(u"2026-03-02"_s);
    about->setCopyright(u"Copyright © 2026 the CorvelGui authors"_s);
    about->setLogo(Hueloft::PPlayerIconHelper::GetDateTimeIcon_32x32(false));
    about->addLink(tr("Product page"), QUrl(u"https://example.org/"_s));
    about->addLink(tr("Support"), QUrl(u"https://example.org/support"_s));

    auto* licences = new Info3rdLicences;
    licences->setComponents(exampleComponents());

    auto* grid = new QGridLayout(this);
    grid->setSpacing(12);
    grid->addWidget(group(tr("News of a feed"), news), 0, 0, 2, 1);
    grid->addWidget(group(tr("About the program"), about), 0, 1);
    grid->addWidget(group(tr("Licences of components"), licences), 1, 1);
    grid->addWidget(group(tr("The machine"), new PSystemInfoWidget), 2, 0, 1, 2);
    grid->setRowMinimumHeight(2, 300);
}

} // namespace Gallery
