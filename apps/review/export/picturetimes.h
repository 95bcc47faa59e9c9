// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/TrackDescription>

#include <QList>

namespace Review {

/// At which times pictures of a range are taken.
class PictureTimes
{
public:
    /// From the begin of @p range on, with @p interval milliseconds from one to the next.
    PictureTimes(const CorvelGui::TimeSpan& range, qint64 interval);
    /// Only where something is recorded: what lies between is passed over, and the next time is the
    /// begin of a recording, if that is an interval or more behind the time before. @p recorded is
    /// sorted, with a gap between any two.
    PictureTimes(const CorvelGui::TimeSpan& range, qint64 interval,
                 const QList<CorvelGui::TimeSpan>& recorded);

    qint64 count() const { return m_count; }
    /// All of them, in their order.
    QList<qint64> all() const;

private:
    struct Run
    {
        qint64 begin;
        qint64 count;
    };

    qint64 m_interval;
    qint64 m_count = 0;
    QList<Run> m_runs;
};

} // namespace Review
