// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace Review {

/// Writes a file whole or not at all. Returns why that failed, or an empty string.
QString writeFile(const QByteArray& content, const QString& path);

} // namespace Review
