// SPDX-License-Identifier: MIT
#pragma once

#include "walltime.h"

#include <QString>

#include <atomic>

class QDataStream;

namespace Review {

/// What a file says of itself, as far as it takes opening it to know.
struct FileFacts
{
    qint64 duration = 0;                ///< milliseconds; 0 where it does not say
    std::optional<qint64> created = {}; ///< milliseconds since the Unix epoch
    std::optional<WallTime> taken = {}; ///< of a picture
    QString fault = {};                 ///< why it cannot be read; empty if it can

    /// @p aborted ends it early, with facts of no worth.
    static FileFacts of(const QString& path, const std::atomic<bool>& aborted);
    /// Whether the ending of the name is that of a clip or a picture.
    static bool isFootage(const QString& path);

    bool operator==(const FileFacts&) const = default;
};

QDataStream& operator<<(QDataStream& stream, const FileFacts& facts);
QDataStream& operator>>(QDataStream& stream, FileFacts& facts);

} // namespace Review
