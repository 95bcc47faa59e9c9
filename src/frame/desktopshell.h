// SPDX-License-Identifier: MIT
#pragma once

class QString;

namespace CorvelGui {

/// Opens what there is at the absolute @p path with the program that the system has for its kind.
/// Returns false if the system has none or could not start it.
bool openWithSystem(const QString& path);

/// Asks the user's file manager to show the absolute @p path, selected in its folder. Returns false
/// if it does not. Takes as long as the file manager takes: not for the GUI thread.
bool selectInFileManager(const QString& path);

} // namespace CorvelGui
