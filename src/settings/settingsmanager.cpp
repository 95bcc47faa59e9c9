// SPDX-License-Identifier: MIT
#include "settingsmanager.h"

namespace CorvelGui {

QList<ISettingsPage*> SettingsManager::m_listPages;
QList<ISettingsPageProvider*> SettingsManager::m_listProvider;

QList<ISettingsPage*> SettingsManager::GetPages()
{
    return m_listPages;
}

QList<ISettingsPageProvider*> SettingsManager::GetProvider()
{
    return m_listProvider;
}

} // namespace CorvelGui
