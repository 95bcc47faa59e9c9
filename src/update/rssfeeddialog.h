// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/IUserSettings>
#include <CorvelGui/PBaseDialog>

#include <Corvel/RequestLimits>

#include <QUrl>

#include <memory>

class QTreeWidgetItem;

namespace CorvelGui {

/// Shows the news of a feed (RSS 2.0 or Atom): a list with the newest first, and below it what the
/// chosen one says. What the user has chosen once counts as read; the others stand out.
///
/// A feed may come from anywhere. It is fetched by Corvel::ProxyUserSettings::m_Settings and within
/// limits, nothing else is loaded for it, and of its HTML only harmless elements are shown. A feed
/// that is damaged or declares entities is not shown at all. More than 500 entries are left out.
/// Links to http and https addresses open in the desktop's browser when the user follows them.
///
/// Which entries are read is kept by writeUserSettings(), beside the size of the dialog and of its
/// parts. Call readUserSettings() before the dialog is shown.
class CORVELGUI_EXPORT RSSFeedDialog : public PBaseDialog, public IUserSettings
{
    Q_OBJECT
    /// Where the feed is; an http or https address. Empty at first. Another address removes the
    /// entries, and abandons a request for them; while the dialog is visible it also refreshes it.
    Q_PROPERTY(QUrl address READ address WRITE setAddress NOTIFY addressChanged)
    /// Of requests from now on. The defaults are 30 seconds, 15 seconds of silence and 2 MiB.
    Q_PROPERTY(Corvel::RequestLimits limits READ limits WRITE setLimits DESIGNABLE false)
    /// Whether the feed is being fetched.
    Q_PROPERTY(bool busy READ isBusy NOTIFY busyChanged)
    /// How many entries there are.
    Q_PROPERTY(int count READ count NOTIFY entriesChanged)
    /// How many of them are not read.
    Q_PROPERTY(int unreadCount READ unreadCount NOTIFY unreadCountChanged)

public:
    explicit RSSFeedDialog(QWidget* parent = nullptr);
    /// Abandons a request that is under way.
    ~RSSFeedDialog() override;

    QUrl address() const;
    void setAddress(const QUrl& address);
    Corvel::RequestLimits limits() const;
    void setLimits(const Corvel::RequestLimits& limits);

    bool isBusy() const;
    int count() const;
    int unreadCount() const;
    /// Why the last request brought no entries; empty when it did, or when there was none. For the
    /// user, and shown in the dialog.
    QString errorText() const;

    /// Keys "RSSFeedDialog/Size", "RSSFeedDialog/Parts" and "RSSFeedDialog/Read". The last has a
    /// hash for each entry that was read, of the 2000 that were read last.
    void writeUserSettings(QSettings& settings) const override;
    void readUserSettings(QSettings& settings) override;

public Q_SLOTS:
    /// Fetches the feed; the dialog does so itself when it is shown for the first time. The entries
    /// that there are stay until others have arrived. Does nothing while the feed is being fetched.
    void refresh();
    void markAllAsRead();

Q_SIGNALS:
    void addressChanged(const QUrl& address);
    /// Emitted when a request begins and, from the event loop, when it has ended.
    void busyChanged(bool busy);
    /// Emitted when the entries have been replaced, before busyChanged().
    void entriesChanged();
    /// Emitted when the number is another than before.
    void unreadCountChanged(int count);

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void createLayout();
    void retranslate();
    void complete();
    void takeFeed(const QByteArray& xml);
    void listEntries();
    void showEntry(QTreeWidgetItem* item);
    void showStatus();
    void tellUnread();
    void abandon();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
