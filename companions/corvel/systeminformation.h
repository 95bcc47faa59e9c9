// SPDX-License-Identifier: MIT
#pragma once

#include "networkinterfacedatalist.h"

#include <Corvel/corvel_export.h>

#include <QString>
#include <QStringList>

namespace Corvel {

/// The machine and its system, as they were when they were asked: what someone wants to know who
/// helps its user from afar. What the system does not tell is empty, or -1.
struct CORVEL_EXPORT SystemInformation
{
    QString hostName;            ///< by which other machines may know this one
    QString system;              ///< with its version, such as "Debian GNU/Linux 12 (bookworm)"
    QString kernel;              ///< with its version, such as "linux 6.1.0-28-amd64"
    QString architecture;        ///< of the processor, such as "x86_64"
    QString processor;           ///< as its maker calls it
    int threads = 1;             ///< how many the processors run at a time
    qint64 memory = -1;          ///< bytes
    qint64 availableMemory = -1; ///< bytes that programs could still take
    /// The graphics adapters, each by its name, or by its driver and numbers where the system knows
    /// no name. Empty where the processor draws.
    QStringList graphics;
    QString timeZone;                           ///< IANA identifier
    NetworkInterfaceDataList networkInterfaces; ///< see Host

    /// Asks the system, which may take some milliseconds. It goes to no network.
    static SystemInformation current();
};

} // namespace Corvel
