// SPDX-License-Identifier: MIT
#pragma once

#include "eventkind.h"

#include <QString>

namespace Review {

/// What the clips of the sample show, and when: the program that draws them and the recordings that
/// are made of them agree on it. Times are milliseconds into a clip.
namespace SampleClips {

/// Nothing happens up to here.
inline constexpr qint64 quiet = 16'000;
/// Then someone or something crosses the picture, one kind after the other.
inline constexpr qint64 visit = 12'000;
inline constexpr EventKind visitors[] = {EventKind::Person, EventKind::Vehicle, EventKind::Animal};
inline constexpr qint64 length = quiet + visit * qint64(std::size(visitors));

inline constexpr int cameras = 4;

/// Of the camera with this number, from 1 on.
inline QString fileName(int camera, bool atNight)
{
    return QStringLiteral("camera-%1-%2.mp4")
        .arg(QString::number(camera), atNight ? QStringLiteral("night") : QStringLiteral("day"));
}

} // namespace SampleClips

} // namespace Review
