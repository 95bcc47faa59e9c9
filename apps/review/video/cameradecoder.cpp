// SPDX-License-Identifier: MIT
#include "cameradecoder.h"

#include "data/leavethread.h"

#include <utility>

namespace Review {

CameraDecoder::CameraDecoder(QList<VideoFile> files, qint64 cacheBytes, QObject* parent)
    : QObject(parent)
    , m_source(std::make_shared<VideoSource>(std::move(files), cacheBytes))
    , m_thread(new QThread)
{
    auto* worker = new DecodingWorker(m_source);
    worker->moveToThread(m_thread);
    connect(this, &CameraDecoder::asked, worker, &DecodingWorker::decode);
    connect(worker, &DecodingWorker::answered, this, &CameraDecoder::onAnswered);
    connect(m_thread, &QThread::finished, worker, &QObject::deleteLater);
    m_thread->start();
}

CameraDecoder::~CameraDecoder()
{
    m_source->abort();
    m_thread->quit();
    leaveThread(m_thread);
}

void CameraDecoder::request(qint64 instant, Clip::Accuracy accuracy)
{
    if (m_busy) {
        m_next = Request{instant, accuracy};
        return;
    }
    m_busy = true;
    Q_EMIT asked(instant, accuracy);
}

void CameraDecoder::onAnswered(const VideoFrame& frame)
{
    m_busy = false;
    if (const std::optional<Request> next = std::exchange(m_next, std::nullopt))
        request(next->instant, next->accuracy);
    Q_EMIT frameReady(frame);
}

} // namespace Review
