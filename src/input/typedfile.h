// SPDX-License-Identifier: MIT
#pragma once

#include <QFileInfo>

namespace CorvelGui {

/// The file at a typed path. A path with a null character has none; QFileInfo would say so by a
/// warning for each question.
inline QFileInfo typedFile(const QString& path)
{
    return path.contains(QChar::Null) ? QFileInfo() : QFileInfo(path);
}

} // namespace CorvelGui
