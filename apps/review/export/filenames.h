// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTimeZone>

namespace Review {

/// Parts of names of files that every file system takes.
namespace FileNames {

/// Names of cameras are any text.
QString cameraPart(const QString& camera);
/// What the zone's clock shows, with the offset, since a clock that is set back shows times twice.
QString timePart(qint64 msecs, const QTimeZone& zone);

} // namespace FileNames

} // namespace Review
