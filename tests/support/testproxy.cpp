#include "testproxy.h"

#include <QNetworkProxy>
#include <QTcpSocket>
#include <QUrl>
#include <QtEndian>

namespace {

// Takes a message from what the client sent once all of it is there; empty before that.
QByteArray takeMessage(QTcpSocket* client, qint64 length)
{
    return client->bytesAvailable() < length ? QByteArray() : client->read(length);
}

} // namespace

TestProxy::TestProxy(Kind kind)
{
    connect(this, &QTcpServer::newConnection, this, [this, kind] {
        while (QTcpSocket* client = nextPendingConnection()) {
            connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
            connect(client, &QTcpSocket::readyRead, this, [this, kind, client] {
                kind == Kind::Http ? talkHttp(client) : talkSocks(client);
            });
        }
    });
    if (!listen(QHostAddress::LocalHost))
        qWarning("The test's proxy cannot listen.");
}

void TestProxy::talkHttp(QTcpSocket* client)
{
    const QByteArray head = client->peek(64 * 1024);
    if (!head.contains("\r\n\r\n"))
        return;
    client->readAll();
    if (!head.contains("Proxy-Authorization: Basic " + QByteArray("user:secret").toBase64())) {
        client->write("HTTP/1.1 407 Who are you\r\nProxy-Authenticate: Basic realm=\"test\"\r\n"
                      "Content-Length: 0\r\n\r\n");
        return;
    }
    const QUrl address = QUrl::fromEncoded(head.split(' ').at(1));
    passOn(client, quint16(address.port(80)), head);
}

void TestProxy::talkSocks(QTcpSocket* client)
{
    enum { Greeting, Login, Destination };
    const int step = client->property("step").toInt();
    const QByteArray seen = client->peek(512);
    if (step == Greeting && seen.size() >= 2 && !takeMessage(client, 2 + seen.at(1)).isEmpty()) {
        client->write("\x05\x02");
        client->setProperty("step", Login);
    } else if (step == Login && !seen.isEmpty()) {
        client->readAll();
        const bool welcome = seen == "\x01\x04user\x06secret";
        client->write(welcome ? QByteArray("\x01\x00", 2) : QByteArray("\x01\x01", 2));
        client->setProperty("step", Destination);
        if (!welcome)
            client->disconnectFromHost();
    } else if (step == Destination && !takeMessage(client, 10).isEmpty()) {
        client->write(QByteArray("\x05\x00\x00\x01\x00\x00\x00\x00\x00\x00", 10));
        passOn(client, qFromBigEndian<quint16>(seen.constData() + 8), {});
    }
}

void TestProxy::passOn(QTcpSocket* client, quint16 port, const QByteArray& first)
{
    ++m_passed;
    auto* server = new QTcpSocket(client);
    server->setProxy(QNetworkProxy::NoProxy);
    client->disconnect(this);
    connect(client, &QTcpSocket::readyRead, server, [=] { server->write(client->readAll()); });
    connect(server, &QTcpSocket::readyRead, client, [=] { client->write(server->readAll()); });
    connect(server, &QTcpSocket::disconnected, client, &QTcpSocket::disconnectFromHost);
    server->connectToHost(QHostAddress::LocalHost, port);
    server->write(first);
}
