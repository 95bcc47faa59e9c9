#include "wholefile.h"

#include <QByteArray>
#include <QFileInfo>
#include <QSaveFile>

#include <filesystem>

namespace CorvelGui {

namespace {

constexpr QIODevice::OpenMode mode = QIODevice::WriteOnly | QIODevice::Text;

/// A full disk shows late: the first write takes what still fits without a complaint, and closing
/// the file does not complain at all.
bool writeAll(QFileDevice& file, const QByteArray& text)
{
    qsizetype done = 0;
    while (done < text.size()) {
        const qint64 written = file.write(text.constData() + done, text.size() - done);
        if (written <= 0)
            return false;
        done += written;
    }
    return file.flush();
}

/// A device cannot be replaced, only written to.
bool isDevice(const QString& fileName)
{
    std::error_code ignored;
    return std::filesystem::is_character_file(QFileInfo(fileName).filesystemFilePath(), ignored);
}

} // namespace

QString writeWholeFile(const QString& fileName, const QByteArray& text)
{
    if (isDevice(fileName)) {
        QFile device(fileName);
        return device.open(mode) && writeAll(device, text) ? QString() : device.errorString();
    }
    QSaveFile file(fileName);
    return file.open(mode) && writeAll(file, text) && file.commit() ? QString()
                                                                    : file.errorString();
}

} // namespace CorvelGui
