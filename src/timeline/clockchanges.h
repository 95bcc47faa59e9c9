// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QString>
#include <QTimeZone>

#include <vector>

namespace CorvelGui {

/// The clocks go forward or back: from this instant on they are another distance from UTC.
struct ClockChange
{
    qint64 instant; ///< milliseconds since the epoch
    qint64 before;  ///< milliseconds that the clocks are ahead of UTC, until then
    qint64 after;   ///< … and from then on

    /// The wall clock shows some times twice.
    bool repeats() const { return after < before; }
    /// The stretch of the wall clock that is skipped or repeated, in milliseconds.
    qint64 length() const { return repeats() ? before - after : after - before; }

    bool operator==(const ClockChange&) const = default;
};

/// What the clocks of a zone show, and where they change. Asking a time zone is slow, so what was
/// found is remembered for the neighbourhood of the last question. A change and its reversal
/// within a week are not seen.
class CORVELGUI_INTERNAL_EXPORT ClockChanges
{
public:
    /// An invalid zone means that of this machine.
    void setZone(const QTimeZone& zone);

    /// Milliseconds that the clocks are ahead of UTC.
    qint64 offsetAt(qint64 instant) const;
    /// The changes in [from, to), in order.
    std::vector<ClockChange> between(qint64 from, qint64 to) const;
    /// These, and those whose repeated times reach into it.
    std::vector<ClockChange> reaching(qint64 from, qint64 to) const;
    /// What tells a time that the wall clock shows twice from the other: its distance from UTC,
    /// with a space before it, as in " +02". Empty for times that come once.
    QString whichOfTwo(qint64 instant) const;

private:
    void find(qint64 from, qint64 to) const;

    QTimeZone m_zone;
    mutable qint64 m_knownFrom = 0;
    mutable qint64 m_knownTo = 0;
    mutable std::vector<ClockChange> m_known;
};

} // namespace CorvelGui
