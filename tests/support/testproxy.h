#pragma once

#include <QTcpServer>

class QTcpSocket;

/// A proxy on 127.0.0.1 that asks for "user" and "secret". Every server is on this machine for it,
/// whatever its name. The HTTP one takes whole addresses, not CONNECT.
class TestProxy : public QTcpServer
{
    Q_OBJECT

public:
    enum class Kind { Http, Socks5 };

    explicit TestProxy(Kind kind);

    /// How many connections it passed on.
    int passed() const { return m_passed; }

private:
    void talkHttp(QTcpSocket* client);
    void talkSocks(QTcpSocket* client);
    void passOn(QTcpSocket* client, quint16 port, const QByteArray& first);

    int m_passed = 0;
};
