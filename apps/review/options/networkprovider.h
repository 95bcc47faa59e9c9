#pragma once

#include <CorvelGui/OptionPageProvider>

namespace Review {

class SettingsStore;

/// The pages about servers and the way to them.
class NetworkProvider : public CorvelGui::OptionPageProvider
{
    Q_OBJECT

public:
    explicit NetworkProvider(SettingsStore& store);

    /// Applies all translated texts again, those of the pages included.
    void retranslate();
};

} // namespace Review
