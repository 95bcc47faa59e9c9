// SPDX-License-Identifier: MIT
#include "clock.h"

namespace Review {

Clock::Clock(const QString& zoneName, QObject* parent)
    : QObject(parent), m_zoneName(zoneName), m_times(zoneName)
{}

void Clock::set(const QString& zoneName, const TimeFormat& format)
{
    if (zoneName == m_zoneName && format == m_times.format())
        return;
    m_zoneName = zoneName;
    m_times = TimeTexts(zoneName, format);
    Q_EMIT changed();
}

} // namespace Review
