#pragma once

#include "proxynetworkaccessmanager.h"

class QNetworkReply;

namespace Corvel {

/// One GET by the user's proxy, from its start to its end, sharing nothing with any other one.
///
/// Its signals come from the event loop alone, never from within the reply: so every slot may
/// delete the transfer. Deleting it is also how to cancel it.
class Transfer : public QObject
{
    Q_OBJECT

public:
    Transfer(const QUrl& url, const RequestLimits& limits, QObject* parent);

    /// The announced length of the body, or -1.
    qint64 announcedLength() const;

Q_SIGNALS:
    /// A next piece of the body of a good answer; never an empty one.
    void arrived(const QByteArray& piece);
    /// Emitted once, as the last signal. @p fault is empty when all of the body arrived.
    void finished(const QString& fault);

private:
    void proceed();
    int status() const;
    QString fault() const;

    ProxyNetworkAccessManager m_manager;
    QNetworkReply* m_reply = nullptr;
    qint64 m_received = 0;
    bool m_ended = false;
};

} // namespace Corvel
