#include "filedownloader.h"

#include "transfer.h"
#include "webaddress.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QSaveFile>

#include <optional>

using namespace std::chrono_literals;

namespace Corvel {

namespace {

constexpr qint64 progressInterval = 100; // milliseconds

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
    RequestLimits limits{2h, 30s, qint64(4) * 1024 * 1024 * 1024};
    bool busy = false;
    // All of one download.
    std::unique_ptr<Transfer> transfer;
    std::unique_ptr<QSaveFile> file;
    QString path;
    qint64 received = 0;
    QElapsedTimer sinceProgress;
};

FileDownloader::FileDownloader(QObject* parent) : QObject(parent), d(std::make_unique<Private>()) {}

FileDownloader::~FileDownloader() = default;

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
    d->received = 0;
    d->sinceProgress.invalidate();
    d->transfer = std::make_unique<Transfer>(url, d->limits, nullptr);
    connect(d->transfer.get(), &Transfer::arrived, this, &FileDownloader::takePiece);
    connect(d->transfer.get(), &Transfer::finished, this, &FileDownloader::complete);
    return true;
}

void FileDownloader::cancelDownload()
{
    if (!d->transfer)
        return;
    abandon();
    QMetaObject::invokeMethod(
        this, [this] { fail(tr("The download was cancelled.")); }, Qt::QueuedConnection);
}

bool FileDownloader::isBusy() const
{
    return d->busy;
}

void FileDownloader::takePiece(const QByteArray& piece)
{
    if (d->file->write(piece) != piece.size()) {
        fail(tr("The file cannot be written: %1").arg(d->file->errorString()));
        return;
    }
    d->received += piece.size();
    const qint64 total = d->transfer->announcedLength();
    if (d->sinceProgress.isValid() && !d->sinceProgress.hasExpired(progressInterval) &&
        d->received != total)
        return;
    d->sinceProgress.start();
    Q_EMIT downloadProgress(d->received, total);
}

void FileDownloader::complete(const QString& transferFault)
{
    if (!transferFault.isEmpty()) {
        fail(transferFault);
        return;
    }
    // commit() alone would take a short write for a whole one.
    if (!d->file->flush() || !isReplaceable(d->path) || !d->file->commit()) {
        fail(tr("The file cannot be written: %1").arg(d->file->errorString()));
        return;
    }
    abandon();
    d->busy = false;
    Q_EMIT downloadFinished(d->path);
}

void FileDownloader::abandon()
{
    d->transfer.reset();
    d->file.reset(); // removes what it wrote, unless that has become the target
}

void FileDownloader::fail(const QString& text)
{
    abandon();
    d->busy = false;
    Q_EMIT downloadError(text);
}

} // namespace Corvel
