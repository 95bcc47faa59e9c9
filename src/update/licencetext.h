// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QString>

namespace CorvelGui {

/// A licence as it stands in a file or a resource, for a field that shows plain text: UTF-8, or
/// Latin-1 where it is none, of half a mebibyte at most, and without lines that would take long to
/// lay out. Null if there is no such file, or nothing in it.
CORVELGUI_INTERNAL_EXPORT QString licenceText(const QString& path);

} // namespace CorvelGui
