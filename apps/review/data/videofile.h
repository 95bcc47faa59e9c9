// SPDX-License-Identifier: MIT
#pragma once

#include <QFileInfo>
#include <QString>

namespace Review {

/// A file that shows a stretch of time of one camera: a clip, or a single picture.
struct VideoFile
{
    QString path;
    qint64 begin = 0;  ///< first instant that it shows; milliseconds since the Unix epoch
    qint64 end = 0;    ///< the first one that it no longer shows
    qint64 offset = 0; ///< milliseconds into the clip at begin

    bool operator==(const VideoFile&) const = default;
};

/// Whether a file is a single picture, by the ending of its name.
inline bool isPictureFile(const QString& path)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    return ending == QStringLiteral("jpg") || ending == QStringLiteral("jpeg");
}

} // namespace Review
