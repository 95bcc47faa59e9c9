// SPDX-License-Identifier: MIT
#include "systemfacts.h"

#include <QSettings>

#include <windows.h>

using namespace Qt::StringLiterals;

namespace Corvel {

namespace {

/// The adapters that drive a desktop, each once however many screens it has.
QStringList graphicsAdapters()
{
    QStringList adapters;
    DISPLAY_DEVICEW device{};
    device.cb = sizeof(device);
    for (DWORD index = 0; EnumDisplayDevicesW(nullptr, index, &device, 0); ++index) {
        const QString name = QString::fromWCharArray(device.DeviceString).trimmed();
        const bool isUsed = (device.StateFlags & DISPLAY_DEVICE_ATTACHED_TO_DESKTOP) != 0;
        if (isUsed && !name.isEmpty() && !adapters.contains(name))
            adapters.append(name);
    }
    return adapters;
}

} // namespace

SystemFacts systemFacts()
{
    SystemFacts facts;
    const QSettings processor(
        u"HKEY_LOCAL_MACHINE\\HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0"_s,
        QSettings::NativeFormat);
    facts.processor = processor.value(u"ProcessorNameString"_s).toString().trimmed();
    MEMORYSTATUSEX memory{};
    memory.dwLength = sizeof(memory);
    if (GlobalMemoryStatusEx(&memory)) {
        facts.memory = qint64(memory.ullTotalPhys);
        facts.availableMemory = qint64(memory.ullAvailPhys);
    }
    facts.graphics = graphicsAdapters();
    return facts;
}

} // namespace Corvel
