// SPDX-License-Identifier: MIT
#pragma once

#include "clientpage.h"

class QCheckBox;
class QComboBox;

namespace Review {

class ZoneCombo;

/// The clock and the writing of all times.
class TimePage : public ClientPage
{
    Q_OBJECT

public:
    explicit TimePage(SettingsStore& store);

protected:
    void build(QFormLayout& form) override;
    void show(const ReviewSettings& settings) override;
    void take(ReviewSettings& settings) const override;
    QString pageName() const override;
    QString categoryName() const override;
    void retranslateFields() override;

private:
    QLabel* m_zoneLabel = nullptr;
    ZoneCombo* m_zone = nullptr;
    QLabel* m_orderLabel = nullptr;
    QComboBox* m_order = nullptr;
    QCheckBox* m_milliseconds = nullptr;
};

} // namespace Review
