// SPDX-License-Identifier: MIT
#include "optionpageprovider.h"

#include "isettingspage.h"

namespace CorvelGui {

OptionPageProvider::OptionPageProvider(QObject* parent) : ISettingsPageProvider(parent) {}

OptionPageProvider::~OptionPageProvider()
{
    // A page may take others with it.
    while (!m_pages.isEmpty())
        delete m_pages.takeFirst();
}

QList<ISettingsPage*> OptionPageProvider::pages()
{
    for (const ISettingsPage* page : std::as_const(m_pages)) {
        if (page)
            connect(page, &QObject::destroyed, this, &OptionPageProvider::forget,
                    Qt::UniqueConnection);
    }
    return m_pages;
}

void OptionPageProvider::forget(QObject* page)
{
    m_pages.removeIf([page](const QObject* candidate) { return candidate == page; });
}

} // namespace CorvelGui
