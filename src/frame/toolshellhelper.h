// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <functional>

class QObject;
class QString;

namespace CorvelGui {

/// Hands files and folders over to the desktop of the user. Nothing is run by a command line, so
/// that no name of a file can be taken for one. GUI thread only.
class CORVELGUI_EXPORT ToolShellHelper
{
public:
    ToolShellHelper() = delete;

    /// Opens a file or a folder with the program that the system has for its kind, as a double
    /// click on it would. That may start a program: not for files that come from strangers.
    /// Returns false if there is nothing at @p path, or the system has no program for it or could
    /// not start it.
    static bool openDocument(const QString& path);

    /// Shows the folder of a file, or of a folder, with that selected. Where there is no file
    /// manager that selects, or it does not answer within five seconds, the folder is just opened;
    /// also when there is nothing at @p path any more.
    ///
    /// Returns at once. Unless @p context was deleted until then, @p told is called once, from the
    /// event loop, with whether the folder is shown. Without a context, the application is it.
    static void showInFolder(const QString& path, QObject* context = nullptr,
                             const std::function<void(bool shown)>& told = {});
};

} // namespace CorvelGui
