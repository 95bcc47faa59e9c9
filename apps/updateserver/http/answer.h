// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>

#include <optional>

namespace LocalHttp {

struct Header
{
    QByteArray name;
    QByteArray value;
};

struct Request
{
    QByteArray method = {};
    QByteArray target = {}; ///< with its query; as the client wrote it
    QList<Header> headers = {};

    /// The value of the first header of that name, in any case of letters, or an empty one.
    QByteArray header(const QByteArray& name) const;
};

/// What a server sends for one request, well-behaved or not.
struct Answer
{
    /// How the bytes get to the client.
    enum class Pace {
        AtOnce,  ///< all of them, then the connection is closed
        Never,   ///< none; the connection stays open
        Slow,    ///< the head at once, then one byte of the body per second
        Endless, ///< the body over and over
    };

    int status = 200;
    QByteArray reason = "OK";
    QList<Header> headers; ///< beside Content-Length and Connection
    QByteArray body;
    /// In place of the length of the body; none is announced when it is negative.
    std::optional<qint64> announcedLength;
    Pace pace = Pace::AtOnce;

    static Answer ok(const QByteArray& body, const QByteArray& type = "text/plain; charset=utf-8");
    static Answer error(int status, const QByteArray& reason);
    static Answer redirect(const QByteArray& location);

    /// Status line and headers, as they go to the client.
    QByteArray head() const;
};

} // namespace LocalHttp
