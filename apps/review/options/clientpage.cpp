// SPDX-License-Identifier: MIT
#include "clientpage.h"

#include "settingsstore.h"

#include <CorvelGui/SettingsBaseWidget>

#include <QFormLayout>
#include <QLabel>

namespace Review {

ClientPage::ClientPage(SettingsStore& store, const QString& category, const QString& id)
    : m_store(store)
{
    setCategory(category);
    setId(id);
}

QWidget* ClientPage::createWidget(QWidget* parent)
{
    auto* widget = new CorvelGui::SettingsBaseWidget(parent);
    auto* form = new QFormLayout(widget);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->setVerticalSpacing(10);
    build(*form);
    m_widget = widget;
    show(m_store.settings());
    retranslate();
    return widget;
}

void ClientPage::apply()
{
    if (!m_widget)
        return;
    ReviewSettings settings = m_store.settings();
    take(settings);
    m_store.change(settings);
}

void ClientPage::finish() {}

void ClientPage::retranslate()
{
    setDisplayName(pageName());
    setDisplayCategory(categoryName());
    if (m_widget)
        retranslateFields();
}

QLabel* ClientPage::addRow(QFormLayout& form, QWidget* field)
{
    auto* label = new QLabel;
    label->setBuddy(field);
    form.addRow(label, field);
    return label;
}

QLabel* ClientPage::addNote(QFormLayout& form)
{
    auto* note = new QLabel;
    note->setWordWrap(true);
    form.addRow(note);
    return note;
}

} // namespace Review
