#include "iusersettings.h"

IUserSettings::~IUserSettings() = default;
