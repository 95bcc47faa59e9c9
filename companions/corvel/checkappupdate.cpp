#include "checkappupdate.h"

#include "transfer.h"
#include "updateanswer.h"

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
    std::unique_ptr<Transfer> transfer;
    QVersionNumber current;
    QByteArray answer;
};

CheckAppUpdate::CheckAppUpdate(const QString& serverBase, QObject* parent)
    : QObject(parent), d(std::make_unique<Private>())
{
    d->serverBase = serverBase;
}

CheckAppUpdate::~CheckAppUpdate() = default;

void CheckAppUpdate::setLimits(const RequestLimits& limits)
{
    d->limits = limits;
}

void CheckAppUpdate::checkForUpdates(const QString& key, const QVersionNumber& current)
{
    d->current = current;
    d->answer.clear();
    d->transfer =
        std::make_unique<Transfer>(queryAddress(d->serverBase, key, current), d->limits, nullptr);
    connect(d->transfer.get(), &Transfer::arrived, this,
            [this](const QByteArray& piece) { d->answer += piece; });
    connect(d->transfer.get(), &Transfer::finished, this, &CheckAppUpdate::complete);
}

bool CheckAppUpdate::isBusy() const
{
    return d->transfer != nullptr;
}

void CheckAppUpdate::complete(const QString& transferFault)
{
    d->transfer.reset();
    if (!transferFault.isEmpty()) {
        Q_EMIT appUpdateInfoError(transferFault);
        return;
    }
    UpdateAnswer answer = parseUpdateAnswer(d->answer);
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
