// SPDX-License-Identifier: MIT
#pragma once

namespace CorvelGui {

/// Lets assistive technology read the lanes of every TimelineLanes as a list, and choose among
/// them.
void makeLanesAccessible();

} // namespace CorvelGui
