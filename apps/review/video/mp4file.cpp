// SPDX-License-Identifier: MIT
#include "mp4file.h"

#include "container.h"
#include "packetsource.h"

#include <QDateTime>

#include <algorithm>
#include <limits>

namespace Review {

namespace {

/// All that a decoder must know before the first picture, and how pictures are shown.
QByteArray formOf(const AVStream& stream)
{
    const AVCodecParameters& codec = *stream.codecpar;
    const int numbers[] = {int(codec.codec_id), codec.width, codec.height, codec.format};
    QByteArray form(reinterpret_cast<const char*>(numbers), sizeof numbers);
    form.append(reinterpret_cast<const char*>(codec.extradata), codec.extradata_size);
    const QByteArrayView matrix = displayMatrix(stream);
    return form.append(matrix.data(), matrix.size());
}

int copyDisplayMatrix(const AVStream& from, AVStream& to)
{
#if LIBAVCODEC_VERSION_MAJOR >= 61
    // It is one of the parameters of the codec.
    Q_UNUSED(from)
    Q_UNUSED(to)
#else
    const QByteArrayView matrix = displayMatrix(from);
    if (matrix.isEmpty())
        return 0;
    uint8_t* place = av_stream_new_side_data(&to, AV_PKT_DATA_DISPLAYMATRIX, size_t(matrix.size()));
    if (!place)
        return AVERROR(ENOMEM);
    std::copy(matrix.begin(), matrix.end(), reinterpret_cast<char*>(place));
#endif
    return 0;
}

} // namespace

void Mp4File::Closer::operator()(AVFormatContext* context) const
{
    if (context->pb)
        avio_closep(&context->pb);
    avformat_free_context(context);
}

Mp4File::~Mp4File() = default;

bool Mp4File::canHold(const AVStream& stream)
{
    const AVOutputFormat* mp4 = av_guess_format("mp4", nullptr, nullptr);
    return avformat_query_codec(mp4, stream.codecpar->codec_id, FF_COMPLIANCE_NORMAL) == 1;
}

std::unique_ptr<Mp4File> Mp4File::open(const QString& path, const AVStream& like, qint64 begin,
                                       QString& fault)
{
    std::unique_ptr<Mp4File> file(new Mp4File);
    const int error = file->begin(path, like, begin);
    if (error >= 0)
        return file;
    fault = ffmpegText(error);
    return nullptr;
}

int Mp4File::begin(const QString& path, const AVStream& like, qint64 begin)
{
    const QByteArray url = "file:" + path.toUtf8();
    AVFormatContext* context = nullptr;
    int error = avformat_alloc_output_context2(&context, nullptr, "mp4", url.constData());
    m_format.reset(context);
    if (error < 0)
        return error;
    m_form = formOf(like);
    m_decoded = std::numeric_limits<qint64>::min();
    m_stream = avformat_new_stream(context, nullptr);
    error = avcodec_parameters_copy(m_stream->codecpar, like.codecpar);
    if (error >= 0)
        error = copyDisplayMatrix(like, *m_stream);
    if (error < 0)
        return error;
    m_stream->codecpar->codec_tag = 0; // other containers have other ones
    m_stream->time_base = PacketSource::timeBase;
    m_stream->avg_frame_rate = like.avg_frame_rate;
    m_stream->sample_aspect_ratio = like.sample_aspect_ratio;
    const QByteArray created =
        QDateTime::fromMSecsSinceEpoch(begin, Qt::UTC).toString(Qt::ISODateWithMs).toLatin1();
    av_dict_set(&context->metadata, "creation_time", created.constData(), 0);
    error = avio_open(&context->pb, url.constData(), AVIO_FLAG_WRITE);
    return error < 0 ? error : avformat_write_header(context, nullptr);
}

bool Mp4File::takes(const AVStream& stream) const
{
    return m_form == formOf(stream);
}

QString Mp4File::add(AVPacket& packet)
{
    // Between clips whose clocks do not agree to the frame.
    packet.dts = std::max<qint64>(packet.dts, m_decoded + 1);
    m_decoded = packet.dts;
    m_lastPicture = std::max<qint64>(m_lastPicture, packet.pts);
    m_length = std::max<qint64>(m_length, packet.pts + packet.duration);
    packet.stream_index = m_stream->index;
    packet.pos = -1;
    av_packet_rescale_ts(&packet, PacketSource::timeBase, m_stream->time_base);
    const int error = av_interleaved_write_frame(m_format.get(), &packet);
    return error < 0 ? ffmpegText(error) : QString();
}

QString Mp4File::finish()
{
    int error = av_write_trailer(m_format.get());
    avio_flush(m_format->pb);
    if (error >= 0)
        error = m_format->pb->error;
    const int closed = avio_closep(&m_format->pb);
    error = std::min(error, closed);
    return error < 0 ? ffmpegText(error) : QString();
}

} // namespace Review
