// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QString>

#include <functional>
#include <memory>

class QObject;

namespace CorvelGui {

/// Where passwords outlive the program. Every request returns at once: the store may have to ask
/// the user, and may never answer.
class CORVELGUI_EXPORT IPasswordStore
{
public:
    enum class Status {
        Done,
        Missing,     ///< there is no password of that key
        Denied,      ///< the user, or the system, did not permit it
        Unavailable, ///< there is no store, or none that works
    };

    /// What came of a request.
    struct Answer
    {
        Status status = Status::Unavailable;
        QString password = {}; ///< of a read that is done
        QString reason = {};   ///< what the store says of a failure, if it does; plain text
    };
    using Receiver = std::function<void(const Answer&)>;

    /// The store of the operating system: the keyring or wallet of the desktop, the credential
    /// manager of Windows. It always exists, but may answer that it is unavailable. @p service
    /// names the program; programs of one name share their passwords.
    static std::unique_ptr<IPasswordStore> ofSystem(const QString& service);

    virtual ~IPasswordStore();

    /// @p receive gets the answer from the event loop, once at most, and not after @p context is
    /// gone; it may delete both. Requests are carried out in their order.
    virtual void read(const QString& key, QObject* context, const Receiver& receive) = 0;
    /// Likewise; replaces the password that @p key had.
    virtual void write(const QString& key, const QString& password, QObject* context,
                       const Receiver& receive) = 0;
    /// Likewise. Where there was nothing to remove the answer is Status::Missing, or Status::Done
    /// from a store that does not tell.
    virtual void remove(const QString& key, QObject* context, const Receiver& receive) = 0;

protected:
    IPasswordStore() = default;
    IPasswordStore(const IPasswordStore&) = default;
    IPasswordStore& operator=(const IPasswordStore&) = default;
};

} // namespace CorvelGui
