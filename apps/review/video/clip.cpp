// SPDX-License-Identifier: MIT
#include "clip.h"

#include "frameconverter.h"
#include "processorslot.h"
#include "unreadablefile.h"

#include <algorithm>
#include <utility>

namespace Review {

namespace {

constexpr AVRational milliseconds{1, 1000};
// Decoding on is as quick as seeking, as far as this.
constexpr qint64 shortWay = 1000;
// How much earlier a seek tries again, when it came out behind the time that it was for.
constexpr qint64 firstRetreat = 1000;

} // namespace

std::unique_ptr<Clip> Clip::open(const QString& path, qint64 cacheBytes,
                                 const std::atomic<bool>& aborted, QString& fault)
{
    std::unique_ptr<Clip> clip(new Clip(path, cacheBytes, aborted));
    if (!clip->openFile(fault))
        return nullptr;
    return clip;
}

Clip::Clip(QString path, qint64 cacheBytes, const std::atomic<bool>& aborted)
    : m_path(std::move(path)), m_aborted(aborted), m_packet(av_packet_alloc()), m_store(cacheBytes)
{}

Clip::~Clip() = default;

Clip::Facts Clip::factsOf(const QString& path, const std::atomic<bool>& aborted)
{
    Container container;
    if (const int error = container.open(path, aborted); error < 0)
        return {.fault = UnreadableFile::text(path, error)};
    return {.duration = container.declaredDuration(), .created = container.creationTime()};
}

bool Clip::openFile(QString& fault)
{
    m_codec.reset();
    int error = m_container.open(m_path, m_aborted);
    if (error >= 0)
        m_codec = m_container.makeDecoder(error);
    m_drained = false;
    m_counted = 0;
    m_position.reset();
    DecodedFrame first = error < 0 ? nullptr : decode();
    if (!first) {
        fault = UnreadableFile::text(m_path, error < 0 ? error : AVERROR_EOF);
        m_codec.reset();
        return false;
    }
    m_converter = std::make_unique<FrameConverter>(m_container.stream());
    m_zero = first->best_effort_timestamp == AV_NOPTS_VALUE ? 0 : first->best_effort_timestamp;
    store(std::move(first));
    return true;
}

bool Clip::restart()
{
    QString fault;
    return openFile(fault);
}

qint64 Clip::timestampAt(qint64 msecs) const
{
    return m_zero + av_rescale_q(msecs, milliseconds, m_container.stream().time_base);
}

qint64 Clip::msecsAt(qint64 timestamp) const
{
    // Up, so that the picture is shown at the millisecond that is said of it.
    return av_rescale_q_rnd(timestamp - m_zero, m_container.stream().time_base, milliseconds,
                            AV_ROUND_UP);
}

/// The next picture, or null at the end.
DecodedFrame Clip::decode()
{
    DecodedFrame frame(av_frame_alloc());
    while (!isAborted()) {
        const int result = avcodec_receive_frame(m_codec.get(), frame.get());
        if (result == 0)
            return frame;
        if (result != AVERROR(EAGAIN) || m_drained)
            return nullptr;
        // Without a packet the decoder gives out what it still holds. A damaged one is passed over.
        m_drained = !m_container.read(*m_packet);
        const ProcessorSlot slot;
        avcodec_send_packet(m_codec.get(), m_drained ? nullptr : m_packet.get());
    }
    return nullptr;
}

void Clip::store(DecodedFrame frame)
{
    qint64 time = 0;
    if (m_counts || frame->best_effort_timestamp == AV_NOPTS_VALUE) {
        time = av_rescale_q_rnd(m_counted, m_container.pictureLength(), milliseconds, AV_ROUND_UP);
    } else {
        time = msecsAt(frame->best_effort_timestamp);
    }
    ++m_counted;
    // Time stamps may jump back; pictures come in order all the same.
    if (m_position)
        time = std::max(time, *m_position + 1);
    m_store.add(time, std::move(frame), m_position);
    m_position = time;
}

/// Decodes on until it is known which picture is shown at @p msecs.
bool Clip::decodeUntil(qint64 msecs)
{
    while (m_position && *m_position <= msecs) {
        DecodedFrame frame = decode();
        if (!frame) {
            if (!isAborted())
                m_store.setLast(*m_position);
            return !isAborted();
        }
        store(std::move(frame));
    }
    return m_position.has_value();
}

bool Clip::seek(qint64 timestamp)
{
    if (!m_container.seek(timestamp))
        return false;
    avcodec_flush_buffers(m_codec.get());
    m_drained = false;
    m_position.reset();
    return true;
}

/// Makes the picture decoded last one that is not later than @p msecs.
bool Clip::seekBefore(qint64 msecs)
{
    qint64 retreat = 0;
    while (!m_counts && msecs - retreat > 0) {
        if (!seek(timestampAt(msecs - retreat)))
            break;
        DecodedFrame frame = decode();
        if (frame && frame->best_effort_timestamp == AV_NOPTS_VALUE) {
            m_counts = true;
            m_store.clear();
            break;
        }
        if (frame && msecsAt(frame->best_effort_timestamp) <= msecs) {
            store(std::move(frame));
            return true;
        }
        if (isAborted())
            return false;
        retreat = retreat == 0 ? firstRetreat : 2 * retreat;
    }
    return restart() && *m_position <= msecs;
}

std::optional<ClipPicture> Clip::keyFrameBefore(qint64 msecs)
{
    m_codec->skip_frame = AVDISCARD_NONKEY;
    const bool found = seekBefore(msecs);
    // A file that could not be opened again has none.
    if (m_codec)
        m_codec->skip_frame = AVDISCARD_DEFAULT;
    if (!found)
        return {};
    const qint64 time = *m_position;
    // What follows in the decoder is not the picture that follows in the clip.
    m_position.reset();
    return picture(*m_store.entryAt(time));
}

std::optional<ClipPicture> Clip::pictureAt(qint64 msecs, Accuracy accuracy)
{
    if (msecs < 0 || isAborted())
        return {};
    if (const FrameStore::Entry* known = m_store.find(msecs))
        return picture(*known);
    // The file may have gone, and may be back.
    if (!m_codec && !restart())
        return {};
    if (accuracy == Accuracy::KeyFrame && !m_counts)
        return keyFrameBefore(msecs);

    const bool isNear = m_position && *m_position <= msecs && msecs - *m_position <= shortWay;
    if (!isNear && !seekBefore(msecs))
        return {};
    if (!decodeUntil(msecs))
        return {};
    const FrameStore::Entry* entry = m_store.find(msecs);
    return entry ? picture(*entry) : std::nullopt;
}

std::optional<ClipPicture> Clip::picture(const FrameStore::Entry& entry)
{
    const ProcessorSlot slot;
    QImage image = m_converter->image(*entry.frame);
    if (image.isNull())
        return {};
    return ClipPicture{std::move(image), entry.time, entry.until};
}

} // namespace Review
