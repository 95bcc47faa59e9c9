// SPDX-License-Identifier: MIT
#pragma once

#include "clientpage.h"

namespace CorvelGui {
class UrlLineEdit;
}

namespace Review {

/// Where the program looks for a newer version, and for news.
class UpdatesPage : public ClientPage
{
    Q_OBJECT

public:
    explicit UpdatesPage(SettingsStore& store);

protected:
    void build(QFormLayout& form) override;
    void show(const ReviewSettings& settings) override;
    void take(ReviewSettings& settings) const override;
    QString pageName() const override;
    QString categoryName() const override;
    void retranslateFields() override;

private:
    CorvelGui::UrlLineEdit* addServer(QFormLayout& form, QLabel*& label);

    QLabel* m_internalLabel = nullptr;
    CorvelGui::UrlLineEdit* m_internal = nullptr;
    QLabel* m_publicLabel = nullptr;
    CorvelGui::UrlLineEdit* m_public = nullptr;
    QLabel* m_updateLabel = nullptr;
    CorvelGui::UrlLineEdit* m_update = nullptr;
    QLabel* m_newsLabel = nullptr;
    CorvelGui::UrlLineEdit* m_news = nullptr;
    QLabel* m_note = nullptr;
};

} // namespace Review
