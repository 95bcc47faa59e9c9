// SPDX-License-Identifier: MIT
#include "wholefile.h"

#include <QByteArray>
#include <QFileInfo>
#include <QSaveFile>

#include <filesystem>

namespace CorvelGui {

namespace {

/// A full disk shows late: the first write takes what still fits without a complaint, and closing
/// the file does not complain at all.
bool writeAll(QFileDevice& file, const QByteArray& content)
{
    qsizetype done = 0;
    while (done < content.size()) {
        const qint64 written = file.write(content.constData() + done, content.size() - done);
        if (written <= 0)
            return false;
        done += written;
    }
    // A short write has no reason yet; the attempt to write the rest has.
    return file.flush() || file.flush();
}

/// A device cannot be replaced, only written to.
bool isDevice(const QString& fileName)
{
    std::error_code ignored;
    return std::filesystem::is_character_file(QFileInfo(fileName).filesystemFilePath(), ignored);
}

} // namespace

QString writeWholeFile(const QString& fileName, const QByteArray& content, QIODevice::OpenMode kind)
{
    const QIODevice::OpenMode mode = QIODevice::WriteOnly | kind;
    if (isDevice(fileName)) {
        QFile device(fileName);
        return device.open(mode) && writeAll(device, content) ? QString() : device.errorString();
    }
    QSaveFile file(fileName);
    return file.open(mode) && writeAll(file, content) && file.commit() ? QString()
                                                                       : file.errorString();
}

} // namespace CorvelGui
