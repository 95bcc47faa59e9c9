#include "clip.h"

#include "frameconverter.h"

#include <QDateTime>
#include <QFileInfo>

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
    silenceFFmpeg();
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
    silenceFFmpeg();
    Clip clip(path, 0, aborted);
    if (const int error = clip.openContainer(); error < 0)
        return {.fault = ffmpegText(error)};
    return {.duration = clip.declaredDuration(), .created = clip.creationTime()};
}

/// Makes container, stream and codec known. Returns an error or 0.
int Clip::openContainer()
{
    m_codec.reset();
    m_format.reset(avformat_alloc_context());
    m_format->interrupt_callback = {
        [](void* clip) { return int(static_cast<const Clip*>(clip)->isAborted()); }, this};
    AVDictionary* options = nullptr;
    av_dict_set(&options, "protocol_whitelist", "file", 0);
    // With the protocol, because a name may look as if it had one.
    const QByteArray url = "file:" + QFileInfo(m_path).absoluteFilePath().toUtf8();
    AVFormatContext* context = m_format.release();
    int error = avformat_open_input(&context, url.constData(), nullptr, &options);
    av_dict_free(&options);
    m_format.reset(context);
    if (error >= 0)
        error = avformat_find_stream_info(m_format.get(), nullptr);
    const AVCodec* decoder = nullptr;
    if (error >= 0)
        error = av_find_best_stream(m_format.get(), AVMEDIA_TYPE_VIDEO, -1, -1, &decoder, 0);
    if (error >= 0) {
        m_stream = m_format->streams[error];
        for (unsigned int i = 0; i < m_format->nb_streams; ++i)
            if (m_format->streams[i] != m_stream)
                m_format->streams[i]->discard = AVDISCARD_ALL;
        m_codec.reset(avcodec_alloc_context3(decoder));
        error = avcodec_parameters_to_context(m_codec.get(), m_stream->codecpar);
    }
    return error;
}

bool Clip::openFile(QString& fault)
{
    int error = openContainer();
    if (error >= 0) {
        m_codec->thread_count = 1;
        m_codec->pkt_timebase = m_stream->time_base;
        error = avcodec_open2(m_codec.get(), m_codec->codec, nullptr);
    }
    m_awaitsKey = true;
    m_drained = false;
    m_counted = 0;
    m_position.reset();
    DecodedFrame first = error < 0 ? nullptr : decode();
    if (!first) {
        fault = ffmpegText(error < 0 ? error : AVERROR_INVALIDDATA);
        m_codec.reset();
        return false;
    }
    m_converter = std::make_unique<FrameConverter>(*m_stream);
    m_zero = first->best_effort_timestamp == AV_NOPTS_VALUE ? 0 : first->best_effort_timestamp;
    store(std::move(first));
    return true;
}

bool Clip::restart()
{
    QString fault;
    return openFile(fault);
}

qint64 Clip::declaredDuration() const
{
    if (m_stream->duration > 0)
        return av_rescale_q(m_stream->duration, m_stream->time_base, milliseconds);
    return m_format->duration > 0 ? m_format->duration / (AV_TIME_BASE / 1000) : 0;
}

std::optional<qint64> Clip::creationTime() const
{
    for (const AVDictionary* metadata : {m_stream->metadata, m_format->metadata}) {
        const AVDictionaryEntry* entry = av_dict_get(metadata, "creation_time", nullptr, 0);
        if (!entry)
            continue;
        const QDateTime time =
            QDateTime::fromString(QString::fromUtf8(entry->value), Qt::ISODateWithMs);
        // Cameras without a set clock write the begin of some epoch.
        if (time.isValid() && time.date().year() > 1980)
            return time.toMSecsSinceEpoch();
    }
    return {};
}

qint64 Clip::timestampAt(qint64 msecs) const
{
    return m_zero + av_rescale_q(msecs, milliseconds, m_stream->time_base);
}

qint64 Clip::msecsAt(qint64 timestamp) const
{
    // Up, so that the picture is shown at the millisecond that is said of it.
    return av_rescale_q_rnd(timestamp - m_zero, m_stream->time_base, milliseconds, AV_ROUND_UP);
}

bool Clip::readPacket()
{
    for (;;) {
        av_packet_unref(m_packet.get());
        if (isAborted() || av_read_frame(m_format.get(), m_packet.get()) < 0)
            return false;
        if (m_packet->stream_index != m_stream->index)
            continue;
        // Some decoders show a wrong picture, without a word, for what comes before a key frame.
        if (m_awaitsKey && !(m_packet->flags & AV_PKT_FLAG_KEY))
            continue;
        m_awaitsKey = false;
        return true;
    }
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
        m_drained = !readPacket();
        avcodec_send_packet(m_codec.get(), m_drained ? nullptr : m_packet.get());
    }
    return nullptr;
}

void Clip::store(DecodedFrame frame)
{
    qint64 time = 0;
    if (m_counts || frame->best_effort_timestamp == AV_NOPTS_VALUE) {
        AVRational rate = m_stream->avg_frame_rate;
        if (rate.num <= 0 || rate.den <= 0)
            rate = {25, 1};
        time = av_rescale_q_rnd(m_counted, av_inv_q(rate), milliseconds, AV_ROUND_UP);
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
    if (av_seek_frame(m_format.get(), m_stream->index, timestamp, AVSEEK_FLAG_BACKWARD) < 0)
        return false;
    avcodec_flush_buffers(m_codec.get());
    m_awaitsKey = true;
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
    QImage image = m_converter->image(*entry.frame);
    if (image.isNull())
        return {};
    return ClipPicture{std::move(image), entry.time, entry.until};
}

} // namespace Review
