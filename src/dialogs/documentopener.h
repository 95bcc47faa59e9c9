#pragma once

#include "base/internalexport.h"

class QString;

namespace CorvelGui {

/// Opens a file with the program that the system has for its kind, as a double click on it would.
/// Returns false if the system has none or could not start it.
using DocumentOpener = bool (*)(const QString& fileName);

/// The opener of this platform.
bool openWithSystem(const QString& fileName);

/// The opener to use: the platform's, unless it was replaced.
CORVELGUI_INTERNAL_EXPORT DocumentOpener documentOpener();

/// Replaces the opener; nullptr brings the platform's back. Tests do not start programs.
CORVELGUI_INTERNAL_EXPORT void setDocumentOpener(DocumentOpener opener);

} // namespace CorvelGui
