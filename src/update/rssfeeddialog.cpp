// SPDX-License-Identifier: MIT
#include "rssfeeddialog.h"

#include "base/whilealive.h"
#include "feed.h"
#include "harmlessbrowser.h"
#include "readmarks.h"

#include <Corvel/ProxyNetworkAccessManager>
#include <Corvel/ProxyUserSettings>
#include <Hueloft/PIconHelper>

#include <QDialogButtonBox>
#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QNetworkReply>
#include <QPushButton>
#include <QSettings>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace CorvelGui {

namespace {

const QString feedSizeKey = u"RSSFeedDialog/Size"_s;
const QString feedPartsKey = u"RSSFeedDialog/Parts"_s;
const QString feedReadKey = u"RSSFeedDialog/Read"_s;

enum FeedColumn { FeedTitle, FeedDate };

QString dateText(const QDateTime& time)
{
    return time.isValid() ? QLocale().toString(time.toLocalTime(), QLocale::ShortFormat)
                          : QString();
}

void showAsRead(QTreeWidgetItem* item, bool isRead)
{
    for (const int column : {FeedTitle, FeedDate}) {
        QFont font = item->font(column);
        font.setBold(!isRead);
        item->setFont(column, font);
    }
    item->setData(FeedTitle, Qt::AccessibleTextRole,
                  isRead ? QVariant()
                         : RSSFeedDialog::tr("%1, not read").arg(item->text(FeedTitle)));
}

/// The entry as a text of the dialog, whose HTML is still to be reduced.
QString pageOf(const FeedEntry& entry)
{
    QString page = u"<h3>"_s + entry.title.toHtmlEscaped() + u"</h3>"_s;
    if (entry.published.isValid())
        page += u"<p><i>"_s + dateText(entry.published).toHtmlEscaped() + u"</i></p>"_s;
    // A text without elements may have lines.
    QString text = entry.text;
    page +=
        u"<div>"_s + (text.contains(u'<') ? text : text.replace(u'\n', u"<br>"_s)) + u"</div>"_s;
    if (!entry.link.isEmpty())
        page += u"<p><a href=\"%1\">%2</a></p>"_s.arg(
            entry.link.toString(QUrl::FullyEncoded).toHtmlEscaped(),
            RSSFeedDialog::tr("Read more on the web").toHtmlEscaped());
    return page;
}

} // namespace

struct RSSFeedDialog::Private
{
    QUrl address{};
    Corvel::RequestLimits limits{.deadline = 30s, .silence = 15s, .size = 2 * 1024 * 1024};
    Feed feed{};
    ReadMarks marks{};
    int toldUnread = 0;
    bool wasShown = false;
    bool isBusy = false;
    QString error{};
    // All of one request.
    std::unique_ptr<Corvel::ProxyNetworkAccessManager> network{};
    QNetworkReply* reply = nullptr;

    QSplitter* parts = nullptr;
    QTreeWidget* list = nullptr;
    HarmlessBrowser* browser = nullptr;
    QLabel* status = nullptr;
    QDialogButtonBox* buttons = nullptr;
    QPushButton* refresh = nullptr;
    QPushButton* markAll = nullptr;

    const FeedEntry& entryOf(QTreeWidgetItem* item) const
    {
        return feed.entries[list->indexOfTopLevelItem(item)];
    }
    QString markOf(const FeedEntry& entry) const { return ReadMarks::markOf(address, entry.id); }
};

