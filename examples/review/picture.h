#pragma once

#include <QString>

class QWidget;

namespace Review {

/// Writes what @p widget looks like as a PNG file, whole or not at all. Returns why that failed, or
/// an empty string.
QString writePicture(QWidget& widget, const QString& path);

} // namespace Review
