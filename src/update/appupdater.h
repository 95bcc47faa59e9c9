// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <Corvel/CheckAppUpdate>

#include <QObject>

#include <memory>

class QVersionNumber;
class QUrl;

namespace CorvelGui {

/// Asks an update server for a newer release of the application, offers it, and downloads its
/// installer to where the user wants it, with a progress dialog. The installer is never started.
///
/// Every check ends with one message at most, every download with exactly one. Messages are shown
/// in nested event loops; the object may be deleted in any of them.
class CORVELGUI_EXPORT AppUpdater : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool busy READ isBusy NOTIFY busyChanged)

public:
    /// @p serverBase is what the paths of the update protocol are appended to. @p parent is the
    /// parent of the dialogs, too.
    AppUpdater(const QString& applicationName, const QString& serverBase, QWidget* parent);
    ~AppUpdater() override;

    /// Starts a check; @p key is what the server knows the application by. That the version is up
    /// to date is told only with @p showResult; an error always is. Does not touch a running
    /// download.
    void checkForUpdates(const QString& key, const QVersionNumber& current, bool showResult);
    /// Whether a check or a download is on its way. False while a dialog waits for the user.
    bool isBusy() const;

Q_SIGNALS:
    /// Emitted from the event loop when isBusy() is no longer what it was at the last emission,
    /// false at first; before any dialog that waits for the user.
    void busyChanged(bool busy);

private:
    void handleCheckAppUpdateError(const QString& text);
    void handleCheckAppUpdateResult(const Corvel::CheckAppUpdate::AppUpdateInfoResult& result);
    void handleDownloadProgress(qint64 received, qint64 total);
    void handleDownloadError(const QString& text);
    void handleDownloadFinished(const QString& path);
    QWidget* parentWidget() const;
    void downloadUpdate(qint64 id, const QString& path);
    QUrl requestUrlForFirmware(qint64 id) const;
    void createProgressDialog();
    void resetProgressDialog();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
