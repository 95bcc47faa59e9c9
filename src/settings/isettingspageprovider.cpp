// SPDX-License-Identifier: MIT
#include "isettingspageprovider.h"

#include "settingsmanager.h"

namespace CorvelGui {

struct ISettingsPageProvider::Private
{
    QString category;
    QString displayCategory;
    QIcon categoryIcon;
};

ISettingsPageProvider::ISettingsPageProvider(QObject* parent)
    : QObject(parent), d(std::make_unique<Private>())
{}

ISettingsPageProvider::~ISettingsPageProvider()
{
    SettingsManager::m_listProvider.removeAll(this);
}

QString ISettingsPageProvider::category() const
{
    return d->category;
}

QString ISettingsPageProvider::displayCategory() const
{
    return d->displayCategory;
}

QIcon ISettingsPageProvider::categoryIcon() const
{
    return d->categoryIcon;
}

void ISettingsPageProvider::setCategory(const QString& category)
{
    d->category = category;
}

void ISettingsPageProvider::setDisplayCategory(const QString& displayCategory)
{
    d->displayCategory = displayCategory;
}

void ISettingsPageProvider::setCategoryIcon(const QIcon& icon)
{
    d->categoryIcon = icon;
}

} // namespace CorvelGui
