#include "replyguard.h"

#include "webaddress.h"

#include <QLocale>
#include <QNetworkReply>

namespace Corvel {

ReplyGuard::ReplyGuard(QNetworkReply* reply, const RequestLimits& limits, const QString& fault)
    : QObject(reply), m_reply(reply), m_limits(limits), m_fault(fault), m_address(reply->url())
{
    const auto startTimer = [this](QTimer& timer, std::chrono::milliseconds limit) {
        timer.setSingleShot(true);
        timer.start(limit);
        connect(m_reply, &QNetworkReply::finished, &timer, &QTimer::stop);
    };
    startTimer(m_deadline, limits.deadline);
    startTimer(m_silence, limits.silence);
    connect(&m_deadline, &QTimer::timeout, this,
            [this] { refuse(tr("The server did not finish in time.")); });
    connect(&m_silence, &QTimer::timeout, this,
            [this] { refuse(tr("The server does not answer.")); });
    const auto restartSilence = [this] {
        if (m_reply->isRunning())
            m_silence.start();
    };
    connect(reply, &QNetworkReply::readyRead, this, restartSilence);
    connect(reply, &QNetworkReply::uploadProgress, this, restartSilence);
    connect(reply, &QNetworkReply::redirected, this, restartSilence);
    connect(reply, &QNetworkReply::redirected, this, &ReplyGuard::followRedirect);
    connect(reply, &QNetworkReply::metaDataChanged, this, &ReplyGuard::checkHeaders);
}

ReplyGuard* ReplyGuard::of(const QNetworkReply* reply)
{
    return reply->findChild<ReplyGuard*>({}, Qt::FindDirectChildrenOnly);
}

QByteArray ReplyGuard::readArrived()
{
    if (m_reply->bytesAvailable() > m_limits.size - m_read) {
        refuseSize();
        return {};
    }
    const QByteArray arrived = m_reply->readAll();
    m_read += arrived.size();
    return arrived;
}

void ReplyGuard::checkHeaders()
{
    if (m_reply->header(QNetworkRequest::ContentLengthHeader).toLongLong() > m_limits.size)
        refuseSize();
}

void ReplyGuard::followRedirect(const QUrl& target)
{
    if (!mayRedirect(m_address, target)) {
        refuse(tr("The server leads to an address that is not safe."));
        return;
    }
    m_address = target;
    Q_EMIT m_reply->redirectAllowed();
}

void ReplyGuard::refuseSize()
{
    refuse(tr("The server sends more than %1.").arg(QLocale().formattedDataSize(m_limits.size)));
}

void ReplyGuard::refuse(const QString& fault)
{
    if (m_reply->isFinished())
        return;
    m_fault = fault;
    m_reply->abort(); // emits finished(), and may thereby be the end of this guard
}

} // namespace Corvel
