// SPDX-License-Identifier: MIT
#pragma once

#include "clientpage.h"

class QCheckBox;

namespace Review {

/// How recordings are played.
class PlaybackPage : public ClientPage
{
    Q_OBJECT

public:
    explicit PlaybackPage(SettingsStore& store);

protected:
    void build(QFormLayout& form) override;
    void show(const ReviewSettings& settings) override;
    void take(ReviewSettings& settings) const override;
    QString pageName() const override;
    QString categoryName() const override;
    void retranslateFields() override;

private:
    QCheckBox* m_skipGaps = nullptr;
};

} // namespace Review
