#pragma once

#include "requestlimits.h"

#include <QObject>
#include <QTimer>
#include <QUrl>

class QNetworkReply;

namespace Corvel {

/// Keeps one reply, its parent, within limits, and remembers why it was aborted.
class ReplyGuard : public QObject
{
    Q_OBJECT

public:
    /// A reply that cannot but fail comes with the @p fault to tell.
    ReplyGuard(QNetworkReply* reply, const RequestLimits& limits, const QString& fault);

    /// The guard of a reply that ProxyNetworkAccessManager made.
    static ReplyGuard* of(const QNetworkReply* reply);

    QByteArray readArrived();
    /// Empty when the reply failed for another reason, or not at all.
    QString fault() const { return m_fault; }

private:
    void checkHeaders();
    void followRedirect(const QUrl& target);
    void refuseSize();
    void refuse(const QString& fault);

    QNetworkReply* const m_reply;
    const RequestLimits m_limits;
    QString m_fault;
    QUrl m_address;
    qint64 m_read = 0;
    QTimer m_deadline;
    QTimer m_silence;
};

} // namespace Corvel
