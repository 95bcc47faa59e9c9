// SPDX-License-Identifier: MIT
#include "desktopshell.h"

#include <QDir>

#include <windows.h>

#include <shellapi.h>
#include <shlobj.h>

namespace CorvelGui {

namespace {

std::wstring nativePath(const QString& path)
{
    return QDir::toNativeSeparators(path).toStdWString();
}

} // namespace

bool openWithSystem(const QString& path)
{
    const HINSTANCE answer =
        ShellExecuteW(nullptr, L"open", nativePath(path).c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    return INT_PTR(answer) > 32; // smaller values are error codes
}

bool selectInFileManager(const QString& path)
{
    const bool entered = SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
    auto* const item = ILCreateFromPathW(nativePath(path).c_str());
    const bool shown = item && SUCCEEDED(SHOpenFolderAndSelectItems(item, 0, nullptr, 0));
    if (item)
        ILFree(item);
    if (entered)
        CoUninitialize();
    return shown;
}

} // namespace CorvelGui
