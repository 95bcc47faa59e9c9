// SPDX-License-Identifier: MIT
#include "checkappupdate.h"

#include "proxynetworkaccessmanager.h"
#include "proxyusersettings.h"
#include "updateanswer.h"

#include <QNetworkReply>
#include <QUrl>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Corvel {

namespace {

QUrl queryAddress(const QString& serverBase, const QString& key, const QVersionNumber& version)
{
    const QString encodedKey = QString::fromLatin1(QUrl::toPercentEncoding(key));
    return QUrl(serverBase + u"/update?key="_s + encodedKey + u"&version="_s + version.toString());
}

} // namespace

struct CheckAppUpdate::Private
{
    QString serverBase;
    RequestLimits limits{30s, 15s, 64 * 1024};
    // All of one query.
    std::unique_ptr<ProxyNetworkAccessManager> network;
    QVersionNumber current;
};

CheckAppUpdate::CheckAppUpdate(const QString& serverBase, QObject* parent)
    : QObject(parent), d(std::make_unique<Private>())
{
    d->serverBase = serverBase;
}

CheckAppUpdate::~CheckAppUpdate() = default;

RequestLimits CheckAppUpdate::limits() const
{
    return d->limits;
}

void CheckAppUpdate::setLimits(const RequestLimits& limits)
{
    d->limits = limits;
}

void CheckAppUpdate::checkForUpdates(const QString& key, const QVersionNumber& current)
{
    d->current = current;
    d->network = std::make_unique<ProxyNetworkAccessManager>();
    d->network->Init(ProxyUserSettings::m_Settings);
    d->network->setLimits(d->limits);
    QNetworkReply* reply =
        d->network->get(QNetworkRequest(queryAddress(d->serverBase, key, current)));
    connect(reply, &QNetworkReply::finished, this, [this, reply] { complete(*reply); });
}

bool CheckAppUpdate::isBusy() const
{
    return d->network != nullptr;
}

void CheckAppUpdate::complete(QNetworkReply& reply)
{
    UpdateAnswer answer;
    if (reply.error() == QNetworkReply::NoError)
        answer = parseUpdateAnswer(reply.readAll());
    else
        answer.fault = reply.errorString();
    d->network.reset(); // and the reply with it
    if (!answer.fault.isEmpty()) {
        Q_EMIT appUpdateInfoError(answer.fault);
        return;
    }
    // 2.1 and 2.1.0 are the same release.
    if (answer.result.newVersion.normalized() <= d->current.normalized())
        answer.result.updateAvailable = false;
    Q_EMIT appUpdateInfoResult(answer.result);
}

} // namespace Corvel
