// SPDX-License-Identifier: MIT
#include "packetsource.h"

#include "clip.h"
#include "unreadablefile.h"

#include <QList>

#include <algorithm>

namespace Review {

namespace {

/// So many tell how the times of a file are.
constexpr int sampledPackets = 60;
/// As far as any codec goes.
constexpr qsizetype longestDelay = 16;
constexpr qint64 firstStepBack = 1'000 * PacketSource::perMillisecond;

} // namespace

std::unique_ptr<PacketSource> PacketSource::open(const QString& path,
                                                 const std::atomic<bool>& aborted, QString& fault)
{
    // Whatever plays is shown from its first picture on.
    const std::unique_ptr<Clip> clip = Clip::open(path, 0, aborted, fault);
    if (!clip)
        return nullptr;
    std::unique_ptr<PacketSource> source(new PacketSource(path, aborted));
    int error = source->reopen();
    if (error >= 0) {
        source->m_zero = clip->zero();
        source->m_delay = source->stream().codecpar->video_delay;
        source->m_pictureLength =
            std::max<qint64>(1, av_rescale_q(1, source->m_container.pictureLength(), timeBase));
        if (!source->sampleTimes())
            error = source->countPictures();
        if (error >= 0)
            error = source->reopen();
    }
    if (error >= 0)
        return source;
    fault = UnreadableFile::text(path, error);
    return nullptr;
}

int PacketSource::reopen()
{
    m_packets = 0;
    beginAnew();
    return m_container.open(m_path, m_aborted);
}

void PacketSource::beginAnew()
{
    m_ahead.clear();
    m_first.reset();
    m_decoded.reset();
}

/// Finds out how far ahead the file decodes, which not every one says. False where packets lack
/// times.
bool PacketSource::sampleTimes()
{
    const Packet packet(av_packet_alloc());
    QList<qint64> times;
    while (times.size() < sampledPackets && m_container.read(*packet)) {
        if (packet->pts == AV_NOPTS_VALUE && (m_delay > 0 || packet->dts == AV_NOPTS_VALUE))
            return false;
        const qint64 time = packet->pts == AV_NOPTS_VALUE ? packet->dts : packet->pts;
        const qsizetype later =
            std::ranges::count_if(times, [time](qint64 other) { return other > time; });
        // More than that is a jump back.
        if (later <= longestDelay)
            m_delay = std::max(m_delay, int(later));
        times.append(time);
    }
    return true;
}

/// Finds by decoding in which order the packets are shown.
int PacketSource::countPictures()
{
    int error = reopen();
    const CodecContext codec = error < 0 ? nullptr : m_container.makeDecoder(error);
    if (!codec)
        return error;
    const Packet packet(av_packet_alloc());
    const DecodedFrame frame(av_frame_alloc());
    qint64 count = 0;
    for (bool goesOn = true; goesOn;) {
        goesOn = m_container.read(*packet);
        packet->pts = packet->dts = m_packets++;
        avcodec_send_packet(codec.get(), goesOn ? packet.get() : nullptr);
        while (avcodec_receive_frame(codec.get(), frame.get()) == 0) {
            m_numbers.insert(frame->pts, count);
            m_delay = std::max(m_delay, int(frame->pts - count));
            ++count;
        }
    }
    m_counts = true;
    return 0;
}

bool PacketSource::seekBefore(qint64 time)
{
    const Packet first(av_packet_alloc());
    for (qint64 retreat = 0; !m_counts && time - retreat > 0;
         retreat = std::max(firstStepBack, 2 * retreat)) {
        const qint64 target = m_zero + av_rescale_q(time - retreat, timeBase, stream().time_base);
        if (!m_container.seek(target) || !m_container.read(*first))
            break;
        if (!takeTime(*first) || first->pts > time)
            continue;
        beginAnew();
        return m_container.seek(target);
    }
    return reopen() >= 0;
}

bool PacketSource::next(AVPacket& packet)
{
    while (m_container.read(packet)) {
        if (!takeTime(packet))
            continue;
        // Pictures before the first one need others that are not there.
        if (m_first && packet.pts < *m_first && m_latest <= *m_first)
            continue;
        if (m_awaitsKey && (!(packet.flags & AV_PKT_FLAG_KEY) || packet.pts <= m_latest))
            continue;
        m_awaitsKey = false;
        packet.dts = decodeTime(packet.pts);
        if (m_decoded && packet.dts <= *m_decoded) {
            m_jumped = true;
            m_awaitsKey = true;
            beginAnew();
            continue;
        }
        m_decoded = packet.dts;
        m_latest = std::max<qint64>(m_latest, packet.pts);
        return true;
    }
    return false;
}

/// Puts the time at which the packet is shown, and for how long, into it. False where it is not.
bool PacketSource::takeTime(AVPacket& packet)
{
    const AVRational base = stream().time_base;
    qint64 shownAt = packet.pts != AV_NOPTS_VALUE || m_delay > 0 ? packet.pts : packet.dts;
    if (m_counts) {
        const auto number = m_numbers.constFind(m_packets++);
        if (number == m_numbers.cend())
            return false;
        shownAt = *number * m_pictureLength;
    } else if (shownAt == AV_NOPTS_VALUE) {
        return false;
    } else {
        shownAt = av_rescale_q(shownAt - m_zero, base, timeBase);
    }
    packet.pts = shownAt;
    packet.duration = av_rescale_q(packet.duration, base, timeBase);
    if (packet.duration <= 0 || m_counts)
        packet.duration = m_pictureLength;
    return true;
}

/// What is decoded must be in order, and not later than it is shown.
qint64 PacketSource::decodeTime(qint64 shownAt)
{
    if (!m_first)
        m_first = shownAt;
    m_ahead.insert(shownAt);
    const int missing = m_delay + 1 - int(m_ahead.size());
    if (missing > 0)
        return *m_first - missing * m_pictureLength;
    return m_ahead.extract(m_ahead.begin()).value();
}

} // namespace Review
