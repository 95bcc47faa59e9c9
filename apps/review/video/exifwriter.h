// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace Review {

/// A JPEG file with EXIF data that say what is to be seen and when it was taken. @p msecs is since
/// the Unix epoch, and @p offset how many seconds the clock was ahead of UTC. Empty for what is no
/// JPEG file.
QByteArray withExif(const QByteArray& jpeg, const QString& description, qint64 msecs, int offset);

} // namespace Review
