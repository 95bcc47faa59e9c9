// SPDX-License-Identifier: MIT
#pragma once

#include <httpserver.h>
#include <misbehaviour.h>

#include <QMap>

/// A local HTTP server that answers as a test says and records what it was asked.
class ScriptedServer : public QObject
{
    Q_OBJECT

public:
    ScriptedServer();

    /// Answers requests for @p path, whatever query follows it. Without a script it is 404.
    void script(const QByteArray& path, const LocalHttp::Answer& answer);
    /// The same, with @p body put in a good answer that misbehaves.
    void script(const QByteArray& path, const QByteArray& body,
                LocalHttp::Misbehaviour how = LocalHttp::Misbehaviour::None);

    QUrl address(const QString& target) const { return m_server.address(target); }
    /// What an address on this server begins with, without a slash at its end.
    QString base() const { return address({}).toString(); }

    /// All requests, in order.
    const QList<LocalHttp::Request>& requests() const { return m_requests; }
    /// Their targets.
    QByteArrayList targets() const;

private:
    LocalHttp::Answer answer(const LocalHttp::Request& request);

    QMap<QByteArray, std::function<LocalHttp::Answer(const LocalHttp::Request&)>> m_script;
    QList<LocalHttp::Request> m_requests;
    LocalHttp::HttpServer m_server;
};
