// SPDX-License-Identifier: MIT
#pragma once

#include "ffmpeg.h"

#include <QByteArrayView>

#include <atomic>
#include <optional>

namespace Review {

/// A video file that is open for reading, and the stream of it that shows pictures.
class Container
{
public:
    /// Opens @p path anew. Returns 0 or an error of the libraries. @p aborted must outlive the
    /// container; once another thread sets it, all work ends soon without a result.
    int open(const QString& path, const std::atomic<bool>& aborted);

    const AVStream& stream() const { return *m_stream; }
    /// Null, with the reason in @p error, where there is none for the stream.
    CodecContext makeDecoder(int& error) const;
    /// How long a picture is shown, in seconds, where time stamps do not say.
    AVRational pictureLength() const;
    /// Goes to a key frame, at best the last one not later. Returns whether that could be done.
    bool seek(qint64 timestamp);
    /// The next packet of the stream, in the order of decoding; false at the end and once aborted.
    /// Opened or sought, it begins with a key frame.
    bool read(AVPacket& packet);

    /// Milliseconds, as the file says; 0 for unknown.
    qint64 declaredDuration() const;
    /// Milliseconds since the Unix epoch.
    std::optional<qint64> creationTime() const;

private:
    FormatContext m_format;
    AVStream* m_stream = nullptr;
    const AVCodec* m_decoder = nullptr;
    const std::atomic<bool>* m_aborted = nullptr;
    bool m_awaitsKey = true; ///< what comes before a key frame cannot be decoded
};

/// How the pictures of a stream are to be turned, in the bytes of the libraries; empty for not at
/// all.
QByteArrayView displayMatrix(const AVStream& stream);

} // namespace Review
