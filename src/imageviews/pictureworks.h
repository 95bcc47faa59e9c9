// SPDX-License-Identifier: MIT
#pragma once

#include "imagehelper.h"

#include <Corvel/ProxyNetworkAccessManager>
#include <Corvel/ProxyUserSettings>
#include <Corvel/RequestLimits>

#include <QFuture>
#include <QList>
#include <QThreadPool>

#include <functional>
#include <memory>

class QNetworkReply;

namespace CorvelGui {

/// The threads and connections that all pictures of the program share, so that a wall of thumbnails
/// takes no more of them than a single picture. GUI thread only.
class PictureWorks
{
public:
    using Picture = ImageHelper::Picture;

    /// Made when it is first asked for, and deleted with the application.
    static PictureWorks& instance();
    ~PictureWorks();

    /// Does @p read on a thread when its turn comes, unless the future was cancelled until then.
    QFuture<Picture> read(const std::function<Picture()>& read);

    /// Calls @p start, now or when those before @p client have left. Each client leaves when its
    /// request is over, or before it is deleted.
    void enter(QObject* client, const std::function<void()>& start);
    /// Does nothing to those who are not there.
    void leave(QObject* client);
    /// By the user's proxy. The caller owns the reply.
    QNetworkReply* get(const QUrl& address, const Corvel::RequestLimits& limits);

private:
    struct Waiting
    {
        QObject* client;
        std::function<void()> start;
    };

    PictureWorks();

    std::unique_ptr<QThreadPool> m_threads;
    std::shared_ptr<Corvel::ProxyNetworkAccessManager> m_network;
    Corvel::ProxyUserSettings m_proxy;
    QList<QObject*> m_served;
    QList<Waiting> m_waiting;
};

} // namespace CorvelGui
