// SPDX-License-Identifier: MIT
#include "proxynetworkaccessmanager.h"

#include "limitedreply.h"
#include "proxyusersettings.h"
#include "webaddress.h"

#include <QNetworkProxyFactory>

using namespace Qt::StringLiterals;

namespace Corvel {

namespace {

class SystemProxies : public QNetworkProxyFactory
{
public:
    SystemProxies(const QString& user, const QString& password) : m_user(user), m_password(password)
    {}

    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override
    {
        QList<QNetworkProxy> proxies = systemProxyForQuery(query);
        for (QNetworkProxy& proxy : proxies) {
            if (proxy.type() == QNetworkProxy::NoProxy || !proxy.user().isEmpty())
                continue;
            proxy.setUser(m_user);
            proxy.setPassword(m_password);
        }
        return proxies;
    }

private:
    const QString m_user;
    const QString m_password;
};

class NamedProxy : public QNetworkProxyFactory
{
public:
    NamedProxy(QNetworkProxy::ProxyType type, const ProxyUserSettings& settings)
        : m_settings(settings)
        , m_proxy(type, settings.host, settings.port, settings.user, settings.password)
    {}

    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override
    {
        const bool direct = m_settings.excludes(query.peerHostName());
        return {direct ? QNetworkProxy(QNetworkProxy::NoProxy) : m_proxy};
    }

private:
    const ProxyUserSettings m_settings;
    const QNetworkProxy m_proxy;
};

} // namespace

ProxyNetworkAccessManager::ProxyNetworkAccessManager(QObject* parent)
    : QNetworkAccessManager(parent)
{
    setProxy(QNetworkProxy::NoProxy);
}

ProxyNetworkAccessManager::~ProxyNetworkAccessManager() = default;

void ProxyNetworkAccessManager::Init(const ProxyUserSettings& settings)
{
    clearAccessCache(); // which clears the connections as well
    switch (settings.mode) {
    case ProxyUserSettings::Mode::None:
        setProxy(QNetworkProxy::NoProxy);
        break;
    case ProxyUserSettings::Mode::System:
        setProxyFactory(new SystemProxies(settings.user, settings.password));
        break;
    case ProxyUserSettings::Mode::Http:
        setProxyFactory(new NamedProxy(QNetworkProxy::HttpProxy, settings));
        break;
    case ProxyUserSettings::Mode::Socks5:
        setProxyFactory(new NamedProxy(QNetworkProxy::Socks5Proxy, settings));
        break;
    }
}

RequestLimits ProxyNetworkAccessManager::limits() const
{
    return m_limits;
}

void ProxyNetworkAccessManager::setLimits(const RequestLimits& limits)
{
    m_limits = limits;
}

QNetworkReply* ProxyNetworkAccessManager::createRequest(Operation operation,
                                                        const QNetworkRequest& request, QIODevice*)
{
    QNetworkRequest kept(request);
    // Followed by Qt, a redirect of a server that closes the connection may end as a good answer.
    kept.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                      QNetworkRequest::ManualRedirectPolicy);
    kept.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    kept.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    kept.setRawHeader("Accept-Encoding", "identity");
    const auto send = [this, operation](const QNetworkRequest& step) {
        const bool allowed = operation == GetOperation && isWebAddress(step.url());
        // Without an address the step fails by itself; a local one would be read.
        return QNetworkAccessManager::createRequest(GetOperation,
                                                    allowed ? step : QNetworkRequest(), nullptr);
    };
    return new LimitedReply(kept, m_limits, send, this);
}

} // namespace Corvel
