// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QChar>
#include <QString>
#include <QStringList>

#include <optional>

namespace CorvelGui {

/// Whether this machine names its file systems by drive letters.
CORVELGUI_INTERNAL_EXPORT bool hasDriveLetters();

/// The part of a typed path that must obey the rules for names: what follows the drive prefix (":\"
/// after anything) up to the next such prefix; the whole of a text with two backslashes in a row or
/// of fewer than two characters. Nothing for any other text, which lacks its drive prefix.
///
/// Without @p driveLetters a leading slash is a drive prefix, too.
CORVELGUI_INTERNAL_EXPORT std::optional<QString> checkedNamePart(const QString& path,
                                                                 bool driveLetters);

/// The first character of a fixed list that occurs anywhere in @p name, in the order of that list.
/// @p strict adds the plus sign to the list.
CORVELGUI_INTERNAL_EXPORT std::optional<QChar> forbiddenCharacter(const QString& name, bool strict);

/// Whether @p name ends in a slash or backslash and a device name of Windows; with @p strict also
/// whether it is one.
CORVELGUI_INTERNAL_EXPORT bool isDeviceName(const QString& name, bool strict);

/// The pattern of device names, as messages show it.
CORVELGUI_INTERNAL_EXPORT QString deviceNamesForDisplay();

/// Whether @p name has one of @p extensions, which are without their dots, and more than that. An
/// empty list suits every name.
CORVELGUI_INTERNAL_EXPORT bool hasExtension(const QString& name, const QStringList& extensions);

} // namespace CorvelGui
