// SPDX-License-Identifier: MIT
#pragma once

#include "ffmpeg.h"

#include <QString>

#include <memory>

namespace Review {

/// An MP4 file that is written from compressed pictures, all of one form. What has not been
/// finished is no whole file.
class Mp4File
{
public:
    /// Begins a file with pictures as those of @p like. @p begin, in milliseconds since the Unix
    /// epoch, is written into it as its time of creation. Null, with the reason in @p fault, where
    /// that cannot be.
    static std::unique_ptr<Mp4File> open(const QString& path, const AVStream& like, qint64 begin,
                                         QString& fault);
    /// Whether such a file can hold the pictures of @p stream at all.
    static bool canHold(const AVStream& stream);
    ~Mp4File();

    /// Whether the pictures of @p stream have the form of those in the file.
    bool takes(const AVStream& stream) const;
    /// Adds a packet with times of PacketSource, counted from the begin of the file. Returns what
    /// went wrong, or nothing.
    QString add(AVPacket& packet);
    /// Writes the index. Returns what went wrong, or nothing.
    QString finish();

    /// When the last picture is shown, and until when.
    qint64 lastPicture() const { return m_lastPicture; }
    qint64 length() const { return m_length; }

private:
    Mp4File() = default;
    int begin(const QString& path, const AVStream& like, qint64 begin);

    struct Closer
    {
        void operator()(AVFormatContext* context) const;
    };

    std::unique_ptr<AVFormatContext, Closer> m_format;
    AVStream* m_stream = nullptr;
    QByteArray m_form; ///< of its pictures
    qint64 m_decoded = 0;
    qint64 m_lastPicture = -1;
    qint64 m_length = 0;
};

} // namespace Review
