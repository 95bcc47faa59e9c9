// SPDX-License-Identifier: MIT
#pragma once

namespace CorvelGui {

/// Lets assistive technology read PClickableLabel as a link that can be pressed, and PErrorLabel as
/// an alert. The constructors of both call it; further calls cost nothing.
void makeLabelsAccessible();

} // namespace CorvelGui
