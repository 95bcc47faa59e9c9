// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

class QSettings;

/// A window that saves its own state (size, what was shown last) to a settings store and takes it
/// back from there. The caller chooses the store and the moment; a state that is missing or damaged
/// in the store leaves the window with its defaults.
///
/// Stands outside the library's namespace.
class CORVELGUI_EXPORT IUserSettings
{
public:
    virtual ~IUserSettings();

    virtual void writeUserSettings(QSettings& settings) const = 0;
    virtual void readUserSettings(QSettings& settings) = 0;

protected:
    IUserSettings() = default;
    IUserSettings(const IUserSettings&) = default;
    IUserSettings& operator=(const IUserSettings&) = default;
};
