// SPDX-License-Identifier: MIT
#pragma once

#include "container.h"

#include <QHash>

#include <memory>
#include <set>

namespace Review {

/// The compressed pictures of a clip in the order of decoding, with both their times, whatever the
/// file says of those. Times are counted from the clip's first picture on. Works on one thread.
class PacketSource
{
public:
    /// Seconds per unit of all times of packets.
    static constexpr AVRational timeBase{1, 90'000};
    static constexpr qint64 perMillisecond = 90;

    /// Null with the reason in @p fault for a file that cannot be read. See Clip::open() for
    /// @p aborted.
    static std::unique_ptr<PacketSource> open(const QString& path, const std::atomic<bool>& aborted,
                                              QString& fault);

    const AVStream& stream() const { return m_container.stream(); }

    /// Goes to a key frame at or before @p time, not always the last one of those.
    bool seekBefore(qint64 time);
    /// The next packet; false at the end and once aborted.
    bool next(AVPacket& packet);
    /// Whether time stamps jumped back, and what was shown before then was left out.
    bool hasJumped() const { return m_jumped; }

private:
    PacketSource(QString path, const std::atomic<bool>& aborted)
        : m_path(std::move(path)), m_aborted(aborted)
    {}

    int reopen();
    bool sampleTimes();
    int countPictures();
    bool takeTime(AVPacket& packet);
    qint64 decodeTime(qint64 shownAt);
    void beginAnew();

    const QString m_path;
    const std::atomic<bool>& m_aborted;
    Container m_container;
    qint64 m_zero = 0;
    qint64 m_pictureLength = 0;
    int m_delay = 0; ///< so many pictures may be decoded ahead of the one that is shown
    bool m_counts = false;
    QHash<qint64, qint64> m_numbers; ///< of pictures, by those of their packets, where they count
    qint64 m_packets = 0;

    std::multiset<qint64> m_ahead;   ///< when what was decoded ahead is shown
    std::optional<qint64> m_first;   ///< when the first picture is shown
    std::optional<qint64> m_decoded; ///< when the last packet is
    qint64 m_latest = 0;             ///< of the times at which pictures are shown so far
    bool m_jumped = false;
    bool m_awaitsKey = false;
};

} // namespace Review
