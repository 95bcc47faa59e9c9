// SPDX-License-Identifier: MIT
#include "proxytest.h"

#include <Corvel/RequestLimits>

#include <QLocale>

using Corvel::ProxyNetworkAccessManager;
using Corvel::ProxyUserSettings;
using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr Corvel::RequestLimits limits{.deadline = std::chrono::seconds(20),
                                       .silence = std::chrono::seconds(10)};

} // namespace

ProxyTest::ProxyTest(QObject* parent) : QObject(parent) {}

ProxyTest::~ProxyTest() = default;

void ProxyTest::start(const ProxyUserSettings& settings, const QUrl& address)
{
    cancel();
    m_settings = settings;
    m_network = new ProxyNetworkAccessManager(this);
    m_network->Init(settings);
    m_network->setLimits(limits);
    m_elapsed.start();
    m_reply = m_network->get(QNetworkRequest(address));
    connect(m_reply, &QNetworkReply::finished, this, &ProxyTest::conclude);
}

void ProxyTest::cancel()
{
    if (m_reply)
        m_reply->disconnect(this);
    m_reply = nullptr;
    delete m_network; // and the reply with it
}

void ProxyTest::conclude()
{
    const bool connected = m_reply->error() == QNetworkReply::NoError;
    const QString text =
        connected ? tr("Connected: %1 answered after %2 ms.")
                        .arg(m_reply->url().host(), QLocale().toString(m_elapsed.elapsed()))
                  : failureText();
    m_network->deleteLater();
    m_network = nullptr;
    m_reply = nullptr;
    Q_EMIT ended(connected, text);
}

QString ProxyTest::failureText() const
{
    switch (m_reply->error()) {
    case QNetworkReply::ProxyAuthenticationRequiredError:
        return m_settings.user.isEmpty() ? tr("The proxy asks for a user and a password.")
                                         : tr("The proxy refuses this user or password.");
    case QNetworkReply::HostNotFoundError:
    case QNetworkReply::ProxyNotFoundError:
        if (m_reply->error() == QNetworkReply::HostNotFoundError && !asksProxyItself())
            break;
        return tr("There is no proxy of the name %1.").arg(m_settings.host);
    case QNetworkReply::ConnectionRefusedError:
    case QNetworkReply::ProxyConnectionRefusedError:
    case QNetworkReply::ProxyConnectionClosedError:
    case QNetworkReply::ProxyTimeoutError:
        if (m_reply->error() == QNetworkReply::ConnectionRefusedError && !asksProxyItself())
            break;
        return tr("The proxy does not answer.");
    default:
        break;
    }
    return tr("No connection: %1").arg(m_reply->errorString());
}

// Without encryption the proxy is the server that Qt talks to, and its errors are those of one.
bool ProxyTest::asksProxyItself() const
{
    const QUrl address = m_reply->url();
    return m_settings.mode == ProxyUserSettings::Mode::Http && address.scheme() == "http"_L1 &&
           !m_settings.excludes(address.host());
}

} // namespace CorvelGui
