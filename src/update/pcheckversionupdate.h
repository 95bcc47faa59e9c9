// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <Corvel/RequestLimits>

#include <QObject>

#include <functional>
#include <memory>

namespace CorvelGui {

struct ReleaseVersion;

/// Looks for a newer release of the application: in the version file of an internal release channel
/// first and, if that cannot be had, in the one of the public update server. A newer release is
/// offered with its release notes; its installer is downloaded to where the user wants it and is
/// never started.
///
/// A version file "version.txt" is UTF-8 text with a line "key=value" for each of "version" and
/// "updatefile" (the installer) and, if wanted, "readmefile" (release notes in HTML) and
/// "releasedate" (any text). Files are relative to the base URL of their channel.
///
/// Requests go by Corvel::ProxyUserSettings::m_Settings: as they are when the object is made, and
/// for an installer as they are when its download begins.
/// Messages are shown in nested event loops; the object may be deleted in any of them, and in any
/// slot.
class CORVELGUI_EXPORT PCheckVersionUpdate : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString currentVersion READ currentVersion WRITE setCurrentVersion)
    Q_PROPERTY(bool busy READ isBusy NOTIFY busyChanged)

public:
    /// How a check ended.
    enum class Outcome {
        UpToDate,     ///< there is no newer release
        NewerRelease, ///< the user is asked
        Failed        ///< nobody knows
    };
    Q_ENUM(Outcome)

    /// File names are appended to the base URLs without a separator, so these end with a slash. An
    /// empty @p intranetBase leaves the internal release channel out. @p currentVersion is up to
    /// four numbers with dots between. With @p showRevision versions are shown with all four of
    /// them, else with three. @p parent is the parent of the dialogs, too, but for the message that
    /// a check failed, which has none.
    PCheckVersionUpdate(QWidget* parent, const QString& currentVersion, const QString& internetBase,
                        const QString& intranetBase, bool showRevision);
    ~PCheckVersionUpdate() override;

    /// Starts a check. Only with @p showResult the user is told that the version is up to date, or
    /// that the public server cannot be reached. A check that still runs is abandoned; a running
    /// download is not.
    void checkVersion(bool showResult);
    /// Shows the release notes of the last check, or says that there are none.
    void checkChangeLog();
    /// Fetches the release notes, and ends with checkChangeLog(). A newer release is not offered.
    /// A check that still runs is abandoned.
    void fetchChangeLog();
    void setCurrentVersion(const QString& version);
    QString currentVersion() const;

    /// The release notes of the last check (HTML of the server), or why there are none.
    QString GetReadMeFile() const;
    /// Whether the last version file came from the internal release channel.
    bool hasInternalReleaseChannelConnection() const;
    /// Whether a request is on its way. False while a dialog waits for the user.
    bool isBusy() const;

    /// For requests from now on: those of version files and release notes (at first 30 seconds, 15
    /// seconds of silence, 1 MiB), and those of installers (two hours, 30 seconds of silence, 1
    /// GiB).
    void setLimits(const Corvel::RequestLimits& texts, const Corvel::RequestLimits& installers);
    Corvel::RequestLimits textLimits() const;
    Corvel::RequestLimits installerLimits() const;

Q_SIGNALS:
    /// The installer's download, in bytes: (-1, -1) when it begins, then as its parts arrive, with
    /// a total of -1 when the server does not announce it. At its end both are the size, or 0 when
    /// it failed.
    void signalDownloadProgress(qint64 received, qint64 total);
    /// Emitted from the event loop when isBusy() is no longer what it was at the last emission,
    /// false at first; before any dialog that waits for the user.
    void busyChanged(bool busy);

    /// Emitted from the event loop at the end of each check that was not abandoned, after
    /// busyChanged() and whether the user is told or not. @p error says for the user why it
    /// failed, and is empty otherwise. fetchChangeLog() is no check.
    void checkEnded(CorvelGui::PCheckVersionUpdate::Outcome outcome, const QString& error);

private:
    enum class Channel { Internal, Public };
    using Answered = std::function<void(bool arrived)>;

    void begin(bool wantsChangeLog);
    void fetch(const QString& url, const Answered& answered);
    void requestVersionFile(Channel channel);
    void takeVersionFile(Channel channel, bool arrived);
    void giveUp(const QString& text);
    void takeReadMeFile(const QString& url, bool arrived);
    void compareVersions();
    void offer(const ReleaseVersion& current);
    void requestInstallFile(const QString& url, const QString& path);
    void tellDownloadFailure(const QString& text);
    void tellSaved(const QString& path);
    void tellBusyLater();
    void tellEndLater(Outcome outcome, const QString& error = {});
    QString base() const;
    QWidget* parentWidget() const;

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
