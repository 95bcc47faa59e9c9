// SPDX-License-Identifier: MIT
#pragma once

#include "requestlimits.h"

#include <QElapsedTimer>
#include <QNetworkReply>
#include <QTimer>

#include <functional>
#include <memory>

namespace Corvel {

/// A GET that follows redirects and keeps within limits. Qt's own replies make the single steps.
///
/// All signals come from the event loop or from abort(), each as the last deed of its step: so
/// every slot may delete the reply.
class LimitedReply : public QNetworkReply
{
    Q_OBJECT

public:
    using Send = std::function<QNetworkReply*(const QNetworkRequest&)>;

    /// @p send makes the step for a request.
    LimitedReply(const QNetworkRequest& request, const RequestLimits& limits, Send send,
                 QObject* parent);

    void abort() override;
    qint64 bytesAvailable() const override;
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char* data, qint64 maximumSize) override;

private:
    void send(const QUrl& address);
    void proceed();
    bool takeHeaders();
    bool takeBody();
    void conclude();
    void followRedirect(const QUrl& target);
    void end(NetworkError error, const QString& text);
    int status() const;

    const RequestLimits m_limits;
    const Send m_send;
    std::unique_ptr<QNetworkReply> m_step;
    bool m_hasHeaders = false;
    int m_redirects = 0;
    qint64 m_received = 0;
    qint64 m_announced = -1;
    QByteArray m_unread;
    QTimer m_deadline;
    QTimer m_silence;
    QElapsedTimer m_sinceProgress;
};

} // namespace Corvel
