// SPDX-License-Identifier: MIT
#include "filewriter.h"

#include <QSaveFile>

namespace Review {

QString writeFile(const QByteArray& content, const QString& path)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush() &&
        file.commit())
        return {};
    return file.errorString();
}

} // namespace Review
