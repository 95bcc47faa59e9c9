// SPDX-License-Identifier: MIT
#pragma once

#include <QThreadPool>

#include <utility>

namespace Review {

/// Frees something large on another thread, if nobody else has it by then: hundreds of thousands of
/// texts take longer than a window may stand still.
template <typename Large>
void letGo(Large&& large)
{
    QThreadPool::globalInstance()->start([held = std::forward<Large>(large)] {});
}

} // namespace Review
