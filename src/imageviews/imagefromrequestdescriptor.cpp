// SPDX-License-Identifier: MIT
#include "imagefromrequestdescriptor.h"

#include "pictureworks.h"

#include <QFutureWatcher>
#include <QNetworkReply>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace CorvelGui {

struct ImageFromRequestDescriptor::Private
{
    using Watcher = QFutureWatcher<ImageHelper::Picture>;

    ImageHelper::Limits limits;
    Corvel::RequestLimits requestLimits{1min, 15s, 64 * 1024 * 1024};
    bool busy = false;
    std::unique_ptr<QNetworkReply> reply;
    std::unique_ptr<Watcher> watcher;
};

ImageFromRequestDescriptor::ImageFromRequestDescriptor(QObject* parent)
    : QObject(parent), d(std::make_unique<Private>())
{}

ImageFromRequestDescriptor::~ImageFromRequestDescriptor()
{
    cancel();
}

void ImageFromRequestDescriptor::setLimits(const ImageHelper::Limits& limits)
{
    d->limits = limits;
}

const ImageHelper::Limits& ImageFromRequestDescriptor::limits() const
{
    return d->limits;
}

void ImageFromRequestDescriptor::setRequestLimits(const Corvel::RequestLimits& limits)
{
    d->requestLimits = limits;
}

const Corvel::RequestLimits& ImageFromRequestDescriptor::requestLimits() const
{
    return d->requestLimits;
}

void ImageFromRequestDescriptor::request(const QUrl& source)
{
    if (source.isLocalFile())
        return requestFile(source.toLocalFile());
    if (source.scheme() == "qrc"_L1)
        return requestFile(u':' + source.path());
    cancel();
    d->busy = true;
    PictureWorks::instance().enter(this, [this, source] { send(source); });
}

void ImageFromRequestDescriptor::requestFile(const QString& path)
{
    cancel();
    d->busy = true;
    read([path, limits = d->limits] { return ImageHelper::readFile(path, limits); });
}

void ImageFromRequestDescriptor::cancel()
{
    if (!d->busy)
        return;
    d->busy = false;
    d->reply.reset();
    if (d->watcher)
        d->watcher->cancel(); // of what has not begun
    d->watcher.reset();
    PictureWorks::instance().leave(this);
}

bool ImageFromRequestDescriptor::isBusy() const
{
    return d->busy;
}

void ImageFromRequestDescriptor::send(const QUrl& address)
{
    Corvel::RequestLimits limits = d->requestLimits;
    limits.size = std::min(limits.size, d->limits.bytes);
    d->reply.reset(PictureWorks::instance().get(address, limits));
    connect(d->reply.get(), &QNetworkReply::finished, this, [this] {
        const std::unique_ptr<QNetworkReply> reply = std::move(d->reply);
        const bool whole = reply->error() == QNetworkReply::NoError;
        PictureWorks::instance().leave(this);
        if (whole) {
            read([data = reply->readAll(), limits = d->limits] {
                return ImageHelper::read(data, limits);
            });
        } else {
            d->busy = false;
            Q_EMIT failed(reply->errorString());
        }
    });
}

void ImageFromRequestDescriptor::read(const std::function<ImageHelper::Picture()>& read)
{
    d->watcher = std::make_unique<Private::Watcher>();
    connect(d->watcher.get(), &Private::Watcher::finished, this,
            &ImageFromRequestDescriptor::settle, Qt::QueuedConnection);
    d->watcher->setFuture(PictureWorks::instance().read(read));
}

void ImageFromRequestDescriptor::settle()
{
    // Of a request that is over.
    if (!d->watcher || !d->watcher->isFinished())
        return;
    const std::unique_ptr<Private::Watcher> watcher = std::move(d->watcher);
    if (watcher->future().resultCount() == 0) // the application ends
        return;
    d->busy = false;
    const ImageHelper::Picture picture = watcher->result();
    if (picture.error.isEmpty())
        Q_EMIT received(picture.image, picture.fullSize);
    else
        Q_EMIT failed(picture.error);
}

} // namespace CorvelGui
