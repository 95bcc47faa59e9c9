#pragma once

#include "clientpage.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QSpinBox;

namespace Review {

/// How the program reaches the network.
class ProxyPage : public ClientPage
{
    Q_OBJECT

public:
    explicit ProxyPage(SettingsStore& store);

protected:
    void build(QFormLayout& form) override;
    void show(const ReviewSettings& settings) override;
    void take(ReviewSettings& settings) const override;
    QString pageName() const override;
    QString categoryName() const override;
    void retranslateFields() override;

private:
    void enableFields();

    QLabel* m_modeLabel = nullptr;
    QComboBox* m_mode = nullptr;
    QLabel* m_hostLabel = nullptr;
    QLineEdit* m_host = nullptr;
    QLabel* m_portLabel = nullptr;
    QSpinBox* m_port = nullptr;
    QLabel* m_userLabel = nullptr;
    QLineEdit* m_user = nullptr;
    QLabel* m_passwordLabel = nullptr;
    QLineEdit* m_password = nullptr;
    QCheckBox* m_remember = nullptr;
    QLabel* m_note = nullptr;
};

} // namespace Review
