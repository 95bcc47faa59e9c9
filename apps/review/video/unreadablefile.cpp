// SPDX-License-Identifier: MIT
#include "unreadablefile.h"

#include "ffmpeg.h"

#include <QFileInfo>

namespace Review {

QString UnreadableFile::text(const QString& path, int error)
{
    // What everybody can check comes first.
    const QFileInfo file(path);
    if (!file.exists())
        return tr("The file is missing.");
    if (file.isFile() && file.size() == 0)
        return tr("The file is empty.");
    switch (error) {
    case AVERROR_INVALIDDATA:
        return tr("The file is damaged or of an unknown kind.");
    case AVERROR_EOF:
    case AVERROR_STREAM_NOT_FOUND:
    case AVERROR_DECODER_NOT_FOUND:
        return tr("The file has no pictures that can be shown.");
    default:
        return tr("The file cannot be read: %1").arg(ffmpegText(error));
    }
}

} // namespace Review
