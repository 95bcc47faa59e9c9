// SPDX-License-Identifier: MIT
#include "proxypassword.h"

#include "settingsstore.h"

using CorvelGui::IPasswordStore;
using namespace Qt::StringLiterals;

namespace Review {

namespace {

const QString proxyKey = u"proxy"_s;

} // namespace

ProxyPassword::ProxyPassword(SettingsStore& settings, IPasswordStore& store)
    : m_settings(settings), m_store(store), m_remember(settings.settings().rememberPassword)
{
    if (!m_settings.passwordInFile().isEmpty())
        moveFromFile();
    else if (m_remember)
        fetch();
    connect(&m_settings, &SettingsStore::changed, this, &ProxyPassword::follow);
}

void ProxyPassword::moveFromFile()
{
    if (!m_remember) { // nobody wants it any more
        m_settings.dropPasswordInFile();
        return;
    }
    m_password = m_settings.passwordInFile();
    m_settings.learnPassword(m_password);
    write();
}

void ProxyPassword::fetch()
{
    m_store.read(proxyKey, this, [this](const IPasswordStore::Answer& answer) {
        // The user may have typed another one meanwhile, or want none.
        if (answer.status != IPasswordStore::Status::Done || !m_remember || !m_password.isEmpty())
            return;
        m_password = answer.password;
        m_settings.learnPassword(m_password);
    });
}

void ProxyPassword::follow()
{
    const ReviewSettings& now = m_settings.settings();
    if (now.proxy.password == m_password && now.rememberPassword == m_remember)
        return;
    const bool hadOne = m_remember;
    m_password = now.proxy.password;
    m_remember = now.rememberPassword;
    if (m_remember && !m_password.isEmpty())
        write();
    else if (hadOne)
        m_store.remove(proxyKey, this, [](const IPasswordStore::Answer&) {});
}

// The file has a password from earlier until the store has answered, whatever it says.
void ProxyPassword::write()
{
    m_store.write(proxyKey, m_password, this, [this](const IPasswordStore::Answer& answer) {
        m_settings.dropPasswordInFile();
        if (answer.status != IPasswordStore::Status::Done)
            Q_EMIT notKept(answer.reason);
    });
}

} // namespace Review
