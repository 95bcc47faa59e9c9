// SPDX-License-Identifier: MIT
#include "proxypage.h"

#include "settingsstore.h"

#include <CorvelGui/ProxySettingsWidget>

#include <QFormLayout>

using CorvelGui::ProxySettingsWidget;

using namespace Qt::StringLiterals;

namespace Review {

ProxyPage::ProxyPage(SettingsStore& store, CorvelGui::IPasswordStore& passwords)
    : ClientPage(store, u"network"_s, u"proxy"_s), m_settings(store), m_passwords(passwords)
{
    retranslate();
}

void ProxyPage::build(QFormLayout& form)
{
    m_proxy = new ProxySettingsWidget;
    m_proxy->layout()->setContentsMargins({});
    m_proxy->setPasswordStore(&m_passwords);
    form.addRow(m_proxy);
    // The store of passwords may answer while the page is open.
    connect(&m_settings, &SettingsStore::changed, m_proxy,
            [this] { m_proxy->fetchedPassword(m_settings.settings().proxy.password); });
}

void ProxyPage::show(const ReviewSettings& settings)
{
    m_proxy->setSettings(settings.proxy);
    m_proxy->setRememberPassword(settings.rememberPassword);
    const UpdateServers& servers = settings.servers;
    m_proxy->setTestAddress(
        QUrl(servers.publicServer.isEmpty() ? servers.internalChannel : servers.publicServer));
}

// An entry with a typing error must not replace one that works.
void ProxyPage::take(ReviewSettings& settings) const
{
    if (!m_proxy->isValid())
        return;
    const QString known = settings.proxy.password;
    settings.proxy = m_proxy->settings();
    if (!m_proxy->isPasswordEdited())
        settings.proxy.password = known;
    settings.rememberPassword = m_proxy->rememberPassword();
}

QString ProxyPage::pageName() const
{
    return tr("Proxy");
}

QString ProxyPage::categoryName() const
{
    return tr("Network");
}

} // namespace Review
