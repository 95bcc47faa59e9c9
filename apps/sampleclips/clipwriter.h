// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QString>

#include <memory>

namespace Review {

/// Writes a video file picture by picture. The container follows the file's ending.
class ClipWriter
{
public:
    struct Format
    {
        QByteArray encoder = "mpeg4"; ///< as the codec library names it
        int framesPerSecond = 10;
        int keyFrameDistance = 50; ///< pictures from one key frame to the next, at most
        int bFrames = 0;
        int quantizer = 4; ///< constant quality, 1 is best; 0 leaves it to the encoder
        /// Milliseconds since the Unix epoch to write as the time of recording; 0 for none.
        qint64 creationTime = 0;
    };

    ClipWriter(const QString& path, QSize size, const Format& format);
    ~ClipWriter();

    /// Adds a picture of the size of the clip, one frame after the one before.
    void add(const QImage& picture);
    /// Writes what is left, and the index. The file is whole after it.
    void finish();
    /// Empty while all went well.
    const QString& fault() const { return m_fault; }

private:
    bool openEncoder(QSize size, const Format& format);
    bool openFile(const QByteArray& url, qint64 creationTime);
    void makeFrame();
    bool check(int result);
    void writePackets();

    struct Private;
    const std::unique_ptr<Private> d;
    QString m_fault;
};

} // namespace Review
