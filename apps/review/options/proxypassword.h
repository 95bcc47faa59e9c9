// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/IPasswordStore>

#include <QObject>

namespace Review {

class SettingsStore;

/// Brings the password of the proxy from the password store into the settings, and what the user
/// makes of it back. A password that an earlier version wrote into the file of the settings moves
/// into the store.
class ProxyPassword : public QObject
{
    Q_OBJECT

public:
    /// Owns neither; both must live longer. Fetches what is remembered.
    ProxyPassword(SettingsStore& settings, CorvelGui::IPasswordStore& store);

Q_SIGNALS:
    /// Emitted when a password that is to be remembered could not be kept. It holds until the
    /// program ends. @p reason is what the store says, if anything.
    void notKept(const QString& reason);

private:
    void moveFromFile();
    void fetch();
    void follow();
    void write();

    SettingsStore& m_settings;
    CorvelGui::IPasswordStore& m_store;
    QString m_password; ///< what the store has, as far as known
    bool m_remember;
};

} // namespace Review
