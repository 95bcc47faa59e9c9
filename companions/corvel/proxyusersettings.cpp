#include "proxyusersettings.h"

namespace Corvel {

ProxyUserSettings ProxyUserSettings::m_Settings;

} // namespace Corvel
