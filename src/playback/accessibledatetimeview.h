// SPDX-License-Identifier: MIT
#pragma once

namespace CorvelGui {

/// Lets assistive technology read every TarvoDateTimeView as one text, and press it.
void installAccessibleDateTimeView();

} // namespace CorvelGui
