#include "transfer.h"

#include "proxyusersettings.h"

#include <QNetworkReply>

namespace Corvel {

namespace {

constexpr qint64 bufferSize = 1024 * 1024; // of what arrived faster than it was taken

} // namespace

Transfer::Transfer(const QUrl& url, const RequestLimits& limits, QObject* parent) : QObject(parent)
{
    m_manager.Init(ProxyUserSettings::m_Settings);
    m_manager.setLimits(limits);
    m_reply = m_manager.get(QNetworkRequest(url));
    m_reply->setReadBufferSize(bufferSize);
    connect(m_reply, &QNetworkReply::readyRead, this, &Transfer::proceed, Qt::QueuedConnection);
    connect(m_reply, &QNetworkReply::finished, this, &Transfer::proceed, Qt::QueuedConnection);
}

qint64 Transfer::announcedLength() const
{
    const QVariant length = m_reply->header(QNetworkRequest::ContentLengthHeader);
    return length.isValid() ? length.toLongLong() : -1;
}

void Transfer::proceed()
{
    if (m_ended)
        return;
    if (m_reply->error() == QNetworkReply::NoError && status() == 200) {
        const QByteArray piece = ProxyNetworkAccessManager::readArrived(m_reply);
        if (!piece.isEmpty()) {
            m_received += piece.size();
            // There may be more, and this transfer may not outlive the signal.
            QMetaObject::invokeMethod(this, &Transfer::proceed, Qt::QueuedConnection);
            Q_EMIT arrived(piece);
            return;
        }
    }
    if (!m_reply->isFinished())
        return;
    m_ended = true;
    Q_EMIT finished(fault());
}

int Transfer::status() const
{
    return m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

QString Transfer::fault() const
{
    if (m_reply->error() != QNetworkReply::NoError)
        return ProxyNetworkAccessManager::errorText(m_reply);
    if (status() != 200)
        return tr("The server answered with status %1.").arg(status());
    if (announcedLength() >= 0 && m_received != announcedLength())
        return tr("The connection was closed before everything had arrived.");
    return {};
}

} // namespace Corvel
