// SPDX-License-Identifier: MIT
#include "videosource.h"

#include "unreadablefile.h"

#include <QFile>
#include <QImageReader>

#include <algorithm>
#include <iterator>
#include <utility>

namespace Review {

namespace {

// Playing over the end of a file, forwards and backwards, and a glance elsewhere in between.
constexpr size_t openClips = 3;
// A picture much older than the instant asked for is no picture of it, whatever the file says.
constexpr qint64 longestStill = 10'000;
constexpr QSize largestPicture(3840, 2160);
// A file that could not be read may be there again, or be whole by now.
constexpr qint64 triesAgain = 1'000;

bool beginsEarlier(const VideoFile& a, const VideoFile& b)
{
    return a.begin < b.begin;
}

bool goesOn(const VideoFile& before, const VideoFile& file)
{
    return before.path == file.path && before.end == file.begin &&
           before.offset - before.begin == file.offset - file.begin;
}

} // namespace

VideoSource::VideoSource(QList<VideoFile> files, qint64 cacheBytes)
    : m_files(std::move(files)), m_cacheBytes(cacheBytes / qint64(openClips))
{
    // Mostly they are.
    if (!std::is_sorted(m_files.cbegin(), m_files.cend(), beginsEarlier))
        std::sort(m_files.begin(), m_files.end(), beginsEarlier);
}

VideoSource::~VideoSource() = default;

const VideoFile* VideoSource::fileAt(qint64 instant) const
{
    auto file = std::upper_bound(
        m_files.begin(), m_files.end(), instant,
        [](qint64 msecs, const VideoFile& candidate) { return msecs < candidate.begin; });
    // A few files back at most: what overlaps further than that is a strange archive.
    for (int i = 0; i < 8 && file != m_files.begin(); ++i)
        if (--file; instant < file->end)
            return &*file;
    return nullptr;
}

QList<VideoFile> VideoSource::stretches(QList<VideoFile> files, qint64 begin, qint64 end)
{
    files.removeIf([=](const VideoFile& file) { return file.end <= begin || file.begin >= end; });
    std::sort(files.begin(), files.end(), beginsEarlier);
    QList<VideoFile> pieces;
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        const auto show = [&](qint64 from, qint64 until) {
            from = std::max(from, begin);
            until = std::min(until, end);
            if (from < until)
                pieces.append({file->path, from, until, file->offset + from - file->begin});
        };
        // What begins later covers it.
        qint64 from = file->begin;
        for (auto later = file + 1; later != files.cend() && later->begin < file->end; ++later) {
            show(from, later->begin);
            from = std::max(from, later->end);
        }
        show(from, file->end);
    }
    std::sort(pieces.begin(), pieces.end(), beginsEarlier);
    QList<VideoFile> joined;
    for (const VideoFile& piece : std::as_const(pieces)) {
        if (!joined.isEmpty() && goesOn(joined.last(), piece))
            joined.last().end = piece.end;
        else
            joined.append(piece);
    }
    return joined;
}

Clip* VideoSource::clipOf(const VideoFile& file, QString& fault)
{
    std::erase_if(m_open, [&file](const OpenClip& clip) {
        return clip.path == file.path && !clip.clip && clip.tried.hasExpired(triesAgain);
    });
    auto open = std::find_if(m_open.begin(), m_open.end(),
                             [&file](const OpenClip& clip) { return clip.path == file.path; });
    if (open == m_open.end()) {
        OpenClip added{file.path, nullptr, {}, {}};
        added.clip = Clip::open(file.path, m_cacheBytes, m_aborted, added.fault);
        added.tried.start();
        if (m_open.size() == openClips)
            m_open.pop_back();
        open = m_open.insert(m_open.begin(), std::move(added));
    } else {
        std::rotate(m_open.begin(), open, std::next(open));
        open = m_open.begin();
    }
    fault = open->fault;
    return open->clip.get();
}

VideoFrame VideoSource::frameAt(qint64 instant, Clip::Accuracy accuracy)
{
    const VideoFile* file = fileAt(instant);
    if (!file)
        return {.asked = instant};
    if (isPictureFile(file->path))
        return pictureOf(*file, instant);

    VideoFrame frame{.state = VideoFrame::State::Fault, .asked = instant};
    Clip* clip = clipOf(*file, frame.text);
    if (!clip)
        return frame;
    const qint64 inClip = instant - file->begin + file->offset;
    std::optional<ClipPicture> picture = clip->pictureAt(inClip, accuracy);
    const bool isCut = picture && !picture->until && inClip - picture->time > longestStill;
    if (!picture || isCut) {
        frame.text = tr("The file ends before this time.");
        return frame;
    }
    frame.state = VideoFrame::State::Picture;
    frame.image = std::move(picture->image);
    frame.time = file->begin - file->offset + picture->time;
    return frame;
}

VideoFrame VideoSource::pictureOf(const VideoFile& file, qint64 instant) const
{
    VideoFrame frame{.state = VideoFrame::State::Fault, .asked = instant, .time = file.begin};
    QFile device(file.path);
    if (!device.open(QIODevice::ReadOnly)) {
        frame.text = UnreadableFile::text(file.path, AVERROR(EACCES));
        return frame;
    }
    QImageReader reader(&device);
    reader.setAutoTransform(true);
    if (const QSize size = reader.size();
        size.width() > largestPicture.width() || size.height() > largestPicture.height())
        reader.setScaledSize(size.scaled(largestPicture, Qt::KeepAspectRatio));
    frame.image = reader.read();
    if (frame.image.isNull())
        frame.text = UnreadableFile::text(file.path, AVERROR_INVALIDDATA);
    else
        frame.state = VideoFrame::State::Picture;
    return frame;
}

} // namespace Review
