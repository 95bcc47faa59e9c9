// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace Review {

/// The text of a file as UTF-8, without a byte order mark; of another encoding of Unicode where the
/// file begins with its mark. Nothing, with a sentence about it in @p error, for what cannot be
/// read.
QByteArray readText(const QString& path, QString& error);

/// The sentence that @p path cannot be read for a reason.
QString unreadable(const QString& path, const QString& reason);

} // namespace Review
