// SPDX-License-Identifier: MIT
#include "lookpage.h"

#include "look/languages.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace Review {

namespace {

QString nativeName(const QString& key)
{
    return key == "en"_L1 ? u"English"_s : QLocale(key).nativeLanguageName();
}

} // namespace

LookPage::LookPage(SettingsStore& store) : ClientPage(store, u"display"_s, u"look"_s)
{
    setCategoryIcon(u":/CorvelGui/common/binoculars.png"_s);
    retranslate();
}

void LookPage::build(QFormLayout& form)
{
    m_look = new QComboBox;
    m_look->addItem(QString(), true);
    m_look->addItem(QString(), false);
    m_lookLabel = addRow(form, m_look);

    m_language = new QComboBox;
    m_language->addItem(QString(), QString());
    // Everybody finds the own language, whatever the program speaks.
    for (const QString& key : Languages::keys())
        m_language->addItem(nativeName(key), key);
    m_languageLabel = addRow(form, m_language);
}

void LookPage::show(const ReviewSettings& settings)
{
    m_look->setCurrentIndex(m_look->findData(settings.dark));
    m_language->setCurrentIndex(m_language->findData(settings.language));
}

void LookPage::take(ReviewSettings& settings) const
{
    settings.dark = m_look->currentData().toBool();
    settings.language = m_language->currentData().toString();
}

QString LookPage::pageName() const
{
    return tr("Look");
}

QString LookPage::categoryName() const
{
    return tr("Display");
}

void LookPage::retranslateFields()
{
    m_lookLabel->setText(tr("&Look:"));
    m_look->setItemText(0, tr("Dark"));
    m_look->setItemText(1, tr("Light"));
    m_languageLabel->setText(tr("La&nguage:"));
    m_language->setItemText(0, tr("Language of this computer"));
}

} // namespace Review
