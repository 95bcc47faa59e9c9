#include "picturefile.h"

#include "data/filewriter.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImage>

namespace Review {

QString writePicture(const QImage& picture, const QString& path)
{
    // The writer of a picture does not tell of every short write.
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    if (!picture.save(&buffer, "PNG"))
        return QCoreApplication::translate("Review", "The picture cannot be encoded.");
    return writeFile(data, path);
}

} // namespace Review
