// SPDX-License-Identifier: MIT
#include "pictureheader.h"

#include <QtEndian>

#include <cstdlib>

namespace CorvelGui {

namespace {

constexpr int mostScans = 200; // cameras and programs write ten

template <typename Number>
Number littleEndianAt(const QByteArray& data, qsizetype offset)
{
    return qFromLittleEndian<Number>(data.constData() + offset);
}

/// Rows are padded to four bytes. What is compressed says itself where it ends.
bool isWholeBmp(const QByteArray& data)
{
    constexpr qsizetype headerSize = 34;
    if (data.size() < headerSize)
        return false;
    const quint32 compression = littleEndianAt<quint32>(data, 30);
    const bool isPlain = compression == 0 || compression == 3 || compression == 6;
    const qint64 width = littleEndianAt<qint32>(data, 18);
    const qint64 height = std::abs(qint64(littleEndianAt<qint32>(data, 22)));
    const qint64 rowSize = (width * littleEndianAt<quint16>(data, 28) + 31) / 32 * 4;
    const qint64 content = data.size() - qint64(littleEndianAt<quint32>(data, 10));
    return isPlain && width > 0 && rowSize > 0 && height <= content / rowSize;
}

/// Within the data of a scan no byte 0xff is followed by one of these.
bool isWholeJpeg(const QByteArray& data)
{
    const QByteArray startOfScan("\xff\xda", 2);
    return data.count(startOfScan) <= mostScans &&
           data.lastIndexOf("\xff\xd9") > data.lastIndexOf(startOfScan);
}

} // namespace

QByteArray pictureFormat(const QByteArray& data)
{
    if (data.startsWith("\x89PNG\r\n\x1a\n"))
        return "png";
    if (data.startsWith("\xff\xd8\xff"))
        return "jpeg";
    if (data.startsWith("GIF87a") || data.startsWith("GIF89a"))
        return "gif";
    return data.startsWith("BM") ? "bmp" : "";
}

bool isWholePicture(const QByteArray& data, const QByteArray& format)
{
    if (format == "jpeg")
        return isWholeJpeg(data);
    if (format == "png")
        return data.contains("IEND");
    return format != "bmp" || isWholeBmp(data);
}

QSize canvasSize(const QByteArray& data, const QByteArray& format)
{
    constexpr qsizetype headerSize = 10;
    if (format != "gif" || data.size() < headerSize)
        return {};
    return {littleEndianAt<quint16>(data, 6), littleEndianAt<quint16>(data, 8)};
}

} // namespace CorvelGui
