// SPDX-License-Identifier: MIT
#include "ipasswordstore.h"

namespace CorvelGui {

IPasswordStore::~IPasswordStore() = default;

} // namespace CorvelGui
