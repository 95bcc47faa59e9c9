// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QString>

class QWidget;

namespace CorvelGui {

/// A file name that can be suggested to the user, made of a name that a server sent: without the
/// folders, safe by StringHelper::safeFileName(), never empty.
CORVELGUI_INTERNAL_EXPORT QString installerName(const QString& serverName);

/// Where an installer is suggested to be saved: installerName() in the user's download folder, with
/// the separators of the system.
CORVELGUI_INTERNAL_EXPORT QString suggestedInstallerPath(const QString& serverName);

/// Asks where to save an installer, beginning with suggestedInstallerPath(). Empty if the user does
/// not want it, or if @p parent was deleted meanwhile.
QString askForInstallerPath(QWidget* parent, const QString& caption, const QString& filter,
                            const QString& serverName);

} // namespace CorvelGui
