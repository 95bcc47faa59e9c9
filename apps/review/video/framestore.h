// SPDX-License-Identifier: MIT
#pragma once

#include "ffmpeg.h"

#include <map>
#include <optional>

namespace Review {

/// Decoded pictures of one clip that are kept within a bound of memory, as the decoder made them.
/// What lies farthest from the time last asked for goes first.
class FrameStore
{
public:
    struct Entry
    {
        qint64 time = 0; ///< milliseconds
        /// Of the picture after it, where that is known.
        std::optional<qint64> until = {};
        bool last = false; ///< nothing comes after it
        DecodedFrame frame = {};
        qint64 bytes = 0;
    };

    explicit FrameStore(qint64 maximumBytes) : m_maximum(maximumBytes) {}

    /// Adds a picture. @p follows names the one shown before it.
    const Entry& add(qint64 time, DecodedFrame frame, std::optional<qint64> follows);
    /// Says that nothing comes after the picture at @p time.
    void setLast(qint64 time);
    /// The picture that is known to be the one shown at @p time; null where it is not known.
    const Entry* find(qint64 time);
    /// The picture at exactly this time; null where it is not held.
    const Entry* entryAt(qint64 time) const;
    void clear();

    qint64 bytes() const { return m_bytes; }
    qsizetype count() const { return qsizetype(m_entries.size()); }

private:
    void makeRoom(qint64 keep);

    std::map<qint64, Entry> m_entries;
    qint64 m_maximum;
    qint64 m_bytes = 0;
    qint64 m_asked = 0;
};

} // namespace Review
