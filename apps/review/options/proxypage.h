// SPDX-License-Identifier: MIT
#pragma once

#include "clientpage.h"

namespace CorvelGui {
class IPasswordStore;
class ProxySettingsWidget;
} // namespace CorvelGui

namespace Review {

/// How the program reaches the network.
class ProxyPage : public ClientPage
{
    Q_OBJECT

public:
    /// Owns neither; both must live longer.
    ProxyPage(SettingsStore& store, CorvelGui::IPasswordStore& passwords);

protected:
    void build(QFormLayout& form) override;
    void show(const ReviewSettings& settings) override;
    void take(ReviewSettings& settings) const override;
    QString pageName() const override;
    QString categoryName() const override;
    void retranslateFields() override {}

private:
    SettingsStore& m_settings;
    CorvelGui::IPasswordStore& m_passwords;
    CorvelGui::ProxySettingsWidget* m_proxy = nullptr;
};

} // namespace Review
