// SPDX-License-Identifier: MIT
#pragma once

#include "clip.h"
#include "data/videofile.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QList>
#include <QString>

#include <atomic>
#include <memory>
#include <vector>

namespace Review {

/// What a camera recorded at an instant.
struct VideoFrame
{
    enum class State {
        Picture,
        NoRecording, ///< no file shows that instant
        Fault        ///< a file should, but text says why it does not
    };

    State state = State::NoRecording;
    QImage image = {};
    qint64 asked = 0; ///< the instant that was asked for
    qint64 time = 0;  ///< the instant at which the picture was taken
    QString text = {};
};

/// The pictures of one camera at any instant. Works on one thread, which it may hold up for as long
/// as the files take; abort() may be called from any.
class VideoSource
{
    Q_DECLARE_TR_FUNCTIONS(Review::VideoSource)

public:
    /// @p files in any order; where they overlap, the one that begins later is shown.
    /// @p cacheBytes bounds the memory of decoded pictures, for all files together.
    VideoSource(QList<VideoFile> files, qint64 cacheBytes);
    ~VideoSource();

    /// The last picture that is not later than @p instant.
    VideoFrame frameAt(qint64 instant, Clip::Accuracy accuracy = Clip::Accuracy::Exact);

    /// What @p files show of a range, in the order of time and without overlaps.
    static QList<VideoFile> stretches(QList<VideoFile> files, qint64 begin, qint64 end);

    /// Lets the work in progress, and all later work, end soon without a picture.
    void abort() { m_aborted = true; }

private:
    const VideoFile* fileAt(qint64 instant) const;
    Clip* clipOf(const VideoFile& file, QString& fault);
    VideoFrame pictureOf(const VideoFile& file, qint64 instant) const;

    struct OpenClip
    {
        QString path;
        std::unique_ptr<Clip> clip; ///< null for one that cannot be opened
        QString fault;
        QElapsedTimer tried;
    };

    QList<VideoFile> m_files;
    qint64 m_cacheBytes;
    std::atomic<bool> m_aborted = false;
    std::vector<OpenClip> m_open; ///< the one used last comes first
};

} // namespace Review
