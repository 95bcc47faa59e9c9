#include "proxynetworkaccessmanager.h"

#include "proxyusersettings.h"
#include "replyguard.h"
#include "webaddress.h"

#include <QNetworkProxyFactory>
#include <QNetworkReply>

using namespace Qt::StringLiterals;

namespace Corvel {

namespace {

constexpr int maximumRedirects = 5;

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
    const auto useProxy = [&](QNetworkProxy::ProxyType type) {
        setProxy({type, settings.host, settings.port, settings.user, settings.password});
    };
    switch (settings.mode) {
    case ProxyUserSettings::Mode::None:
        setProxy(QNetworkProxy::NoProxy);
        break;
    case ProxyUserSettings::Mode::System:
        setProxyFactory(new SystemProxies(settings.user, settings.password));
        break;
    case ProxyUserSettings::Mode::Http:
        useProxy(QNetworkProxy::HttpProxy);
        break;
    case ProxyUserSettings::Mode::Socks5:
        useProxy(QNetworkProxy::Socks5Proxy);
        break;
    }
}

void ProxyNetworkAccessManager::setLimits(const RequestLimits& limits)
{
    m_limits = limits;
}

QByteArray ProxyNetworkAccessManager::readArrived(QNetworkReply* reply)
{
    return ReplyGuard::of(reply)->readArrived();
}

QString ProxyNetworkAccessManager::errorText(const QNetworkReply* reply)
{
    if (const QString fault = ReplyGuard::of(reply)->fault(); !fault.isEmpty())
        return fault;
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    // The server chooses the words that Qt would show here.
    return status >= 400 ? tr("The server answered with error %1.").arg(status)
                         : reply->errorString();
}

QNetworkReply* ProxyNetworkAccessManager::createRequest(Operation operation,
                                                        const QNetworkRequest& request,
                                                        QIODevice* outgoingData)
{
    QNetworkRequest kept(request);
    kept.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                      QNetworkRequest::UserVerifiedRedirectPolicy);
    kept.setMaximumRedirectsAllowed(maximumRedirects);
    kept.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    kept.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    kept.setRawHeader("Accept-Encoding", "identity");

    const bool leadsToServer = isWebAddress(request.url());
    if (!leadsToServer)
        kept.setUrl({}); // makes a reply that fails by itself, and reads no local file
    QNetworkReply* reply = QNetworkAccessManager::createRequest(operation, kept, outgoingData);
    new ReplyGuard(reply, m_limits,
                   leadsToServer ? QString() : tr("This is not the address of a server."));
    return reply;
}

} // namespace Corvel
