// SPDX-License-Identifier: MIT
#pragma once

#include "clientpage.h"

class QComboBox;

namespace Review {

/// How the program looks, and the language that it speaks.
class LookPage : public ClientPage
{
    Q_OBJECT

public:
    explicit LookPage(SettingsStore& store);

protected:
    void build(QFormLayout& form) override;
    void show(const ReviewSettings& settings) override;
    void take(ReviewSettings& settings) const override;
    QString pageName() const override;
    QString categoryName() const override;
    void retranslateFields() override;

private:
    QLabel* m_lookLabel = nullptr;
    QComboBox* m_look = nullptr;
    QLabel* m_languageLabel = nullptr;
    QComboBox* m_language = nullptr;
};

} // namespace Review
