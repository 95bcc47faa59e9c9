// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/IPasswordStore>

#include <QWidget>

namespace Gallery {

/// The settings of a proxy, with the password store of this computer; they can be tried.
class ProxySettingsPage : public QWidget
{
    Q_OBJECT

public:
    explicit ProxySettingsPage(QWidget* parent);

private:
    const std::unique_ptr<CorvelGui::IPasswordStore> m_passwords;
};

} // namespace Gallery
