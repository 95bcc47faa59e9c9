// SPDX-License-Identifier: MIT
#include "rulermarker.h"

namespace CorvelGui {

IRulerMarkerIconProvider::~IRulerMarkerIconProvider() = default;

QString IRulerMarkerIconProvider::text(const RulerMarker&) const
{
    return {};
}

} // namespace CorvelGui
