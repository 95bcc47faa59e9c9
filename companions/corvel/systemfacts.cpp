// SPDX-License-Identifier: MIT
#include "systemfacts.h"

namespace Corvel {

QByteArray valueOf(const QByteArray& name, const QByteArray& text, char separator)
{
    for (const QByteArray& line : text.split('\n')) {
        const qsizetype at = line.indexOf(separator);
        if (at >= 0 && line.first(at).trimmed() == name)
            return line.sliced(at + 1).trimmed();
    }
    return {};
}

qint64 bytesOf(const QByteArray& size)
{
    constexpr qint64 unit = 1024;
    constexpr qint64 most = qint64(1) << 50; // units
    const QList<QByteArray> words = size.simplified().split(' ');
    bool isNumber = false;
    const qint64 units = words.first().toLongLong(&isNumber);
    const bool makesSense = isNumber && units >= 0 && units < most;
    return makesSense && words.size() == 2 && words.last() == "kB" ? units * unit : -1;
}

} // namespace Corvel
