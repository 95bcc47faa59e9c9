#include "isettingspage.h"

#include "settingsmanager.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace CorvelGui {

ISettingsPage::ISettingsPage(QObject* parent) : QObject(parent) {}

ISettingsPage::~ISettingsPage()
{
    SettingsManager::m_listPages.removeAll(this);
}

QString ISettingsPage::id() const
{
    return m_id;
}

QString ISettingsPage::displayName() const
{
    return m_displayName;
}

QString ISettingsPage::category() const
{
    return m_category;
}

QString ISettingsPage::displayCategory() const
{
    return m_displayCategory;
}

QIcon ISettingsPage::categoryIcon() const
{
    // The icon of a missing or broken picture can be empty without being null.
    const QIcon icon(m_categoryIcon);
    return icon.pixmap(QSize(16, 16)).isNull() ? QIcon() : icon;
}

void ISettingsPage::setId(const QString& id)
{
    m_id = id;
}

void ISettingsPage::setDisplayName(const QString& displayName)
{
    m_displayName = displayName;
}

void ISettingsPage::setCategory(const QString& category)
{
    m_category = category;
}

void ISettingsPage::setDisplayCategory(const QString& displayCategory)
{
    m_displayCategory = displayCategory;
}

void ISettingsPage::setCategoryIcon(const QString& path)
{
    m_categoryIcon = path;
}

bool ISettingsPage::matches(const QString& text) const
{
    if (!m_keywordsReady) {
        if (!m_widget)
            return false;
        collectKeywords();
        m_keywordsReady = true;
    }
    return std::ranges::any_of(m_keywords, [&text](const QString& keyword) {
        return keyword.contains(text, Qt::CaseInsensitive);
    });
}

void ISettingsPage::collectKeywords() const
{
    for (const auto* label : m_widget->findChildren<QLabel*>())
        m_keywords << label->text();
    for (const auto* box : m_widget->findChildren<QCheckBox*>())
        m_keywords << box->text();
    for (const auto* button : m_widget->findChildren<QPushButton*>())
        m_keywords << button->text();
    for (const auto* group : m_widget->findChildren<QGroupBox*>())
        m_keywords << group->title();
    for (QString& keyword : m_keywords)
        keyword.remove(u'&');
}

} // namespace CorvelGui
