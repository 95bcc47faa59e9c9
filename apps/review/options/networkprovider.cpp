// SPDX-License-Identifier: MIT
#include "networkprovider.h"

#include "proxypage.h"
#include "updatespage.h"

#include <Hueloft/PIconHelper>

using namespace Qt::StringLiterals;

namespace Review {

NetworkProvider::NetworkProvider(SettingsStore& store, CorvelGui::IPasswordStore& passwords)
{
    setCategory(u"network"_s);
    setCategoryIcon(Hueloft::PIconHelper::GetRefreshIcon_256x256(true));
    m_pages = {new UpdatesPage(store), new ProxyPage(store, passwords)};
    retranslate();
}

void NetworkProvider::retranslate()
{
    setDisplayCategory(tr("Network"));
    for (CorvelGui::ISettingsPage* page : std::as_const(m_pages)) {
        if (auto* own = qobject_cast<ClientPage*>(page))
            own->retranslate();
    }
}

} // namespace Review
