#include "picturefile.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImage>
#include <QSaveFile>

namespace Review {

QString writePicture(const QImage& picture, const QString& path)
{
    // The writer of a picture does not tell of every short write.
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    if (!picture.save(&buffer, "PNG"))
        return QCoreApplication::translate("Review", "The picture cannot be encoded.");
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(data) == data.size() && file.flush() &&
        file.commit())
        return {};
    return file.errorString();
}

} // namespace Review
