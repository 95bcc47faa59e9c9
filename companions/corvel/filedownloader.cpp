// SPDX-License-Identifier: MIT
#include "filedownloader.h"

#include "proxynetworkaccessmanager.h"
#include "proxyusersettings.h"
#include "webaddress.h"

#include <QFileInfo>
#include <QNetworkReply>
#include <QSaveFile>

using namespace std::chrono_literals;

namespace Corvel {

namespace {

bool isReplaceable(const QString& path)
{
    const QFileInfo target(path);
    // A rename would replace a read-only file as well, and root may write to any.
    return !path.isEmpty() && (!target.exists() || (target.isFile() && target.isWritable() &&
                                                    target.permission(QFile::WriteOwner)));
}

} // namespace

struct FileDownloader::Private
{
    RequestLimits limits{2h, 30s, qint64(2) * 1024 * 1024 * 1024};
    bool busy = false;
    // All of one download.
    std::unique_ptr<ProxyNetworkAccessManager> network;
    QNetworkReply* reply = nullptr;
    std::unique_ptr<QSaveFile> file;
    QString path;
};

FileDownloader::FileDownloader(QObject* parent) : QObject(parent), d(std::make_unique<Private>()) {}

FileDownloader::~FileDownloader() = default;

RequestLimits FileDownloader::limits() const
{
    return d->limits;
}

void FileDownloader::setLimits(const RequestLimits& limits)
{
    d->limits = limits;
}

bool FileDownloader::downloadFile(const QUrl& url, const QString& path)
{
    if (d->busy || !isWebAddress(url) || !isReplaceable(path))
        return false;
    auto file = std::make_unique<QSaveFile>(path);
    if (!file->open(QIODevice::WriteOnly))
        return false;

    d->busy = true;
    d->file = std::move(file);
    d->path = path;
    d->network = std::make_unique<ProxyNetworkAccessManager>();
    d->network->Init(ProxyUserSettings::m_Settings);
    d->network->setLimits(d->limits);
    d->reply = d->network->get(QNetworkRequest(url));
    connect(d->reply, &QNetworkReply::readyRead, this, &FileDownloader::save);
    connect(d->reply, &QNetworkReply::downloadProgress, this, &FileDownloader::downloadProgress);
    connect(d->reply, &QNetworkReply::finished, this, &FileDownloader::complete);
    return true;
}

void FileDownloader::cancelDownload()
{
    if (!d->network)
        return;
    abandon();
    QMetaObject::invokeMethod(
        this, [this] { fail(tr("The download was cancelled.")); }, Qt::QueuedConnection);
}

bool FileDownloader::isBusy() const
{
    return d->busy;
}

void FileDownloader::save()
{
    const QByteArray piece = d->reply->readAll();
    if (d->file->write(piece) != piece.size())
        fail(tr("The file cannot be written: %1").arg(d->file->errorString()));
}

void FileDownloader::complete()
{
    if (d->reply->error() != QNetworkReply::NoError) {
        fail(d->reply->errorString());
        return;
    }
    if (!isReplaceable(d->path)) {
        fail(tr("The file must not be replaced."));
        return;
    }
    // commit() alone would take a short write for a whole one.
    if (!d->file->flush() || !d->file->commit()) {
        fail(tr("The file cannot be written: %1").arg(d->file->errorString()));
        return;
    }
    abandon();
    d->busy = false;
    Q_EMIT downloadFinished(d->path);
}

void FileDownloader::abandon()
{
    d->network.reset(); // and the reply with it
    d->file.reset();    // removes what it wrote, unless that has become the target
}

void FileDownloader::fail(const QString& text)
{
    abandon();
    d->busy = false;
    Q_EMIT downloadError(text);
}

} // namespace Corvel
