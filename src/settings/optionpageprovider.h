// SPDX-License-Identifier: MIT
#pragma once

#include "isettingspageprovider.h"

namespace CorvelGui {

/// A provider that owns its pages and deletes them at its end.
class CORVELGUI_EXPORT OptionPageProvider : public ISettingsPageProvider
{
    Q_OBJECT

public:
    explicit OptionPageProvider(QObject* parent = nullptr);
    ~OptionPageProvider() override;

    QList<ISettingsPage*> pages() override;

protected:
    /// To be filled by the derived class, with pages made by new. Pages that are deleted after
    /// pages() has handed them over leave the list by themselves.
    QList<ISettingsPage*> m_pages;

private:
    void forget(QObject* page);
};

} // namespace CorvelGui
