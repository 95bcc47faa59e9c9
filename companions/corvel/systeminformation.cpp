// SPDX-License-Identifier: MIT
#include "systeminformation.h"

#include "host.h"
#include "systemfacts.h"

#include <QSysInfo>
#include <QThread>
#include <QTimeZone>

namespace Corvel {

SystemInformation SystemInformation::current()
{
    const SystemFacts facts = systemFacts();
    SystemInformation information;
    information.hostName = QSysInfo::machineHostName();
    information.system = QSysInfo::prettyProductName();
    information.kernel = QSysInfo::kernelType() + u' ' + QSysInfo::kernelVersion();
    information.architecture = QSysInfo::currentCpuArchitecture();
    information.processor = facts.processor;
    information.threads = QThread::idealThreadCount();
    information.memory = facts.memory;
    information.availableMemory = facts.availableMemory;
    information.graphics = facts.graphics;
    information.timeZone = QString::fromUtf8(QTimeZone::systemTimeZoneId());
    information.networkInterfaces = Host().getNetworkInterfaceList();
    return information;
}

} // namespace Corvel
