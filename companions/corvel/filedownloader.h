// SPDX-License-Identifier: MIT
#pragma once

#include "requestlimits.h"

#include <Corvel/corvel_export.h>

#include <QObject>

#include <memory>

class QUrl;

namespace Corvel {

/// Saves what a server offers as a file, whole or not at all: the content is written beside the
/// target, which it replaces once all of it has arrived. Until then, and after every failure, the
/// target is what it was, and nothing stays beside it.
///
/// Every download that started ends with exactly one of downloadFinished() and downloadError(),
/// unless the downloader is deleted. All signals come from the event loop, and every slot may
/// delete the downloader. The requests go by ProxyUserSettings::m_Settings.
class CORVEL_EXPORT FileDownloader : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Corvel::RequestLimits limits READ limits WRITE setLimits)

public:
    explicit FileDownloader(QObject* parent = nullptr);
    /// Cancels a running download without a signal.
    ~FileDownloader() override;

    /// For downloads that start from now on. The defaults are two hours, 30 seconds of silence and
    /// 2 GiB.
    void setLimits(const RequestLimits& limits);
    RequestLimits limits() const;

    /// Starts saving the content of @p url as the file @p path. False, and no signal follows, when
    /// a download runs already, the URL is no http or https one, @p path is a directory or a file
    /// that is read-only, or nothing can be created beside it.
    bool downloadFile(const QUrl& url, const QString& path);
    /// Ends the running download; nothing of it is left when this returns. downloadError() follows
    /// from the event loop. Does nothing when no download runs.
    void cancelDownload();
    /// True from the start of a download until just before its outcome is emitted.
    bool isBusy() const;

Q_SIGNALS:
    /// Emitted for the first bytes, at most ten times a second after that, and for the last byte of
    /// an announced length. @p total is -1 when the server does not announce it.
    void downloadProgress(qint64 received, qint64 total);
    /// Emitted when a download failed or was cancelled. @p text tells the user why.
    void downloadError(QString text);
    /// Emitted when the file is complete at @p path, the one given to downloadFile().
    void downloadFinished(QString path);

private:
    void save();
    void complete();
    void abandon();
    void fail(const QString& text);

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace Corvel
