// SPDX-License-Identifier: MIT
#include "iusersettings.h"

IUserSettings::~IUserSettings() = default;
