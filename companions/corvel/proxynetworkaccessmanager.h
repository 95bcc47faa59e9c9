#pragma once

#include "requestlimits.h"

#include <Corvel/corvel_export.h>

#include <QNetworkAccessManager>

namespace Corvel {

struct ProxyUserSettings;

/// Makes requests by the user's proxy and keeps each of them within limits: a deadline for the
/// whole, a longest silence of the server, at most five redirects, none of them from https to http
/// or to anything but a web address. It takes web addresses only, asks for bodies as they are
/// (uncompressed) and stores no cookies.
///
/// A request that breaks a limit is aborted; errorText() then says which one it was.
class CORVEL_EXPORT ProxyNetworkAccessManager : public QNetworkAccessManager
{
    Q_OBJECT

public:
    /// Goes straight to the server until Init().
    explicit ProxyNetworkAccessManager(QObject* parent = nullptr);
    ~ProxyNetworkAccessManager() override;

    /// Takes a copy of @p settings for all requests made from now on, and forgets connections and
    /// credentials of earlier ones.
    void Init(const ProxyUserSettings& settings);

    /// For all requests made from now on.
    void setLimits(const RequestLimits& limits);

    /// What has arrived of the body of @p reply and was not read yet. Once all that was read this
    /// way is more than the size limit, the request is aborted and the rest comes back empty:
    /// finished() is then emitted before this returns. @p reply is one of such a manager.
    static QByteArray readArrived(QNetworkReply* reply);

    /// Why @p reply failed, for the user. It holds no text of the server.
    static QString errorText(const QNetworkReply* reply);

protected:
    QNetworkReply* createRequest(Operation operation, const QNetworkRequest& request,
                                 QIODevice* outgoingData) override;

private:
    RequestLimits m_limits;
};

} // namespace Corvel
