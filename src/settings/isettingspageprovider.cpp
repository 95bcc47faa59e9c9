#include "isettingspageprovider.h"

#include "settingsmanager.h"

namespace CorvelGui {

ISettingsPageProvider::ISettingsPageProvider(QObject* parent) : QObject(parent) {}

ISettingsPageProvider::~ISettingsPageProvider()
{
    SettingsManager::m_listProvider.removeAll(this);
}

QString ISettingsPageProvider::category() const
{
    return m_category;
}

QString ISettingsPageProvider::displayCategory() const
{
    return m_displayCategory;
}

QIcon ISettingsPageProvider::categoryIcon() const
{
    return m_categoryIcon;
}

void ISettingsPageProvider::setCategory(const QString& category)
{
    m_category = category;
}

void ISettingsPageProvider::setDisplayCategory(const QString& displayCategory)
{
    m_displayCategory = displayCategory;
}

void ISettingsPageProvider::setCategoryIcon(const QIcon& icon)
{
    m_categoryIcon = icon;
}

} // namespace CorvelGui
