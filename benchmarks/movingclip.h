// SPDX-License-Identifier: MIT
#pragma once

#include "clipwriter.h"

#include <QPainter>
#include <QTemporaryDir>

/// A clip to measure with: H.264 where there is an encoder, 25 pictures a second, a key frame every
/// 50 pictures, and something that moves across all of the picture.
class MovingClip
{
public:
    static constexpr int frameLength = 40; // milliseconds

    MovingClip(QSize size, int count) : m_size(size), m_count(count)
    {
        for (const QByteArray& encoder : {QByteArray("libx264"), QByteArray("mpeg4")}) {
            if (write(encoder).isEmpty())
                break;
        }
    }

    QString path() const { return m_folder.filePath(QStringLiteral("clip.mp4")); }
    QSize size() const { return m_size; }
    int count() const { return m_count; }

private:
    /// Returns what went wrong, or nothing.
    QString write(const QByteArray& encoder) const
    {
        Review::ClipWriter writer(path(), m_size,
                                  {.encoder = encoder,
                                   .framesPerSecond = 1'000 / frameLength,
                                   .quantizer = encoder == "mpeg4" ? 4 : 0});
        for (int i = 0; i < m_count && writer.fault().isEmpty(); ++i)
            writer.add(picture(i));
        writer.finish();
        return writer.fault();
    }

    QImage picture(int number) const
    {
        QImage image(m_size, QImage::Format_RGB32);
        image.fill(QColor::fromHsv(number % 360, 90, 150));
        QPainter painter(&image);
        const int column = m_size.width() / 40;
        for (int x = 0; x < 40; ++x)
            painter.fillRect(x * column, (x * 53 + number * 3) % m_size.height(), column - 2,
                             m_size.height() / 6, QColor::fromHsv(x * 9, 200, 200));
        return image;
    }

    const QSize m_size;
    const int m_count;
    const QTemporaryDir m_folder;
};
