// SPDX-License-Identifier: MIT
#include "desktopshell.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDesktopServices>
#include <QStringList>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace CorvelGui {

bool openWithSystem(const QString& path)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

bool selectInFileManager(const QString& path)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return false;
    constexpr int patience = 5'000; // milliseconds
    const QString name = u"org.freedesktop.FileManager1"_s;
    QDBusMessage request = QDBusMessage::createMethodCall(name, u"/org/freedesktop/FileManager1"_s,
                                                          name, u"ShowItems"_s);
    const QString startupId;
    request << QStringList{QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)} << startupId;
    return bus.call(request, QDBus::Block, patience).type() == QDBusMessage::ReplyMessage;
}

} // namespace CorvelGui
