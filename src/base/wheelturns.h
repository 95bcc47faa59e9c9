// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QtGlobal>

namespace CorvelGui {

/// Small turns of a fine wheel or a touchpad, which add up to whole notches.
class WheelTurns
{
public:
    static constexpr int notch = 120; ///< units of an angle, eighths of a degree

    /// Takes a turn by @p angle and returns the whole notches that it completes, which are negative
    /// in the other direction. A turn back begins anew.
    int add(int angle)
    {
        if ((angle < 0) != (m_rest < 0))
            m_rest = 0;
        m_rest += angle;
        const int notches = m_rest / notch;
        m_rest -= notches * notch;
        return notches;
    }

    static bool isSideways(QPoint angle) { return qAbs(angle.x()) > qAbs(angle.y()); }

private:
    int m_rest = 0;
};

} // namespace CorvelGui