RSSFeedDialog::RSSFeedDialog(QWidget* parent) : PBaseDialog(parent), d(new Private)
{
    setSizeGripEnabled(true);
    resize(680, 560);
    createLayout();
    connect(d->list, &QTreeWidget::itemSelectionChanged, this,
            [this] { showEntry(d->list->selectedItems().value(0)); });
    connect(d->refresh, &QPushButton::clicked, this, &RSSFeedDialog::refresh);
    connect(d->markAll, &QPushButton::clicked, this, &RSSFeedDialog::markAllAsRead);
    connect(d->buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    retranslate();
}

RSSFeedDialog::~RSSFeedDialog() = default;

void RSSFeedDialog::createLayout()
{
    d->list = new QTreeWidget;
    d->list->setColumnCount(2);
    d->list->setRootIsDecorated(false);
    d->list->setUniformRowHeights(true);
    d->list->setAllColumnsShowFocus(true);
    d->list->header()->setStretchLastSection(false);
    d->list->header()->setSectionResizeMode(FeedTitle, QHeaderView::Stretch);
    d->list->header()->setSectionResizeMode(FeedDate, QHeaderView::ResizeToContents);
    d->browser = new HarmlessBrowser;
    d->parts = new QSplitter(Qt::Vertical);
    d->parts->setChildrenCollapsible(false);
    d->parts->addWidget(d->list);
    d->parts->addWidget(d->browser);
    d->parts->setStretchFactor(1, 1);

    d->status = new QLabel;
    d->status->setTextFormat(Qt::PlainText);
    d->status->setWordWrap(true);
    // Made in the order in which Tab goes: it would not come to a button that was there before.
    d->buttons = new QDialogButtonBox;
    d->refresh = d->buttons->addButton(QString(), QDialogButtonBox::ActionRole);
    d->markAll = d->buttons->addButton(QString(), QDialogButtonBox::ActionRole);
    d->refresh->setIcon(Hueloft::PIconHelper::GetRefreshIcon_256x256(true));
    d->buttons->addButton(QDialogButtonBox::Close)->setDefault(true);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(d->parts, 1);
    layout->addWidget(d->status);
    layout->addWidget(d->buttons);
}

QUrl RSSFeedDialog::address() const
{
    return d->address;
}

void RSSFeedDialog::setAddress(const QUrl& address)
{
    if (d->address == address)
        return;
    d->address = address;
    const bool wasBusy = std::exchange(d->isBusy, false);
    abandon();
    d->error.clear();
    const bool hadNews = !std::exchange(d->feed, {}).entries.isEmpty();
    listEntries();
    whileAlive(
        this, [&] { Q_EMIT addressChanged(address); },
        [&] {
            if (hadNews)
                Q_EMIT entriesChanged();
        },
        [this] { tellUnread(); },
        [&] {
            if (wasBusy)
                Q_EMIT busyChanged(false);
        },
        [this] {
            if (isVisible())
                refresh();
        });
}

Corvel::RequestLimits RSSFeedDialog::limits() const
{
    return d->limits;
}

void RSSFeedDialog::setLimits(const Corvel::RequestLimits& limits)
{
    d->limits = limits;
}

bool RSSFeedDialog::isBusy() const
{
    return d->isBusy;
}

int RSSFeedDialog::count() const
{
    return int(d->feed.entries.size());
}

int RSSFeedDialog::unreadCount() const
{
    return int(std::ranges::count_if(d->feed.entries, [this](const FeedEntry& entry) {
        return !d->marks.contains(d->markOf(entry));
    }));
}

QString RSSFeedDialog::errorText() const
{
    return d->error;
}

void RSSFeedDialog::refresh()
{
    if (d->isBusy)
        return;
    d->network = std::make_unique<Corvel::ProxyNetworkAccessManager>();
    d->network->Init(Corvel::ProxyUserSettings::m_Settings);
    d->network->setLimits(d->limits);
    d->reply = d->network->get(QNetworkRequest(d->address));
    connect(d->reply, &QNetworkReply::finished, this, &RSSFeedDialog::complete);
    d->isBusy = true;
    showStatus();
    Q_EMIT busyChanged(true);
}

void RSSFeedDialog::complete()
{
    d->error.clear();
    if (d->reply->error() == QNetworkReply::NoError)
        takeFeed(d->reply->readAll());
    else
        d->error = d->reply->errorString();
    abandon();
    d->isBusy = false;
    const bool hasNews = d->error.isEmpty();
    if (hasNews)
        listEntries();
    showStatus();
    whileAlive(
        this,
        [&] {
            if (hasNews)
                Q_EMIT entriesChanged();
        },
        [this] { tellUnread(); }, [this] { Q_EMIT busyChanged(d->isBusy); });
}

void RSSFeedDialog::takeFeed(const QByteArray& xml)
{
    Feed feed = Feed::parse(xml);
    switch (feed.fault) {
    case Feed::Fault::None:
        d->feed = std::move(feed);
        break;
    case Feed::Fault::NoFeed:
        d->error = tr("What this address has is no feed of news.");
        break;
    case Feed::Fault::Damaged:
        d->error = tr("The feed is damaged.");
        break;
    case Feed::Fault::Entities:
        d->error = tr("The feed is not safe to read.");
        break;
    }
}

void RSSFeedDialog::abandon()
{
    d->reply = nullptr;
    d->network.reset(); // and the reply with it
}

void RSSFeedDialog::listEntries()
{
    // The chosen one stays chosen, and counts as read only when the user chose it.
    const QSignalBlocker quiet(d->list);
    const QTreeWidgetItem* chosen = d->list->selectedItems().value(0);
    const QString id = chosen ? chosen->data(FeedTitle, Qt::UserRole).toString() : QString();
    d->list->clear();
    QTreeWidgetItem* again = nullptr;
    for (const FeedEntry& entry : std::as_const(d->feed.entries)) {
        auto* item = new QTreeWidgetItem(d->list);
        item->setText(FeedTitle, entry.title.isEmpty() ? tr("Without a title") : entry.title);
        item->setText(FeedDate, dateText(entry.published));
        item->setData(FeedTitle, Qt::UserRole, entry.id);
        showAsRead(item, d->marks.contains(d->markOf(entry)));
        if (entry.id == id)
            again = item;
    }
    if (again)
        d->list->setCurrentItem(again);
    d->browser->showForeignText(again ? pageOf(d->entryOf(again)) : QString());
    showStatus();
}

void RSSFeedDialog::showEntry(QTreeWidgetItem* item)
{
    d->browser->showForeignText(item ? pageOf(d->entryOf(item)) : QString());
    if (!item)
        return;
    d->marks.add(d->markOf(d->entryOf(item)));
    showAsRead(item, true);
    showStatus();
    tellUnread();
}

void RSSFeedDialog::markAllAsRead()
{
    for (int row = 0; row < count(); ++row) {
        d->marks.add(d->markOf(d->feed.entries[row]));
        showAsRead(d->list->topLevelItem(row), true);
    }
    showStatus();
    tellUnread();
}

void RSSFeedDialog::tellUnread()
{
    const int unread = unreadCount();
    if (std::exchange(d->toldUnread, unread) != unread)
        Q_EMIT unreadCountChanged(unread);
}

void RSSFeedDialog::showStatus()
{
    const QLocale locale;
    if (d->isBusy)
        d->status->setText(tr("Fetching the news…"));
    else if (!d->error.isEmpty())
        d->status->setText(tr("The news cannot be fetched: %1").arg(d->error));
    else if (d->feed.entries.isEmpty())
        d->status->setText(d->wasShown ? tr("There is no news.") : QString());
    else
        d->status->setText(tr("News: %1, not read: %2")
                               .arg(locale.toString(count()), locale.toString(unreadCount())));
    d->refresh->setEnabled(!d->isBusy);
    d->markAll->setEnabled(unreadCount() > 0);
}

void RSSFeedDialog::writeUserSettings(QSettings& settings) const
{
    settings.setValue(feedSizeKey, size());
    settings.setValue(feedPartsKey, d->parts->saveState());
    settings.setValue(feedReadKey, d->marks.toStringList());
}

void RSSFeedDialog::readUserSettings(QSettings& settings)
{
    if (const QSize kept = settings.value(feedSizeKey).toSize(); kept.isValid())
        resize(kept.boundedTo({4'000, 4'000}));
    d->parts->restoreState(settings.value(feedPartsKey).toByteArray());
    d->marks = ReadMarks(settings.value(feedReadKey).toStringList());
    listEntries();
    tellUnread();
}

void RSSFeedDialog::showEvent(QShowEvent* event)
{
    PBaseDialog::showEvent(event);
    if (!std::exchange(d->wasShown, true))
        refresh();
}

void RSSFeedDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    PBaseDialog::changeEvent(event);
}

void RSSFeedDialog::retranslate()
{
    setWindowTitle(tr("News"));
    d->list->setAccessibleName(tr("News"));
    d->list->setHeaderLabels({tr("Title"), tr("Date")});
    d->browser->setAccessibleName(tr("Text of the chosen entry"));
    d->refresh->setText(tr("&Refresh"));
    d->refresh->setShortcut(QKeySequence::Refresh);
    d->refresh->setToolTip(
        tr("Fetch the news again (%1)")
            .arg(QKeySequence(QKeySequence::Refresh).toString(QKeySequence::NativeText)));
    d->markAll->setText(tr("Mark &all as read"));
    listEntries();
}

} // namespace CorvelGui
