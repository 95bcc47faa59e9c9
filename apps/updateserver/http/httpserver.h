// SPDX-License-Identifier: MIT
#pragma once

#include "answer.h"

#include <QTcpServer>
#include <QUrl>

#include <functional>

namespace LocalHttp {

/// A small HTTP server on 127.0.0.1 for tests and demonstrations, on the thread that made it. It
/// takes requests without a body, one per connection.
class HttpServer : public QTcpServer
{
    Q_OBJECT

public:
    using Handler = std::function<Answer(const Request&)>;

    explicit HttpServer(Handler handler, QObject* parent = nullptr);

    /// Starts to listen; port 0 takes any free one. False when that is not possible.
    bool start(quint16 port = 0);
    /// The address of @p target, which begins with a slash.
    QUrl address(const QString& target) const;

Q_SIGNALS:
    /// Emitted for every request, just before it is answered.
    void requested(const LocalHttp::Request& request);

private:
    void acceptConnections();

    const Handler m_handler;
};

} // namespace LocalHttp
