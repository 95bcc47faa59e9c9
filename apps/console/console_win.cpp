// SPDX-License-Identifier: MIT
#include "console.h"

#include <qt_windows.h>

#include <memory>
#include <type_traits>

namespace Console {

namespace {

struct CloseHandleLater
{
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};

bool isOpen(HANDLE handle)
{
    return handle != nullptr && handle != INVALID_HANDLE_VALUE;
}

// Text for a console goes through its wide interface, whatever its code page is; text for a file or
// a pipe is UTF-8.
void writeTo(HANDLE handle, const QString& text)
{
    DWORD mode = 0;
    DWORD written = 0;
    if (GetConsoleMode(handle, &mode)) {
        WriteConsoleW(handle, text.utf16(), DWORD(text.size()), &written, nullptr);
    } else {
        const QByteArray bytes = text.toUtf8();
        WriteFile(handle, bytes.constData(), DWORD(bytes.size()), &written, nullptr);
    }
}

void write(DWORD stream, const QString& text)
{
    if (const HANDLE redirected = GetStdHandle(stream); isOpen(redirected)) {
        writeTo(redirected, text);
        return;
    }
    // A program with windows starts without a console of its own.
    AttachConsole(ATTACH_PARENT_PROCESS);
    const std::unique_ptr<std::remove_pointer_t<HANDLE>, CloseHandleLater> console(
        CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                    nullptr, OPEN_EXISTING, 0, nullptr));
    if (isOpen(console.get()))
        writeTo(console.get(), text);
}

} // namespace

void print(const QString& text)
{
    write(STD_OUTPUT_HANDLE, text);
}

void printError(const QString& text)
{
    write(STD_ERROR_HANDLE, text);
}

} // namespace Console
