// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QList>

namespace CorvelGui {

class ISettingsPage;
class ISettingsPageProvider;

/// The two registries that options dialogs are made of. Applications append to them at start-up.
/// They own nothing; pages and providers that are deleted leave them.
class CORVELGUI_EXPORT SettingsManager
{
public:
    static QList<ISettingsPage*> GetPages();
    static QList<ISettingsPageProvider*> GetProvider();

    static QList<ISettingsPage*> m_listPages;
    /// The dialog that takes a provider from here deletes it at its own end.
    static QList<ISettingsPageProvider*> m_listProvider;
};

} // namespace CorvelGui
