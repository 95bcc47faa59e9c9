// SPDX-License-Identifier: MIT
#include "limitedreply.h"

#include "webaddress.h"

#include <QLocale>
#include <QPointer>

#include <algorithm>

namespace Corvel {

namespace {

constexpr int maximumRedirects = 5;
constexpr qint64 stepBufferSize = 1024 * 1024; // of what arrives faster than it is taken
constexpr qint64 progressInterval = 100;       // milliseconds

} // namespace

LimitedReply::LimitedReply(const QNetworkRequest& request, const RequestLimits& limits, Send send,
                           QObject* parent)
    : QNetworkReply(parent), m_limits(limits), m_send(std::move(send))
{
    setRequest(request);
    setOperation(QNetworkAccessManager::GetOperation);
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);

    m_deadline.setSingleShot(true);
    m_silence.setSingleShot(true);
    connect(&m_deadline, &QTimer::timeout, this,
            [this] { end(TimeoutError, tr("The server did not finish in time.")); });
    connect(&m_silence, &QTimer::timeout, this,
            [this] { end(TimeoutError, tr("The server does not answer.")); });
    m_deadline.start(m_limits.deadline);
    m_silence.start(m_limits.silence);
    this->send(request.url());
}

void LimitedReply::send(const QUrl& address)
{
    setUrl(address);
    QNetworkRequest next = request();
    next.setUrl(address);
    m_received = 0;
    m_step.reset(m_send(next));
    m_step->setParent(nullptr); // or a manager that is deleted would delete it twice
    m_step->setReadBufferSize(stepBufferSize);
    const auto later = Qt::QueuedConnection;
    connect(m_step.get(), &QNetworkReply::metaDataChanged, this, &LimitedReply::proceed, later);
    connect(m_step.get(), &QNetworkReply::readyRead, this, &LimitedReply::proceed, later);
    connect(m_step.get(), &QNetworkReply::finished, this, &LimitedReply::proceed, later);
}

void LimitedReply::abort()
{
    end(OperationCanceledError, tr("The request was cancelled."));
}

qint64 LimitedReply::bytesAvailable() const
{
    return QNetworkReply::bytesAvailable() + m_unread.size();
}

qint64 LimitedReply::readData(char* data, qint64 maximumSize)
{
    if (m_unread.isEmpty() && isFinished())
        return -1;
    const qsizetype size = std::min<qint64>(maximumSize, m_unread.size());
    std::copy_n(m_unread.constData(), size, data);
    m_unread.remove(0, size);
    return size;
}

void LimitedReply::proceed()
{
    // A late signal of a step that is over.
    if (isFinished() || !m_step)
        return;
    if (takeHeaders() && takeBody() && m_step->isFinished() && m_step->bytesAvailable() == 0)
        conclude();
}

// Like takeBody(), returns whether this reply goes on.
bool LimitedReply::takeHeaders()
{
    if (m_hasHeaders || status() != 200)
        return true;
    m_hasHeaders = true;
    for (const auto& [name, value] : m_step->rawHeaderPairs())
        setRawHeader(name, value);
    setAttribute(QNetworkRequest::HttpStatusCodeAttribute, status());
    if (const QVariant length = header(QNetworkRequest::ContentLengthHeader); length.isValid())
        m_announced = length.toLongLong();
    const QPointer<LimitedReply> alive(this);
    Q_EMIT metaDataChanged();
    return alive && !isFinished();
}

bool LimitedReply::takeBody()
{
    const QByteArray arrived = m_step->readAll();
    m_received += arrived.size();
    if (std::max(m_received, m_announced) > m_limits.size) {
        end(UnknownContentError,
            tr("The server sends more than %1.").arg(QLocale().formattedDataSize(m_limits.size)));
        return false;
    }
    if (arrived.isEmpty())
        return true;
    m_silence.start();
    if (status() != 200) // the page that comes with a failure or a redirect is for nobody
        return true;
    m_unread += arrived;

    const QPointer<LimitedReply> alive(this);
    Q_EMIT readyRead();
    if (!alive || isFinished())
        return false;
    if (!m_sinceProgress.isValid() || m_sinceProgress.hasExpired(progressInterval) ||
        m_received == m_announced) {
        m_sinceProgress.start();
        Q_EMIT downloadProgress(m_received, m_announced);
    }
    return alive && !isFinished();
}

void LimitedReply::conclude()
{
    const QUrl target = m_step->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    // The server chooses the words that Qt would show for these.
    const QString badStatus = tr("The server answered with status %1.").arg(status());
    // Qt takes some of the connections that close too early for good ones.
    const bool cut = status() == 200 && m_announced >= 0 && m_received != m_announced;
    if (!isWebAddress(url()))
        end(ProtocolUnknownError, tr("This is not the address of a server."));
    else if (m_step->error() == RemoteHostClosedError || (m_step->error() == NoError && cut))
        end(RemoteHostClosedError, tr("The connection was closed too early."));
    else if (m_step->error() != NoError)
        end(m_step->error(), status() >= 400 ? badStatus : m_step->errorString());
    else if (target.isValid())
        followRedirect(url().resolved(target));
    else if (status() != 200)
        end(UnknownContentError, badStatus);
    else
        end(NoError, {});
}

void LimitedReply::followRedirect(const QUrl& target)
{
    if (!mayRedirect(url(), target)) {
        end(InsecureRedirectError, tr("The server leads to an address that is not safe."));
    } else if (++m_redirects > maximumRedirects) {
        end(TooManyRedirectsError, tr("The server leads in circles."));
    } else {
        m_silence.start();
        send(target);
    }
}

void LimitedReply::end(NetworkError error, const QString& text)
{
    if (isFinished())
        return;
    m_deadline.stop();
    m_silence.stop();
    m_step.reset();
    setFinished(true);
    const QPointer<LimitedReply> alive(this);
    if (error != NoError) {
        setError(error, text);
        Q_EMIT errorOccurred(error);
    }
    if (alive)
        Q_EMIT finished();
}

int LimitedReply::status() const
{
    return m_step->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

} // namespace Corvel
