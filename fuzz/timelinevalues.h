// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/RulerMarker>

#include <QDateTime>

#include <array>
#include <fuzzer/FuzzedDataProvider.h>

/// The values of a timeline's operations, out of the bytes of an input.
class TimelineValues
{
public:
    static constexpr quint64 minute = 60'000;
    static constexpr quint64 day = 24 * 60 * minute;
    static constexpr quint64 base = 1'771'804'800'000; ///< a midnight in 2026

    TimelineValues(const uint8_t* data, size_t size) : m_input(data, size) {}

    bool atEnd() { return m_input.remaining_bytes() == 0; }
    bool flag() { return m_input.ConsumeBool(); }
    int number(int least, int most) { return m_input.ConsumeIntegralInRange(least, most); }
    double anyDouble() { return m_input.ConsumeFloatingPoint<double>(); }
    /// A place in a view or a period, or outside of it.
    double position() { return number(-200, 400) / 200.0; }
    template <typename T, size_t size>
    T pick(const std::array<T, size>& values)
    {
        return values[size_t(number(0, size - 1))];
    }

    quint64 instant();
    QDateTime time();
    QString zone();
    QList<CorvelGui::RulerMarker> markers();

private:
    struct Icons : CorvelGui::IRulerMarkerIconProvider
    {
        int iconKey(int iconIndex) override { return iconIndex % 4; }
        QIcon icon(int iconIndex) override;
    };

    FuzzedDataProvider m_input;
    Icons m_icons;
};
