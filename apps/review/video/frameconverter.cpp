// SPDX-License-Identifier: MIT
#include "frameconverter.h"

#include "container.h"

#include <QTransform>

#include <cmath>
#include <cstdlib>
#include <utility>

namespace Review {

namespace {

constexpr int hdLines = 720; // from here on, untagged pictures use the colours of HD television

double rotationOf(const AVStream& stream)
{
    constexpr qsizetype size = 9 * sizeof(qint32);
    const QByteArrayView matrix = displayMatrix(stream);
    if (matrix.size() < size)
        return 0.0;
    const double degrees = -av_display_rotation_get(reinterpret_cast<const qint32*>(matrix.data()));
    return std::isnan(degrees) ? 0.0 : degrees;
}

/// The old names of the formats with a full range of brightness, which the scaler warns about.
std::pair<AVPixelFormat, bool> withoutRange(AVPixelFormat format)
{
    switch (format) {
    case AV_PIX_FMT_YUVJ420P:
        return {AV_PIX_FMT_YUV420P, true};
    case AV_PIX_FMT_YUVJ422P:
        return {AV_PIX_FMT_YUV422P, true};
    case AV_PIX_FMT_YUVJ444P:
        return {AV_PIX_FMT_YUV444P, true};
    case AV_PIX_FMT_YUVJ440P:
        return {AV_PIX_FMT_YUV440P, true};
    default:
        return {format, false};
    }
}

int matrixOf(const AVFrame& frame)
{
    switch (frame.colorspace) {
    case AVCOL_SPC_BT709:
        return SWS_CS_ITU709;
    case AVCOL_SPC_BT2020_NCL:
    case AVCOL_SPC_BT2020_CL:
        return SWS_CS_BT2020;
    case AVCOL_SPC_SMPTE240M:
        return SWS_CS_SMPTE240M;
    case AVCOL_SPC_UNSPECIFIED:
        return frame.height >= hdLines ? SWS_CS_ITU709 : SWS_CS_ITU601;
    default:
        return SWS_CS_ITU601;
    }
}

/// An image whose rows are long enough for a scaler that writes in blocks.
QImage paddedImage(int width, int height)
{
    constexpr qsizetype block = 64;
    const qsizetype rowBytes = (width * qsizetype(4) + block - 1) / block * block + block;
    void* bytes = std::malloc(size_t(rowBytes * height));
    if (!bytes)
        return {};
    return QImage(static_cast<uchar*>(bytes), width, height, rowBytes, QImage::Format_RGB32,
                  std::free, bytes);
}

} // namespace

FrameConverter::FrameConverter(const AVStream& stream)
    : m_rotation(rotationOf(stream)), m_pixelAspect(stream.sample_aspect_ratio)
{}

QImage FrameConverter::image(const AVFrame& frame)
{
    const auto [format, isFullRange] = withoutRange(AVPixelFormat(frame.format));
    m_scaler.reset(sws_getCachedContext(m_scaler.release(), frame.width, frame.height, format,
                                        frame.width, frame.height, AV_PIX_FMT_BGRA, SWS_BILINEAR,
                                        nullptr, nullptr, nullptr));
    QImage image = paddedImage(frame.width, frame.height);
    if (!m_scaler || image.isNull())
        return {};
    const int* matrix = sws_getCoefficients(matrixOf(frame));
    const bool fullRange = isFullRange || frame.color_range == AVCOL_RANGE_JPEG;
    sws_setColorspaceDetails(m_scaler.get(), matrix, fullRange ? 1 : 0,
                             sws_getCoefficients(SWS_CS_DEFAULT), 1, 0, 1 << 16, 1 << 16);
    uint8_t* const planes[] = {image.bits(), nullptr, nullptr, nullptr};
    const int strides[] = {int(image.bytesPerLine()), 0, 0, 0};
    sws_scale(m_scaler.get(), frame.data, frame.linesize, 0, frame.height, planes, strides);
    return upright(image,
                   frame.sample_aspect_ratio.num > 0 ? frame.sample_aspect_ratio : m_pixelAspect);
}

QImage FrameConverter::upright(const QImage& image, AVRational pixelAspect) const
{
    QTransform transform;
    transform.rotate(m_rotation);
    if (pixelAspect.num > 0 && pixelAspect.den > 0 && pixelAspect.num != pixelAspect.den)
        transform.scale(av_q2d(pixelAspect), 1.0);
    return transform.isIdentity() ? image : image.transformed(transform, Qt::SmoothTransformation);
}

} // namespace Review
