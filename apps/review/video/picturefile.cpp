// SPDX-License-Identifier: MIT
#include "picturefile.h"

#include "camerapicture.h"
#include "data/filewriter.h"
#include "exifwriter.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImage>

namespace Review {

namespace {

constexpr int jpegQuality = 95;

QByteArray encoded(const QImage& picture, const char* format, int quality = -1)
{
    // The writer of a picture does not tell of every short write.
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    return picture.save(&buffer, format, quality) ? data : QByteArray();
}

QString writeEncoded(const QByteArray& data, const QString& path)
{
    if (data.isEmpty())
        return QCoreApplication::translate("Review", "The picture cannot be encoded.");
    return writeFile(data, path);
}

} // namespace

QString writePicture(const QImage& picture, const QString& path)
{
    return writeEncoded(encoded(picture, "PNG"), path);
}

QString writePicture(const CameraPicture& picture, PictureForm form, const QString& path)
{
    const QImage image = form == PictureForm::Jpeg ? picture.image : picture.withCaption();
    if (form == PictureForm::PngWithCaption)
        return writePicture(image, path);
    const QByteArray jpeg = encoded(image, "JPG", jpegQuality);
    return writeEncoded(withExif(jpeg, picture.camera, picture.instant, picture.offset), path);
}

} // namespace Review
