// SPDX-License-Identifier: MIT
#include "imagehelper.h"

#include "frame/stringhelper.h"
#include "pictureheader.h"

#include <QBuffer>
#include <QColor>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QLocale>
#include <QPainter>
#include <QStyle>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr int longestSide = 16'384;

QSize reduced(const QSize& size, const QSize& bound)
{
    if (bound.isEmpty() || (size.width() <= bound.width() && size.height() <= bound.height()))
        return size;
    return size.scaled(bound, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

/// What Qt would refuse with a warning. JPEG and most PNG pictures are scaled while they are read,
/// which takes four times what is wanted; other pictures afterwards.
bool exceedsMemoryOfQt(const QImageReader& reader, const QByteArray& data, const QSize& size,
                       const QSize& wanted)
{
    const qint64 limit = qint64(QImageReader::allocationLimit()) * 1024 * 1024;
    const auto pixels = [](const QSize& area) {
        return qint64(area.width()) * area.height();
    };
    const int bits = QImage::toPixelFormat(reader.imageFormat()).bitsPerPixel();
    constexpr qsizetype pngInterlacing = 28;
    const bool isPlainPng = reader.format() == "png" && bits == 32 && data.at(pngInterlacing) == 0;
    const bool isReduced = size != wanted && (reader.format() == "jpeg" || isPlainPng);
    const qint64 inMemory = isReduced ? std::min(4 * pixels(wanted), pixels(size)) : pixels(size);
    return limit > 0 && inMemory > limit / (bits == 0 ? 4 : std::max(bits / 8, 1));
}

/// The format in which images are painted without being converted.
QImage paintable(QImage image)
{
    image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                            : QImage::Format_RGB32);
    return image;
}

QImage translucent(const QImage& image)
{
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

ImageHelper::Picture ImageHelper::read(const QByteArray& data, const Limits& limits)
{
    Picture picture;
    const QByteArray format = pictureFormat(data);
    if (format.isEmpty()) {
        picture.error = tr("This is not a picture that can be shown.");
        return picture;
    }
    picture.error = tr("The picture is damaged or not complete.");
    if (!isWholePicture(data, format))
        return picture;

    QBuffer buffer;
    buffer.setData(data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    const QSize told = reader.size();
    if (told.isEmpty())
        return picture;
    const QSize size = told.expandedTo(canvasSize(data, format));
    const bool turned = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    picture.fullSize = turned ? size.transposed() : size;
    const QSize wanted = reduced(size, turned ? limits.size.transposed() : limits.size);
    if (qint64(size.width()) * size.height() > limits.pixels ||
        exceedsMemoryOfQt(reader, data, size, wanted)) {
        const QLocale locale;
        picture.error = tr("The picture is too large: %1 × %2 pixels.")
                            .arg(locale.toString(picture.fullSize.width()),
                                 locale.toString(picture.fullSize.height()));
        return picture;
    }
    if (wanted != size)
        reader.setScaledSize(wanted);
    picture.image = paintable(reader.read());
    if (!picture.image.isNull())
        picture.error.clear();
    return picture;
}

ImageHelper::Picture ImageHelper::readFile(const QString& path, const Limits& limits)
{
    // Devices and pipes need not come to an end.
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        return {.error = tr("This is not a file.")};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {.error = file.errorString()};
    // A file may grow.
    const QByteArray data = file.size() > limits.bytes ? QByteArray() : file.read(limits.bytes + 1);
    if (std::max<qint64>(file.size(), data.size()) > limits.bytes)
        return {.error = tr("The file is larger than %1.").arg(StringHelper::size(limits.bytes))};
    return read(data, limits);
}

QImage ImageHelper::scaled(const QImage& image, const QSize& size, qreal devicePixelRatio,
                           Qt::AspectRatioMode mode)
{
    const QSize place = size * devicePixelRatio;
    if (image.isNull() || place.isEmpty())
        return {};
    const QSize pixels = image.size().scaled(place, mode).expandedTo(QSize(1, 1));
    if (std::max(pixels.width(), pixels.height()) > longestSide)
        return {};
    QImage result = image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    result.setDevicePixelRatio(devicePixelRatio);
    return result;
}

QImage ImageHelper::tinted(const QImage& image, const QColor& color)
{
    QImage result = translucent(image);
    if (result.isNull())
        return result;
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.fillRect(QRectF(QPointF(), result.deviceIndependentSize()), color);
    return result;
}

QImage ImageHelper::withOverlay(const QImage& image, const QImage& overlay, Qt::Alignment alignment)
{
    QImage result = translucent(image);
    if (result.isNull() || overlay.isNull())
        return result;
    const QSizeF room = result.deviceIndependentSize();
    const QSizeF size = overlay.deviceIndependentSize();
    QPainter painter(&result);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(QStyle::alignedRect(Qt::LeftToRight, alignment, size.toSize(),
                                                 QRect(QPoint(), room.toSize()))),
                      overlay);
    return result;
}

QImage ImageHelper::rounded(const QImage& image, qreal radius)
{
    if (image.isNull())
        return {};
    QImage result(image.size(), QImage::Format_ARGB32_Premultiplied);
    result.setDevicePixelRatio(image.devicePixelRatio());
    result.fill(Qt::transparent);
    const QRectF room(QPointF(), result.deviceIndependentSize());
    const qreal bound = std::min({radius, room.width() / 2, room.height() / 2});
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRoundedRect(room, bound, bound);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.drawImage(room, image);
    return result;
}

} // namespace CorvelGui
