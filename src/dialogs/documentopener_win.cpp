#include "documentopener.h"

#include <QDir>
#include <QFileInfo>

#include <windows.h>

#include <shellapi.h>

namespace CorvelGui {

bool openWithSystem(const QString& fileName)
{
    const std::wstring path =
        QDir::toNativeSeparators(QFileInfo(fileName).absoluteFilePath()).toStdWString();
    const HINSTANCE answer =
        ShellExecuteW(nullptr, L"open", path.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    return INT_PTR(answer) > 32; // smaller values are error codes
}

} // namespace CorvelGui
