// SPDX-License-Identifier: MIT
#include "systemfacts.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace Corvel {

namespace {

QByteArray contentOf(const QString& path)
{
    constexpr qint64 most = 1024 * 1024;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(most) : QByteArray();
}

/// "i915 (8086:9A49)" for each adapter: the driver, and the maker's and the model's numbers.
QStringList graphicsAdapters()
{
    QStringList adapters;
    const QDir cards(u"/sys/class/drm"_s);
    for (const QString& card : cards.entryList({u"card*"_s}, QDir::Dirs | QDir::System)) {
        if (card.contains(u'-')) // a connector of the card
            continue;
        const QByteArray facts = contentOf(cards.filePath(card + u"/device/uevent"_s));
        const QString driver = QString::fromLatin1(valueOf("DRIVER", facts, '='));
        const QString model = QString::fromLatin1(valueOf("PCI_ID", facts, '='));
        if (!driver.isEmpty())
            adapters.append(model.isEmpty() ? driver : u"%1 (%2)"_s.arg(driver, model));
    }
    return adapters;
}

} // namespace

SystemFacts systemFacts()
{
    const QByteArray memory = contentOf(u"/proc/meminfo"_s);
    return {.processor = QString::fromUtf8(valueOf("model name", contentOf(u"/proc/cpuinfo"_s))),
            .memory = bytesOf(valueOf("MemTotal", memory)),
            .availableMemory = bytesOf(valueOf("MemAvailable", memory)),
            .graphics = graphicsAdapters()};
}

} // namespace Corvel
