// SPDX-License-Identifier: MIT
#pragma once

#include "data/reviewdata.h"
#include "timecorrection.h"
#include "walltime.h"

#include <QTimeZone>

#include <array>

namespace Review {

/// What was found in folders: recordings, and what says when each was made. Copies share it.
class Footage
{
public:
    /// What said when a recording began, in the order in which it is asked.
    enum Source { Path, CreationTime, Exif, ChangeTime, SourceCount };
    using Sources = std::array<qsizetype, SourceCount>;

    struct Recording
    {
        QString camera;
        QString path;
        /// When it began: what the camera's clock showed, or an instant without a doubt.
        WallTime begin;
        qint64 length; ///< milliseconds
        Source source;
        /// Whether the file has been read. One that has not, or to which a camera still writes, is
        /// known by its path alone.
        bool isRead = true;

        bool operator==(const Recording&) const = default;
    };

    /// What is known of a camera's times.
    struct CameraTimes
    {
        QString camera;
        Sources sources{};
        /// Whether some of its times are those of a zone that nothing names.
        bool needsZone = false;
        WallTime first = {}; ///< begin of its first recording
    };

    Footage() = default;
    /// Times without an offset are those of @p zone, unless they are corrected.
    explicit Footage(const QTimeZone& zone) : m_zone(zone) {}

    void add(const Recording& recording) { m_recordings.append(recording); }
    bool isEmpty() const { return m_recordings.isEmpty(); }
    bool hasSameRecordings(const Footage& other) const
    {
        return m_recordings == other.m_recordings;
    }
    /// How many files there was no time to read.
    qsizetype unread() const { return m_unread; }
    void setUnread(qsizetype files) { m_unread = files; }
    const QTimeZone& zone() const { return m_zone; }

    /// In the order of their names.
    QList<CameraTimes> cameras() const;
    /// Of all recordings.
    Sources sources() const;

    /// When something began that a camera with that correction dated; negative for no time at all.
    qint64 instantOf(const WallTime& time, const TimeCorrection& correction = {}) const;
    /// @p data with the recordings in it; those that were not read count as loading.
    ReviewData addTo(ReviewData data, const TimeCorrections& corrections) const;

private:
    QTimeZone zoneOf(const TimeCorrection& correction) const;

    QTimeZone m_zone = QTimeZone::utc();
    QList<Recording> m_recordings;
    qsizetype m_unread = 0;
};

} // namespace Review
