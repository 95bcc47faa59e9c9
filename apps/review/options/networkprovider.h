// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/OptionPageProvider>

namespace CorvelGui {
class IPasswordStore;
} // namespace CorvelGui

namespace Review {

class SettingsStore;

/// The pages about servers and the way to them.
class NetworkProvider : public CorvelGui::OptionPageProvider
{
    Q_OBJECT

public:
    /// Owns neither; both must live longer.
    NetworkProvider(SettingsStore& store, CorvelGui::IPasswordStore& passwords);

    /// Applies all translated texts again, those of the pages included.
    void retranslate();
};

} // namespace Review
