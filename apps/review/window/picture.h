#pragma once

#include <QString>

class QImage;
class QWidget;

namespace Review {

/// Writes @p picture as a PNG file, whole or not at all. Returns why that failed, or an empty
/// string.
QString writePicture(const QImage& picture, const QString& path);
/// Writes what @p widget looks like in the same way.
QString writePicture(QWidget& widget, const QString& path);

} // namespace Review
