// SPDX-License-Identifier: MIT
#pragma once

#include "data/jobprogress.h"
#include "data/videofile.h"
#include "mp4file.h"

#include <QList>

#include <functional>
#include <vector>

namespace Review {

class PacketSource;

/// Copies what clips of one camera show into MP4 files, without encoding anew. What follows in time
/// and is of one form comes into one file. Works on one thread.
class ClipCopy
{
public:
    /// Names the file that begins at an instant.
    using Naming = std::function<QString(qint64 begin)>;

    /// @p progress gets on by a step for each millisecond, and ends the work when cancelled.
    ClipCopy(Naming naming, JobProgress& progress);

    /// Copies what the file of @p stretch shows, from the key frame before the stretch on.
    /// Stretches come in the order of time. Returns what is wrong with the file, or nothing.
    QString add(const VideoFile& stretch);
    /// Ends the last file.
    void finish();

    /// What the files show, stretch by stretch.
    const QList<VideoFile>& written() const { return m_written; }
    /// Why nothing more can be written; empty while all goes well.
    const QString& fault() const { return m_fault; }

private:
    void copy(PacketSource& source, const VideoFile& stretch);
    void take(Packet packet, const AVStream& stream);
    void begin(const AVPacket& first, const AVStream& stream);
    bool goesOn(qint64 begin, const AVStream& stream) const;
    void write(AVPacket& packet);

    const Naming m_naming;
    JobProgress& m_progress;
    QList<VideoFile> m_written;
    QString m_fault;
    std::unique_ptr<Mp4File> m_file;
    QString m_path;
    qint64 m_fileBegin = 0; ///< milliseconds since the Unix epoch

    VideoFile m_stretch;
    bool m_begun = false;         ///< whether something of the stretch is in a file
    qint64 m_first = 0;           ///< time of the first picture of the stretch, in the source
    qint64 m_shift = 0;           ///< from times of the source to those of the file
    std::vector<Packet> m_beyond; ///< behind the end of the stretch, unless needed by what follows
    bool m_overruns = false;      ///< whether some of that had to be written
};

} // namespace Review
