// SPDX-License-Identifier: MIT
#pragma once

namespace CorvelGui {

/// Lets assistive technology read every PImageWidget as a picture, with its state or its size.
void installAccessibleImage();

} // namespace CorvelGui
