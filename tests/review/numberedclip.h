// SPDX-License-Identifier: MIT
#pragma once

#include "clipwriter.h"

#include <QPainter>

/// A clip whose pictures carry their own number, readable after any compression.
namespace NumberedClip {

inline constexpr QSize size(328, 180); // a width that a careless scaler writes beyond
inline constexpr int frameLength = 40; // milliseconds
inline constexpr int usualCount = 300; ///< of pictures, 12 seconds
inline constexpr int bits = 12;
inline constexpr int block = 20; // pixels

inline QImage picture(int number)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(QColor::fromHsv(number % 360, 120, 160));
    QPainter painter(&image);
    for (int bit = 0; bit < bits; ++bit)
        painter.fillRect(bit * block, 40, block, 2 * block,
                         number & (1 << bit) ? Qt::white : Qt::black);
    painter.fillRect(number % size.width(), 120, 30, 40, Qt::darkRed);
    return image;
}

inline int numberOf(const QImage& image)
{
    int number = 0;
    for (int bit = 0; bit < bits; ++bit)
        if (qGray(image.pixel(bit * block + block / 2, 40 + block)) > 127)
            number |= 1 << bit;
    return number;
}

/// Returns what went wrong, or nothing.
inline QString write(const QString& path, int count, Review::ClipWriter::Format format = {})
{
    format.framesPerSecond = 1000 / frameLength;
    Review::ClipWriter writer(path, size, format);
    for (int i = 0; i < count; ++i)
        writer.add(picture(i));
    writer.finish();
    return writer.fault();
}

} // namespace NumberedClip
