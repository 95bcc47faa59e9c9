// SPDX-License-Identifier: MIT
#include "container.h"

#include <QDateTime>
#include <QFileInfo>

#include <utility>

namespace Review {

int Container::open(const QString& path, const std::atomic<bool>& aborted)
{
    silenceFFmpeg();
    m_aborted = &aborted;
    m_awaitsKey = true;
    m_format.reset(avformat_alloc_context());
    m_format->interrupt_callback = {
        [](void* flag) { return int(static_cast<const std::atomic<bool>*>(flag)->load()); },
        const_cast<std::atomic<bool>*>(&aborted)};
    AVDictionary* options = nullptr;
    av_dict_set(&options, "protocol_whitelist", "file", 0);
    // With the protocol, because a name may look as if it had one.
    const QByteArray url = "file:" + QFileInfo(path).absoluteFilePath().toUtf8();
    AVFormatContext* context = m_format.release();
    int error = avformat_open_input(&context, url.constData(), nullptr, &options);
    av_dict_free(&options);
    m_format.reset(context);
    if (error >= 0)
        error = avformat_find_stream_info(m_format.get(), nullptr);
    if (error >= 0)
        error = av_find_best_stream(m_format.get(), AVMEDIA_TYPE_VIDEO, -1, -1, &m_decoder, 0);
    if (error < 0)
        return error;
    m_stream = m_format->streams[error];
    for (unsigned int i = 0; i < m_format->nb_streams; ++i)
        if (m_format->streams[i] != m_stream)
            m_format->streams[i]->discard = AVDISCARD_ALL;
    return 0;
}

CodecContext Container::makeDecoder(int& error) const
{
    CodecContext codec(avcodec_alloc_context3(m_decoder));
    error = avcodec_parameters_to_context(codec.get(), m_stream->codecpar);
    codec->thread_count = 1;
    codec->pkt_timebase = m_stream->time_base;
    if (error >= 0)
        error = avcodec_open2(codec.get(), m_decoder, nullptr);
    return error < 0 ? nullptr : std::move(codec);
}

AVRational Container::pictureLength() const
{
    const AVRational rate = m_stream->avg_frame_rate;
    return rate.num > 0 && rate.den > 0 ? av_inv_q(rate) : AVRational{1, 25};
}

bool Container::seek(qint64 timestamp)
{
    if (av_seek_frame(m_format.get(), m_stream->index, timestamp, AVSEEK_FLAG_BACKWARD) < 0)
        return false;
    m_awaitsKey = true;
    return true;
}

bool Container::read(AVPacket& packet)
{
    for (;;) {
        av_packet_unref(&packet);
        if (m_aborted->load(std::memory_order_relaxed) ||
            av_read_frame(m_format.get(), &packet) < 0)
            return false;
        if (packet.stream_index != m_stream->index)
            continue;
        // Some decoders show a wrong picture, without a word, for what comes before a key frame.
        if (m_awaitsKey && !(packet.flags & AV_PKT_FLAG_KEY))
            continue;
        m_awaitsKey = false;
        return true;
    }
}

qint64 Container::declaredDuration() const
{
    if (m_stream->duration > 0)
        return av_rescale_q(m_stream->duration, m_stream->time_base, {1, 1000});
    return m_format->duration > 0 ? m_format->duration / (AV_TIME_BASE / 1000) : 0;
}

std::optional<qint64> Container::creationTime() const
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

QByteArrayView displayMatrix(const AVStream& stream)
{
#if LIBAVCODEC_VERSION_MAJOR >= 61
    const AVPacketSideData* data =
        av_packet_side_data_get(stream.codecpar->coded_side_data,
                                stream.codecpar->nb_coded_side_data, AV_PKT_DATA_DISPLAYMATRIX);
    return data ? QByteArrayView(data->data, qsizetype(data->size)) : QByteArrayView();
#else
    size_t size = 0;
    const uint8_t* data = av_stream_get_side_data(&stream, AV_PKT_DATA_DISPLAYMATRIX, &size);
    return data ? QByteArrayView(data, qsizetype(size)) : QByteArrayView();
#endif
}

} // namespace Review
