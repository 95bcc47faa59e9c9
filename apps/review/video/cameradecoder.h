// SPDX-License-Identifier: MIT
#pragma once

#include "videosource.h"

#include <QObject>
#include <QThread>

#include <memory>
#include <optional>

namespace Review {

/// Decodes the pictures of one camera on a thread of its own. One request is under way at most; of
/// those made meanwhile the newest wins. Lives on the GUI thread, which it never holds up.
class CameraDecoder : public QObject
{
    Q_OBJECT

public:
    /// @p cacheBytes bounds the memory of decoded pictures.
    CameraDecoder(QList<VideoFile> files, qint64 cacheBytes, QObject* parent = nullptr);
    /// Gives the thread up: one that hangs in a file of a slow share ends when the file answers.
    ~CameraDecoder() override;

    void request(qint64 instant, Clip::Accuracy accuracy);
    bool isBusy() const { return m_busy; }

Q_SIGNALS:
    /// Emitted for each request that no newer one overtook before its turn came, in their order.
    void frameReady(const Review::VideoFrame& frame);
    /// For the thread.
    void asked(qint64 instant, Review::Clip::Accuracy accuracy);

private:
    void onAnswered(const VideoFrame& frame);

    struct Request
    {
        qint64 instant;
        Clip::Accuracy accuracy;
    };

    const std::shared_ptr<VideoSource> m_source;
    QThread* const m_thread;
    bool m_busy = false;
    std::optional<Request> m_next;
};

/// The part of a CameraDecoder that lives on its thread.
class DecodingWorker : public QObject
{
    Q_OBJECT

public:
    explicit DecodingWorker(std::shared_ptr<VideoSource> source) : m_source(std::move(source)) {}

    void decode(qint64 instant, Clip::Accuracy accuracy)
    {
        Q_EMIT answered(m_source->frameAt(instant, accuracy));
    }

Q_SIGNALS:
    void answered(const Review::VideoFrame& frame);

private:
    const std::shared_ptr<VideoSource> m_source;
};

} // namespace Review
