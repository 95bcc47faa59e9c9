// SPDX-License-Identifier: MIT
#include "httpserver.h"

#include <QTcpSocket>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace LocalHttp {

namespace {

constexpr qsizetype maximumHeadLength = 64 * 1024;
constexpr qint64 maximumUnsent = 256 * 1024; // of an endless body

std::optional<Request> parseRequest(const QByteArray& head)
{
    QList<QByteArray> lines = head.split('\n');
    const QList<QByteArray> words = lines.takeFirst().trimmed().split(' ');
    if (words.size() != 3)
        return {};
    Request request{.method = words.at(0), .target = words.at(1), .headers = {}};
    for (const QByteArray& line : lines) {
        const qsizetype colon = line.indexOf(':');
        if (colon > 0)
            request.headers.append({line.first(colon).trimmed(), line.sliced(colon + 1).trimmed()});
    }
    return request;
}

// Repeats the body as fast as the client takes it.
void sendEndlessly(QTcpSocket* socket, const QByteArray& body)
{
    const QByteArray piece = body.isEmpty() ? QByteArray(1024, 'x') : body;
    const auto sendMore = [socket, piece] {
        while (socket->state() == QAbstractSocket::ConnectedState &&
               socket->bytesToWrite() < maximumUnsent)
            socket->write(piece);
    };
    QObject::connect(socket, &QTcpSocket::bytesWritten, socket, sendMore);
    sendMore();
}

void sendSlowly(QTcpSocket* socket, const QByteArray& body)
{
    auto* timer = new QTimer(socket);
    QObject::connect(timer, &QTimer::timeout, socket, [socket, rest = body]() mutable {
        socket->write(rest.left(1));
        rest.remove(0, 1);
        if (rest.isEmpty())
            socket->disconnectFromHost();
    });
    timer->start(1s);
}

void send(QTcpSocket* socket, const Answer& answer)
{
    if (answer.pace == Answer::Pace::Never)
        return;
    socket->write(answer.head());
    switch (answer.pace) {
    case Answer::Pace::Never:
        break;
    case Answer::Pace::AtOnce:
        socket->write(answer.body);
        socket->disconnectFromHost();
        break;
    case Answer::Pace::Slow:
        sendSlowly(socket, answer.body);
        break;
    case Answer::Pace::Endless:
        sendEndlessly(socket, answer.body);
        break;
    }
}

} // namespace

HttpServer::HttpServer(Handler handler, QObject* parent)
    : QTcpServer(parent), m_handler(std::move(handler))
{
    connect(this, &QTcpServer::newConnection, this, &HttpServer::acceptConnections);
}

bool HttpServer::start(quint16 port)
{
    return listen(QHostAddress::LocalHost, port);
}

QUrl HttpServer::address(const QString& target) const
{
    return QUrl(u"http://127.0.0.1:%1%2"_s.arg(serverPort()).arg(target));
}

void HttpServer::acceptConnections()
{
    while (QTcpSocket* socket = nextPendingConnection()) {
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QTcpSocket::readyRead, this,
                [this, socket, head = QByteArray()]() mutable {
                    head += socket->readAll();
                    const qsizetype end = head.indexOf("\r\n\r\n");
                    if (end < 0 && head.size() <= maximumHeadLength)
                        return;
                    disconnect(socket, &QTcpSocket::readyRead, this, nullptr);
                    const std::optional<Request> request =
                        end < 0 ? std::nullopt : parseRequest(head.first(end));
                    if (!request) {
                        send(socket, Answer::error(400, "Bad Request"));
                        return;
                    }
                    Q_EMIT requested(*request);
                    send(socket, m_handler(*request));
                });
    }
}

} // namespace LocalHttp
