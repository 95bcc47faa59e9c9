#pragma once

#include <QString>

class QImage;

namespace Review {

/// Writes @p picture as a PNG file, whole or not at all. Returns why that failed, or an empty
/// string.
QString writePicture(const QImage& picture, const QString& path);

} // namespace Review
