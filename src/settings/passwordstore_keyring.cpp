// SPDX-License-Identifier: MIT
#include "ipasswordstore.h"

#include <QObject>

#include <qt6keychain/keychain.h>

namespace CorvelGui {

namespace {

IPasswordStore::Status statusOf(QKeychain::Error error)
{
    switch (error) {
    case QKeychain::NoError:
        return IPasswordStore::Status::Done;
    case QKeychain::EntryNotFound:
        return IPasswordStore::Status::Missing;
    case QKeychain::AccessDenied:
    case QKeychain::AccessDeniedByUser:
        return IPasswordStore::Status::Denied;
    default:
        return IPasswordStore::Status::Unavailable;
    }
}

/// The Secret Service of the desktop, or its wallet. A job that never ends holds up those behind
/// it, and nothing else.
class Keyring : public IPasswordStore
{
public:
    explicit Keyring(const QString& service) : m_service(service) {}

    void read(const QString& key, QObject* context, const Receiver& receive) override
    {
        start(new QKeychain::ReadPasswordJob(m_service), key, context, receive);
    }

    void write(const QString& key, const QString& password, QObject* context,
               const Receiver& receive) override
    {
        auto* job = new QKeychain::WritePasswordJob(m_service);
        job->setTextData(password);
        start(job, key, context, receive);
    }

    void remove(const QString& key, QObject* context, const Receiver& receive) override
    {
        start(new QKeychain::DeletePasswordJob(m_service), key, context, receive);
    }

private:
    static void start(QKeychain::Job* job, const QString& key, QObject* context,
                      const Receiver& receive)
    {
        job->setKey(key);
        job->setInsecureFallback(false);
        QObject::connect(job, &QKeychain::Job::finished, context, [receive](QKeychain::Job* done) {
            const auto* reading = qobject_cast<QKeychain::ReadPasswordJob*>(done);
            receive({.status = statusOf(done->error()),
                     .password = reading && !done->error() ? reading->textData() : QString(),
                     .reason = done->error() ? done->errorString() : QString()});
        });
        job->start(); // deletes itself at its end
    }

    const QString m_service;
};

} // namespace

std::unique_ptr<IPasswordStore> IPasswordStore::ofSystem(const QString& service)
{
    return std::make_unique<Keyring>(service);
}

} // namespace CorvelGui
