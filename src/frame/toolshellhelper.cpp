// SPDX-License-Identifier: MIT
#include "toolshellhelper.h"

#include "desktopshell.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QThread>
#include <QTimer>

#include <memory>
#include <utility>

namespace CorvelGui {

namespace {

using namespace std::chrono_literals;

constexpr auto longestWait = 5s;

} // namespace

bool ToolShellHelper::openDocument(const QString& path)
{
    const QFileInfo file(path);
    return file.exists() && openWithSystem(file.absoluteFilePath());
}

void ToolShellHelper::showInFolder(const QString& path, QObject* context,
                                   const std::function<void(bool shown)>& told)
{
    const QFileInfo file(path);
    const QString whole = file.absoluteFilePath();
    const auto selected = std::make_shared<bool>(false);
    const auto settle = [=, folder = file.absolutePath(),
                         settled = std::make_shared<bool>(false)](bool shown) {
        if (std::exchange(*settled, true))
            return;
        const bool opened = shown || openDocument(folder);
        if (told)
            told(opened);
    };
    // To find no bus, or a busy file manager, may take long. A thread that hangs is left behind.
    QThread* thread = QThread::create(
        [whole, selected] { *selected = QFileInfo::exists(whole) && selectInFileManager(whole); });
    QObject* receiver = context ? context : QCoreApplication::instance();
    QObject::connect(thread, &QThread::finished, receiver, [=] { settle(*selected); });
    QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    QTimer::singleShot(longestWait, receiver, [=] { settle(false); });
    thread->start();
}

} // namespace CorvelGui
