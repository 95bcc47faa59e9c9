// SPDX-License-Identifier: MIT
#include "scriptedserver.h"

using LocalHttp::Answer;
using LocalHttp::Misbehaviour;
using LocalHttp::Request;

ScriptedServer::ScriptedServer()
    : m_server([this](const Request& request) { return answer(request); })
{
    if (!m_server.start())
        qWarning("The test's server cannot listen.");
}

void ScriptedServer::script(const QByteArray& path, const Answer& answer)
{
    m_script.insert(path, [answer](const Request&) { return answer; });
}

void ScriptedServer::script(const QByteArray& path, const QByteArray& body, Misbehaviour how)
{
    m_script.insert(
        path, [=](const Request& request) { return misbehave(how, request, Answer::ok(body)); });
}

QByteArrayList ScriptedServer::targets() const
{
    QByteArrayList targets;
    for (const Request& request : m_requests)
        targets.append(request.target);
    return targets;
}

Answer ScriptedServer::answer(const Request& request)
{
    m_requests.append(request);
    const auto scripted = m_script.constFind(QUrl::fromEncoded(request.target).path().toUtf8());
    return scripted == m_script.cend() ? Answer::error(404, "Not Found") : (*scripted)(request);
}
