// SPDX-License-Identifier: MIT
#pragma once

#include <QIODevice>
#include <QString>

class QByteArray;

namespace CorvelGui {

/// Writes @p content into the file; as QIODevice::Text, with the line ends of the platform. An
/// existing file is replaced once all is written; until then, and when anything fails, it stays as
/// it was.
///
/// Returns why it failed, or an empty text when it did not.
QString writeWholeFile(const QString& fileName, const QByteArray& content,
                       QIODevice::OpenMode kind = {});

} // namespace CorvelGui
