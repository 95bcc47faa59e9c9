#pragma once

#include "base/internalexport.h"

class QString;

namespace CorvelGui {

/// Opens a file with the program that the system has for its kind, as a double click on it would.
/// Returns false if the system has none or could not start it.
CORVELGUI_INTERNAL_EXPORT bool openWithSystem(const QString& fileName);

} // namespace CorvelGui
