// SPDX-License-Identifier: MIT
#include "proxysettingspage.h"

#include <CorvelGui/ProxySettingsWidget>

#include <QHBoxLayout>

using Corvel::ProxyUserSettings;
using CorvelGui::IPasswordStore;
using CorvelGui::ProxySettingsWidget;
using namespace Qt::StringLiterals;

namespace Gallery {

ProxySettingsPage::ProxySettingsPage(QWidget* parent)
    : QWidget(parent), m_passwords(IPasswordStore::ofSystem(u"corvel-gallery"_s))
{
    auto* columns = new QHBoxLayout;
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(columns);
    layout->addStretch();
    const ProxyUserSettings good{.mode = ProxyUserSettings::Mode::Http,
                                 .host = u"proxy.example"_s,
                                 .port = 3128,
                                 .user = u"operator"_s,
                                 .password = u"not a secret"_s,
                                 .excludedHosts = {u"*.cameras.example"_s, u"10.0.0.0/8"_s}};
    ProxyUserSettings wrong = good;
    wrong.mode = ProxyUserSettings::Mode::Socks5;
    wrong.host = u"proxy example"_s;
    wrong.excludedHosts = {u"*.example"_s, u"10.0.0.0/33"_s};
    for (const ProxyUserSettings& settings : {good, wrong}) {
        auto* widget = new ProxySettingsWidget;
        widget->setSettings(settings);
        widget->setPasswordStore(m_passwords.get());
        widget->setTestAddress(QUrl(u"http://127.0.0.1:8480/version.txt"_s));
        columns->addWidget(widget, 1);
    }
}

} // namespace Gallery
