// SPDX-License-Identifier: MIT
#pragma once

#include "container.h"
#include "framestore.h"

#include <QImage>
#include <QString>

#include <atomic>
#include <memory>
#include <optional>

namespace Review {

class FrameConverter;

/// A decoded picture of a clip.
struct ClipPicture
{
    QImage image;
    /// The first whole millisecond of the clip at which it is shown.
    qint64 time = 0;
    /// The first whole millisecond at which the next one is; none for the last picture.
    std::optional<qint64> until = {};
};

/// One video file, decoded picture by picture. Times are milliseconds from its first picture on.
/// The file is only read. Lives and works on one thread.
class Clip
{
public:
    enum class Accuracy {
        Exact,
        KeyFrame ///< the key frame at the time or before it, which is found with less work
    };

    /// Null with the reason in @p fault for a file that cannot be decoded.
    /// @p cacheBytes bounds the memory of decoded pictures that are kept. @p aborted must outlive
    /// the clip; once another thread sets it, all work ends soon without a result.
    static std::unique_ptr<Clip> open(const QString& path, qint64 cacheBytes,
                                      const std::atomic<bool>& aborted, QString& fault);
    ~Clip();

    /// The last picture that is not later than @p msecs, whatever was asked for before; none
    /// before the first one, once aborted, and where nothing can be decoded.
    std::optional<ClipPicture> pictureAt(qint64 msecs, Accuracy accuracy = Accuracy::Exact);
    /// The time stamp of the first picture, in the time base of the stream.
    qint64 zero() const { return m_zero; }

    /// What a file says of itself; files say all kinds of things.
    struct Facts
    {
        qint64 duration = 0;                ///< milliseconds; 0 for unknown
        std::optional<qint64> created = {}; ///< milliseconds since the Unix epoch
        QString fault = {};                 ///< why it cannot be read
    };

    /// Found without decoding a picture. See open() for @p aborted.
    static Facts factsOf(const QString& path, const std::atomic<bool>& aborted);

private:
    Clip(QString path, qint64 cacheBytes, const std::atomic<bool>& aborted);

    bool openFile(QString& fault);
    bool restart();
    bool seek(qint64 timestamp);
    DecodedFrame decode();
    void store(DecodedFrame frame);
    bool decodeUntil(qint64 msecs);
    bool seekBefore(qint64 msecs);
    std::optional<ClipPicture> keyFrameBefore(qint64 msecs);
    std::optional<ClipPicture> picture(const FrameStore::Entry& entry);
    qint64 timestampAt(qint64 msecs) const;
    qint64 msecsAt(qint64 timestamp) const;
    bool isAborted() const { return m_aborted.load(std::memory_order_relaxed); }

    const QString m_path;
    const std::atomic<bool>& m_aborted;
    Container m_container;
    CodecContext m_codec;
    Packet m_packet;
    std::unique_ptr<FrameConverter> m_converter;

    qint64 m_zero = 0;
    bool m_drained = false;
    bool m_counts = false; ///< pictures have no times after a seek: they are counted from the begin
    qint64 m_counted = 0;
    std::optional<qint64> m_position; ///< milliseconds of the picture decoded last
    FrameStore m_store;
};

} // namespace Review
