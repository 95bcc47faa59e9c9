// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QImage;

namespace Review {

struct CameraPicture;

/// Writes @p picture as a PNG file, whole or not at all. Returns why that failed, or an empty
/// string.
QString writePicture(const QImage& picture, const QString& path);

/// How a picture of a camera is saved.
enum class PictureForm {
    Jpeg,            ///< the camera and the time are in its EXIF data only
    JpegWithCaption, ///< and below the picture
    PngWithCaption
};

/// Writes the picture of a camera with its name and time, whole or not at all. Returns why that
/// failed, or an empty string.
QString writePicture(const CameraPicture& picture, PictureForm form, const QString& path);

} // namespace Review
