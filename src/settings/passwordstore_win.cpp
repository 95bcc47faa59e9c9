// SPDX-License-Identifier: MIT
#include "ipasswordstore.h"

#include <QMetaObject>
#include <QObject>

#include <windows.h>

#include <wincred.h>

namespace CorvelGui {

namespace {

/// The credential manager. It asks nobody and knows the user's session, so it answers in no time.
class CredentialManager : public IPasswordStore
{
public:
    explicit CredentialManager(const QString& service) : m_service(service) {}

    void read(const QString& key, QObject* context, const Receiver& receive) override
    {
        later(context, receive, [target = targetOf(key)] {
            PCREDENTIALW found = nullptr;
            if (!CredReadW(target.c_str(), CRED_TYPE_GENERIC, 0, &found))
                return failure();
            const auto* text = reinterpret_cast<const QChar*>(found->CredentialBlob);
            Answer answer{.status = Status::Done,
                          .password = QString(text, found->CredentialBlobSize / sizeof(QChar))};
            CredFree(found);
            return answer;
        });
    }

    void write(const QString& key, const QString& password, QObject* context,
               const Receiver& receive) override
    {
        later(context, receive,
              [target = targetOf(key), user = key.toStdWString(), text = password.toStdWString()] {
                  // It takes places that could be written to, and only reads them.
                  CREDENTIALW credential{};
                  credential.Type = CRED_TYPE_GENERIC;
                  credential.TargetName = const_cast<LPWSTR>(target.c_str());
                  credential.UserName = const_cast<LPWSTR>(user.c_str());
                  credential.CredentialBlobSize = DWORD(text.size() * sizeof(wchar_t));
                  credential.CredentialBlob =
                      reinterpret_cast<LPBYTE>(const_cast<LPWSTR>(text.c_str()));
                  credential.Persist = CRED_PERSIST_LOCAL_MACHINE;
                  return CredWriteW(&credential, 0) ? Answer{.status = Status::Done} : failure();
              });
    }

    void remove(const QString& key, QObject* context, const Receiver& receive) override
    {
        later(context, receive, [target = targetOf(key)] {
            return CredDeleteW(target.c_str(), CRED_TYPE_GENERIC, 0)
                       ? Answer{.status = Status::Done}
                       : failure();
        });
    }

private:
    std::wstring targetOf(const QString& key) const
    {
        return (m_service + u'/' + key).toStdWString();
    }

    static Answer failure()
    {
        const DWORD error = GetLastError();
        if (error == ERROR_NOT_FOUND)
            return {.status = Status::Missing};
        const bool denied = error == ERROR_ACCESS_DENIED;
        return {.status = denied ? Status::Denied : Status::Unavailable,
                .reason = qt_error_string(int(error))};
    }

    template <typename Request>
    static void later(QObject* context, const Receiver& receive, const Request& request)
    {
        QMetaObject::invokeMethod(
            context, [receive, request] { receive(request()); }, Qt::QueuedConnection);
    }

    const QString m_service;
};

} // namespace

std::unique_ptr<IPasswordStore> IPasswordStore::ofSystem(const QString& service)
{
    return std::make_unique<CredentialManager>(service);
}

} // namespace CorvelGui
