// SPDX-License-Identifier: MIT
#pragma once

#include "internalexport.h"

#include <QByteArray>
#include <QStringList>

namespace Corvel {

/// What each platform tells in its own way. Each has what SystemInformation says of it.
struct SystemFacts
{
    QString processor = {};
    qint64 memory = -1;
    qint64 availableMemory = -1;
    QStringList graphics = {};
};

SystemFacts systemFacts();

/// The value of the first line "name: value" or "name=value" of a text such as /proc/meminfo;
/// empty without such a line. Blanks around name and value do not count.
CORVEL_INTERNAL_EXPORT QByteArray valueOf(const QByteArray& name, const QByteArray& text,
                                          char separator = ':');
/// A size such as "16318480 kB" in bytes, -1 for anything else.
CORVEL_INTERNAL_EXPORT qint64 bytesOf(const QByteArray& size);

} // namespace Corvel
