// SPDX-License-Identifier: MIT
#pragma once

#include "clientpage.h"

#include <CorvelGui/PPlaybar>

#include <QKeySequence>
#include <QMap>

#include <functional>

class QKeySequenceEdit;

namespace Review {

/// The shortcuts of the playbar. One that something else has already is told at once, and is not
/// taken over.
class KeyboardPage : public ClientPage
{
    Q_OBJECT

public:
    /// What the shortcuts of the rest of the program do.
    using UsedShortcuts = std::function<QMap<QKeySequence, QString>()>;

    KeyboardPage(SettingsStore& store, UsedShortcuts usedElsewhere);

protected:
    void build(QFormLayout& form) override;
    void show(const ReviewSettings& settings) override;
    void take(ReviewSettings& settings) const override;
    QString pageName() const override;
    QString categoryName() const override;
    void retranslateFields() override;

private:
    struct Row
    {
        CorvelGui::PPlaybar::PlaybackButton button;
        QLabel* label;
        QKeySequenceEdit* edit;
    };

    QString conflict(const Row& row) const;
    void showConflicts();

    const UsedShortcuts m_usedElsewhere;
    QList<Row> m_rows;
    QLabel* m_speeds = nullptr;
    QLabel* m_message = nullptr;
};

} // namespace Review
