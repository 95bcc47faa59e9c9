// SPDX-License-Identifier: MIT
#pragma once

#include "reviewsettings.h"

#include <CorvelGui/ISettingsPage>

class QFormLayout;
class QLabel;

namespace Review {

class SettingsStore;

/// A page of the client's options: a form that shows the settings, and writes them when it is
/// applied.
class ClientPage : public CorvelGui::ISettingsPage
{
    Q_OBJECT

public:
    /// The page does not own @p store.
    ClientPage(SettingsStore& store, const QString& category, const QString& id);

    QWidget* createWidget(QWidget* parent) final;
    void apply() final;
    void finish() override;

    /// Names page and category, and applies the texts of the form if there is one.
    void retranslate();

protected:
    /// Makes the fields.
    virtual void build(QFormLayout& form) = 0;
    /// Puts the settings into the fields, once.
    virtual void show(const ReviewSettings& settings) = 0;
    /// Takes the fields into the settings.
    virtual void take(ReviewSettings& settings) const = 0;
    virtual QString pageName() const = 0;
    virtual QString categoryName() const = 0;
    /// Applies the texts of the fields.
    virtual void retranslateFields() = 0;

    /// Adds a row and returns its label, which gets its text from retranslateFields().
    static QLabel* addRow(QFormLayout& form, QWidget* field);
    /// Adds a row over the whole width with an explanation, which gets its text likewise.
    static QLabel* addNote(QFormLayout& form);

private:
    SettingsStore& m_store;
};

} // namespace Review
