// SPDX-License-Identifier: MIT
#include "pictureworks.h"

#include <QCoreApplication>
#include <QNetworkReply>
#include <QPromise>

#include <utility>

using Corvel::ProxyNetworkAccessManager;
using Corvel::ProxyUserSettings;

namespace CorvelGui {

namespace {

constexpr int threadCount = 2;
// What waits must not run into the limits of its request.
constexpr int mostRequests = 6;

std::unique_ptr<PictureWorks>& works()
{
    static std::unique_ptr<PictureWorks> works;
    return works;
}

} // namespace

PictureWorks& PictureWorks::instance()
{
    if (!works()) {
        works().reset(new PictureWorks);
        qAddPostRoutine([] { works().reset(); });
    }
    return *works();
}

PictureWorks::PictureWorks() : m_threads(std::make_unique<QThreadPool>())
{
    m_threads->setMaxThreadCount(threadCount);
}

PictureWorks::~PictureWorks()
{
    constexpr int patience = 2'000; // milliseconds
    m_threads->clear();
    // One that hangs in a file of a share that does not answer is left behind.
    if (!m_threads->waitForDone(patience))
        m_threads.release();
}

QFuture<PictureWorks::Picture> PictureWorks::read(const std::function<Picture()>& read)
{
    const auto promise = std::make_shared<QPromise<Picture>>();
    promise->start();
    m_threads->start([promise, read] {
        if (!promise->isCanceled())
            promise->addResult(read());
        promise->finish();
    });
    return promise->future();
}

void PictureWorks::enter(QObject* client, const std::function<void()>& start)
{
    if (m_served.size() >= mostRequests) {
        m_waiting.append({client, start});
        return;
    }
    m_served.append(client);
    start();
}

void PictureWorks::leave(QObject* client)
{
    m_waiting.removeIf([client](const Waiting& waiting) { return waiting.client == client; });
    if (!m_served.removeOne(client) || m_waiting.isEmpty())
        return;
    const Waiting next = m_waiting.takeFirst();
    enter(next.client, next.start);
}

QNetworkReply* PictureWorks::get(const QUrl& address, const Corvel::RequestLimits& limits)
{
    if (!m_network || m_proxy != ProxyUserSettings::m_Settings) {
        m_proxy = ProxyUserSettings::m_Settings;
        m_network = std::make_shared<ProxyNetworkAccessManager>();
        m_network->Init(m_proxy);
    }
    m_network->setLimits(limits);
    QNetworkReply* reply = m_network->get(QNetworkRequest(address));
    reply->setParent(nullptr);
    // Each goes on by the proxy with which it began.
    QObject::connect(reply, &QObject::destroyed, reply, [network = m_network] {});
    return reply;
}

} // namespace CorvelGui
