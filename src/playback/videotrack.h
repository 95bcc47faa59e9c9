// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <algorithm>

namespace CorvelGui {

/// Where the positions of a video are on a bar of that width, which has a margin at both ends.
class VideoTrack
{
public:
    static constexpr int margin = 8; ///< in pixels

    VideoTrack(qint64 duration, int width)
        : m_duration(duration), m_length(std::max(width - 2 * margin, 1))
    {}

    /// That of the nearer end for a position outside of the video.
    int xAt(qint64 position) const
    {
        return margin +
               qRound(m_duration > 0
                          ? std::clamp(double(position) / double(m_duration), 0.0, 1.0) * m_length
                          : 0.0);
    }

    qint64 positionAt(int x) const
    {
        const double share = std::clamp(double(x - margin) / m_length, 0.0, 1.0);
        return std::min(qint64(share * double(m_duration) + 0.5), m_duration);
    }

    /// As "m:ss", or as "h:mm:ss" in a video of an hour or more.
    QString textOf(qint64 position) const
    {
        const qint64 seconds = position / 1000;
        const auto padded = [](qint64 number) {
            return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
        };
        if (m_duration < 3'600'000)
            return QStringLiteral("%1:%2").arg(seconds / 60).arg(padded(seconds % 60));
        return QStringLiteral("%1:%2:%3")
            .arg(seconds / 3600)
            .arg(padded(seconds / 60 % 60), padded(seconds % 60));
    }

private:
    qint64 m_duration;
    int m_length;
};

} // namespace CorvelGui
