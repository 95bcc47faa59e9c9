// SPDX-License-Identifier: MIT
#include "taskbarbackend.h"

namespace CorvelGui {

std::unique_ptr<TaskbarBackend> TaskbarBackend::create()
{
    return nullptr;
}

} // namespace CorvelGui
