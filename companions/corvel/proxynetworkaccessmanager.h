// SPDX-License-Identifier: MIT
#pragma once

#include "requestlimits.h"

#include <Corvel/corvel_export.h>

#include <QNetworkAccessManager>

namespace Corvel {

struct ProxyUserSettings;

/// Makes GET requests by the user's proxy and keeps each of them within limits: a deadline for the
/// whole, a longest silence of the server, a size of the body, at most five redirects, none of them
/// from https to http or to anything but a web address. It takes web addresses only, asks for
/// bodies as they are (uncompressed) and stores no cookies. Requests other than GET fail.
///
/// A reply succeeds when the answer has status 200 and all of its body arrived. Its errorString()
/// is for the user and holds no text of the server. Unlike with Qt's own replies, every slot of a
/// reply may delete it and the manager.
class CORVEL_EXPORT ProxyNetworkAccessManager : public QNetworkAccessManager
{
    Q_OBJECT
    Q_PROPERTY(Corvel::RequestLimits limits READ limits WRITE setLimits)

public:
    /// Goes straight to the server until Init().
    explicit ProxyNetworkAccessManager(QObject* parent = nullptr);
    ~ProxyNetworkAccessManager() override;

    /// Takes a copy of @p settings for all requests made from now on, and forgets connections and
    /// credentials of earlier ones.
    void Init(const ProxyUserSettings& settings);

    /// For all requests made from now on.
    void setLimits(const RequestLimits& limits);
    RequestLimits limits() const;

protected:
    QNetworkReply* createRequest(Operation operation, const QNetworkRequest& request,
                                 QIODevice* outgoingData) override;

private:
    RequestLimits m_limits;
};

} // namespace Corvel
