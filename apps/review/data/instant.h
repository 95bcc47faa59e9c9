// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QtGlobal>

namespace Review {

/// A point in time that was read from text.
struct Instant
{
    enum class Fault {
        None,
        Malformed,
        NoOffset,   ///< a clock time that does not say of which zone
        BeforeEpoch ///< before 1970, which the timeline cannot show
    };

    /// Milliseconds since the Unix epoch.
    qint64 msecs = 0;
    Fault fault = Fault::None;

    /// Reads an ISO 8601 date and time with "Z" or an offset, such as
    /// "2026-03-02T07:15:00.250+01:00". Seconds, and the minutes of the offset, may be missing;
    /// what is finer than a millisecond is cut off.
    static Instant parse(QByteArrayView text);
};

} // namespace Review
