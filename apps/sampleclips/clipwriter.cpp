// SPDX-License-Identifier: MIT
#include "clipwriter.h"

#include "video/ffmpeg.h"

#include <QDateTime>

namespace Review {

struct ClipWriter::Private
{
    struct OutputDeleter
    {
        void operator()(AVFormatContext* context) const
        {
            if (context->pb)
                avio_closep(&context->pb);
            avformat_free_context(context);
        }
    };

    std::unique_ptr<AVFormatContext, OutputDeleter> format;
    CodecContext codec;
    DecodedFrame frame;
    Packet packet;
    Scaler scaler;
    AVStream* stream = nullptr;
    qint64 count = 0;
};

ClipWriter::ClipWriter(const QString& path, QSize size, const Format& format)
    : d(std::make_unique<Private>())
{
    const QByteArray url = "file:" + path.toUtf8();
    AVFormatContext* context = nullptr;
    if (!check(avformat_alloc_output_context2(&context, nullptr, nullptr, url.constData())))
        return;
    d->format.reset(context);
    if (openEncoder(size, format) && openFile(url, format.creationTime))
        makeFrame();
}

ClipWriter::~ClipWriter() = default;

bool ClipWriter::check(int result)
{
    if (result < 0 && m_fault.isEmpty())
        m_fault = ffmpegText(result);
    return m_fault.isEmpty();
}

bool ClipWriter::openEncoder(QSize size, const Format& format)
{
    const AVCodec* encoder = avcodec_find_encoder_by_name(format.encoder.constData());
    if (!encoder)
        return check(AVERROR_ENCODER_NOT_FOUND);
    d->codec.reset(avcodec_alloc_context3(encoder));
    AVCodecContext& codec = *d->codec;
    const bool isJpeg = encoder->id == AV_CODEC_ID_MJPEG;
    codec.width = size.width();
    codec.height = size.height();
    codec.time_base = {1, format.framesPerSecond};
    codec.framerate = {format.framesPerSecond, 1};
    codec.pix_fmt = isJpeg ? AV_PIX_FMT_YUVJ420P : AV_PIX_FMT_YUV420P;
    codec.gop_size = isJpeg ? 1 : format.keyFrameDistance;
    codec.max_b_frames = format.bFrames;
    codec.thread_count = 1;
    if (format.quantizer > 0) {
        codec.flags |= AV_CODEC_FLAG_QSCALE;
        codec.global_quality = FF_QP2LAMBDA * format.quantizer;
    }
    if (d->format->oformat->flags & AVFMT_GLOBALHEADER)
        codec.flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    // Encoders that know presets work quickly, and say nothing.
    silenceFFmpeg();
    AVDictionary* codecOptions = nullptr;
    av_dict_set(&codecOptions, "preset", "ultrafast", 0);
    av_dict_set(&codecOptions, "x265-params", "log-level=none", 0);
    const int opened = avcodec_open2(&codec, encoder, &codecOptions);
    av_dict_free(&codecOptions);
    return check(opened);
}

bool ClipWriter::openFile(const QByteArray& url, qint64 creationTime)
{
    AVFormatContext& file = *d->format;
    const AVCodecContext& codec = *d->codec;
    d->stream = avformat_new_stream(&file, nullptr);
    d->stream->time_base = codec.time_base;
    d->stream->avg_frame_rate = codec.framerate;
    if (!check(avcodec_parameters_from_context(d->stream->codecpar, &codec)))
        return false;
    if (creationTime != 0)
        av_dict_set(&file.metadata, "creation_time",
                    QDateTime::fromMSecsSinceEpoch(creationTime, Qt::UTC)
                        .toString(Qt::ISODateWithMs)
                        .toUtf8()
                        .constData(),
                    0);
    AVDictionary* options = nullptr;
    av_dict_set(&options, "movflags", "+faststart", 0);
    if (check(avio_open(&file.pb, url.constData(), AVIO_FLAG_WRITE)))
        check(avformat_write_header(&file, &options));
    av_dict_free(&options);
    return m_fault.isEmpty();
}

void ClipWriter::makeFrame()
{
    const AVCodecContext& codec = *d->codec;
    const bool isJpeg = codec.codec_id == AV_CODEC_ID_MJPEG;
    d->packet.reset(av_packet_alloc());
    d->frame.reset(av_frame_alloc());
    d->frame->format = codec.pix_fmt;
    d->frame->width = codec.width;
    d->frame->height = codec.height;
    check(av_frame_get_buffer(d->frame.get(), 0));
    d->scaler.reset(sws_getContext(codec.width, codec.height, AV_PIX_FMT_BGRA, codec.width,
                                   codec.height, AV_PIX_FMT_YUV420P, SWS_BILINEAR, nullptr, nullptr,
                                   nullptr));
    sws_setColorspaceDetails(d->scaler.get(), sws_getCoefficients(SWS_CS_DEFAULT), 1,
                             sws_getCoefficients(SWS_CS_ITU601), isJpeg ? 1 : 0, 0, 1 << 16,
                             1 << 16);
}

void ClipWriter::add(const QImage& picture)
{
    if (!m_fault.isEmpty() || !check(av_frame_make_writable(d->frame.get())))
        return;
    const QImage source = picture.convertToFormat(QImage::Format_RGB32);
    const uint8_t* const planes[] = {source.constBits(), nullptr, nullptr, nullptr};
    const int strides[] = {int(source.bytesPerLine()), 0, 0, 0};
    sws_scale(d->scaler.get(), planes, strides, 0, source.height(), d->frame->data,
              d->frame->linesize);
    d->frame->pts = d->count++;
    d->frame->quality = d->codec->global_quality;
    if (check(avcodec_send_frame(d->codec.get(), d->frame.get())))
        writePackets();
}

void ClipWriter::finish()
{
    if (!m_fault.isEmpty() || !check(avcodec_send_frame(d->codec.get(), nullptr)))
        return;
    writePackets();
    if (check(av_write_trailer(d->format.get())))
        check(avio_closep(&d->format->pb));
}

void ClipWriter::writePackets()
{
    for (;;) {
        const int result = avcodec_receive_packet(d->codec.get(), d->packet.get());
        if (result == AVERROR(EAGAIN) || result == AVERROR_EOF || !check(result))
            return;
        d->packet->duration = 1; // one frame; the last one would have none otherwise
        d->packet->stream_index = d->stream->index;
        av_packet_rescale_ts(d->packet.get(), d->codec->time_base, d->stream->time_base);
        if (!check(av_interleaved_write_frame(d->format.get(), d->packet.get())))
            return;
    }
}

} // namespace Review
