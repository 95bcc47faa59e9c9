// SPDX-License-Identifier: MIT
// Feeds of news: whatever comes, each entry can be told from the others, has no more than there is
// room for, and leads nowhere but to the web. libFuzzer's limits find what grows or takes long.

#include "fuzzing.h"

#include "update/feed.h"
#include "update/harmlesshtml.h"
#include "update/weblink.h"

#include <QSet>

using CorvelGui::Feed;
using CorvelGui::FeedEntry;
using Fuzzing::require;

namespace {

// Whole feeds are found too seldom.
QByteArray feedWith(uint8_t kind, const QByteArray& inside)
{
    switch (kind % 4) {
    case 0:
        return "<rss><channel><item><guid>1</guid>" + inside + "</item></channel></rss>";
    case 1:
        return "<feed><entry><id>1</id>" + inside + "</entry></feed>";
    case 2:
        return "<!DOCTYPE rss [" + inside + "]><rss><channel><item/></channel></rss>";
    default:
        return inside;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray inside(reinterpret_cast<const char*>(data + 1), qsizetype(size - 1));
    const Feed feed = Feed::parse(feedWith(data[0], inside));
    require(feed.fault == Feed::Fault::None || feed.entries.isEmpty(), "all or nothing");
    require(feed.entries.size() <= Feed::mostEntries, "the number has a bound");
    require(feed.title.size() <= 301, "the title has a bound");
    QSet<QString> ids;
    QDateTime last;
    for (const FeedEntry& entry : feed.entries) {
        require(!entry.id.isEmpty() && entry.id.size() <= 2'000, "there is an id");
        require(entry.title.size() <= 301 && !entry.title.contains(u'\n'), "a title is a line");
        require(entry.link.isEmpty() || CorvelGui::leadsToTheWeb(entry.link), "on the web");
        require(entry.text.size() <= 8 * qsizetype(size) + 100, "nothing is expanded");
        require(!last.isValid() || !entry.published.isValid() || entry.published <= last,
                "the newest come first");
        last = entry.published;
        ids.insert(entry.id);
        CorvelGui::harmlessHtml(entry.text);
    }
    require(ids.size() == feed.entries.size(), "each id comes once");
    return 0;
}
