// SPDX-License-Identifier: MIT
#pragma once

#include "requestlimits.h"

#include <Corvel/corvel_export.h>

#include <QDateTime>
#include <QObject>
#include <QVersionNumber>

#include <memory>
#include <optional>

class QNetworkReply;

namespace Corvel {

/// Asks an update server whether a newer release of an application exists.
///
/// Every query ends with exactly one of its two signals, unless the checker is deleted or the next
/// query replaces it. Both come from the event loop, and every slot may delete the checker. The
/// requests go by ProxyUserSettings::m_Settings.
class CORVEL_EXPORT CheckAppUpdate : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Corvel::RequestLimits limits READ limits WRITE setLimits)

public:
    /// What the server offers. All texts are the server's, within bounds but as it wrote them: the
    /// file name may hold anything, and is not for use as a path.
    struct AppUpdateInfoResult
    {
        bool updateAvailable = false;
        qint64 softwareId = 0; ///< identifies the installer on the server
        QVersionNumber newVersion;
        QString releaseNotesUrl; ///< a web address, or empty
        QString fileName;
        qint64 size = -1;                     ///< of the installer, in bytes
        std::optional<QDateTime> releaseDate; ///< has a value whenever an update is available
    };

    /// @p serverBase is what "/update" and a query string are appended to.
    explicit CheckAppUpdate(const QString& serverBase, QObject* parent = nullptr);
    /// Abandons a running query without a signal.
    ~CheckAppUpdate() override;

    /// For queries that start from now on. The defaults are 30 seconds, 15 seconds of silence and
    /// 64 KiB.
    void setLimits(const RequestLimits& limits);
    RequestLimits limits() const;

    /// Asks whether there is a release newer than @p current of the application that the server
    /// knows by @p key. A query that still runs is abandoned.
    void checkForUpdates(const QString& key, const QVersionNumber& current);
    /// True from the start of a query until just before its outcome is emitted.
    bool isBusy() const;

Q_SIGNALS:
    /// The server's answer. What it offers is no update when it is not newer than the current
    /// version.
    void appUpdateInfoResult(const Corvel::CheckAppUpdate::AppUpdateInfoResult& result);
    /// The query failed; @p text tells the user why.
    void appUpdateInfoError(const QString& text);

private:
    void complete(QNetworkReply& reply);

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace Corvel
