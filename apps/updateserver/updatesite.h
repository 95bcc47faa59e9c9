// SPDX-License-Identifier: MIT
#pragma once

#include <answer.h>
#include <misbehaviour.h>

#include <QCoreApplication>
#include <QUrl>
#include <QVersionNumber>

namespace UpdateServer {

/// What the server offers, and how it behaves.
struct Offer
{
    QVersionNumber version{99, 0, 0, 0};
    qint64 installerSize = 5'000'000;
    bool internalChannel = false; ///< offers a version file in the folder "internal" as well
    LocalHttp::Misbehaviour misbehaviour = LocalHttp::Misbehaviour::None;
    QString only; ///< which content misbehaves; all when empty
};

/// The names of the contents that a server has.
QStringList contentNames();

/// The pages of an update server: the version file with its change log and installer, the update
/// query with its download, and a feed of news.
class UpdateSite
{
    Q_DECLARE_TR_FUNCTIONS(UpdateServer::UpdateSite)

public:
    /// @p base is the address of the server, without a slash at its end.
    UpdateSite(const Offer& offer, const QString& base);

    LocalHttp::Answer answer(const LocalHttp::Request& request) const;

private:
    QString contentFor(const QUrl& address) const;
    LocalHttp::Answer goodAnswer(const QString& content) const;
    QByteArray versionFile() const;
    QByteArray queryAnswer() const;
    QByteArray feed() const;
    QByteArray installer() const;
    QString installerName() const;

    const Offer m_offer;
    const QString m_base;
};

} // namespace UpdateServer
