// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

namespace Review {

/// Says in words for the user why a file cannot be shown.
class UnreadableFile
{
    Q_DECLARE_TR_FUNCTIONS(Review::UnreadableFile)

public:
    /// @p error is negative, as FFmpeg has them.
    static QString text(const QString& path, int error);
};

} // namespace Review
