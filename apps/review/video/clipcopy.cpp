// SPDX-License-Identifier: MIT
#include "clipcopy.h"

#include "packetsource.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace Review {

namespace {

constexpr qint64 ticks = PacketSource::perMillisecond;
// The clocks of recorders and the names of their files know whole seconds.
constexpr qint64 longestPause = 2'000;

QString copyText(const char* text)
{
    return QCoreApplication::translate("Review::ClipCopy", text);
}

/// Up, as everywhere where the time of a picture becomes one of whole milliseconds.
qint64 msecsOf(qint64 time)
{
    return av_rescale_rnd(time, 1, ticks, AV_ROUND_UP);
}

} // namespace

ClipCopy::ClipCopy(Naming naming, JobProgress& progress)
    : m_naming(std::move(naming)), m_progress(progress)
{}

QString ClipCopy::add(const VideoFile& stretch)
{
    QString fault;
    const auto source = PacketSource::open(stretch.path, m_progress.cancelled(), fault);
    if (!source)
        return fault;
    if (!Mp4File::canHold(source->stream()))
        return copyText(QT_TRANSLATE_NOOP("Review::ClipCopy",
                                          "An MP4 file cannot hold pictures of this kind."));
    m_stretch = stretch;
    m_begun = false;
    copy(*source, stretch);
    if (!m_begun && m_fault.isEmpty() && !m_progress.isCancelled())
        return copyText(QT_TRANSLATE_NOOP("Review::ClipCopy", "The file ends before this time."));
    if (source->hasJumped())
        return copyText(QT_TRANSLATE_NOOP(
            "Review::ClipCopy", "Times in the file jump back; what is said twice was left out."));
    return {};
}

void ClipCopy::copy(PacketSource& source, const VideoFile& stretch)
{
    const qint64 from = stretch.offset * ticks;
    const qint64 until = (stretch.offset + stretch.end - stretch.begin) * ticks;
    if (!source.seekBefore(from))
        return;
    // From the last key frame that is not later than the begin.
    std::vector<Packet> start;
    bool started = false;
    bool goesOn = true;
    qint64 lasts = 0;
    qint64 done = 0;
    while (m_fault.isEmpty()) {
        Packet packet(av_packet_alloc());
        goesOn = source.next(*packet);
        if (!goesOn || packet->dts >= until)
            break;
        lasts = std::max<qint64>(lasts, packet->pts + packet->duration);
        if (const qint64 now = std::max<qint64>(packet->dts - from, done); now > done)
            m_progress.add(now / ticks - std::exchange(done, now) / ticks);
        if (started) {
            take(std::move(packet), source.stream());
            continue;
        }
        if ((packet->flags & AV_PKT_FLAG_KEY) && packet->pts <= from)
            start.clear();
        started = packet->dts > from;
        start.push_back(std::move(packet));
        for (size_t i = 0; started && i < start.size(); ++i)
            take(std::move(start[i]), source.stream());
    }
    const bool isShown = goesOn || lasts > from;
    for (size_t i = 0; !started && isShown && i < start.size(); ++i)
        take(std::move(start[i]), source.stream());
    m_beyond.clear();
    if (!m_progress.isCancelled())
        m_progress.add(stretch.end - stretch.begin - done / ticks);
}

/// Takes the packets of a stretch, beginning with a key frame.
void ClipCopy::take(Packet packet, const AVStream& stream)
{
    if (!m_fault.isEmpty())
        return;
    if (!m_begun)
        begin(*packet, stream);
    // Pictures before the first one need others that are not there.
    if (!m_fault.isEmpty() || packet->pts < m_first)
        return;
    const qint64 until = (m_stretch.offset + m_stretch.end - m_stretch.begin) * ticks;
    if (packet->pts >= until) {
        m_beyond.push_back(std::move(packet));
        return;
    }
    for (const Packet& needed : m_beyond) {
        m_overruns = true;
        write(*needed);
    }
    m_beyond.clear();
    write(*packet);
}

/// Whether what begins then may come into the same file.
bool ClipCopy::goesOn(qint64 begin, const AVStream& stream) const
{
    const qint64 inFile = (begin - m_fileBegin) * ticks;
    return m_file && !m_overruns && m_file->takes(stream) && inFile > m_file->lastPicture() &&
           inFile <= m_file->length() + longestPause * ticks;
}

void ClipCopy::begin(const AVPacket& first, const AVStream& stream)
{
    m_begun = true;
    m_first = first.pts;
    const qint64 begin = m_stretch.begin - m_stretch.offset + msecsOf(first.pts);
    if (!goesOn(begin, stream)) {
        finish();
        if (!m_fault.isEmpty())
            return;
        m_overruns = false;
        m_fileBegin = begin;
        m_path = m_naming(begin);
        m_file = Mp4File::open(m_path, stream, begin, m_fault);
    }
    m_shift = (begin - m_fileBegin) * ticks - first.pts;
    m_written.append({m_path, begin, begin, begin - m_fileBegin});
}

void ClipCopy::write(AVPacket& packet)
{
    packet.pts += m_shift;
    packet.dts += m_shift;
    if (m_fault.isEmpty())
        m_fault = m_file->add(packet);
    m_written.last().end = m_fileBegin + msecsOf(m_file->length());
}

void ClipCopy::finish()
{
    if (!m_file)
        return;
    const QString fault = m_file->finish();
    if (m_fault.isEmpty())
        m_fault = fault;
    m_file.reset();
}

} // namespace Review
