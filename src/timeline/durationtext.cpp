#include "durationtext.h"

#include "durations.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>

namespace CorvelGui {

QString DurationText::of(qint64 msecs)
{
    const QLocale locale;
    if (msecs < minute) {
        const qint64 length = std::max<qint64>(msecs, 0);
        const int decimals = length % second == 0 ? 0 : 3;
        return tr("%1 s").arg(locale.toString(double(length) / second, 'f', decimals));
    }
    const qint64 seconds = msecs / second + (msecs % second >= second / 2 ? 1 : 0);
    QStringList parts;
    const auto add = [&](const QString& unit, qint64 count) {
        if (count != 0)
            parts << unit.arg(locale.toString(count));
    };
    add(tr("%1 d"), seconds / (day / second));
    add(tr("%1 h"), seconds / (hour / second) % 24);
    add(tr("%1 min"), seconds / 60 % 60);
    add(tr("%1 s"), seconds % 60);
    return parts.join(u' ');
}

} // namespace CorvelGui
