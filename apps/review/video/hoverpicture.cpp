// SPDX-License-Identifier: MIT
#include "hoverpicture.h"

#include <algorithm>

namespace Review {

namespace {

constexpr qint64 hoverBytes = qint64(16) << 20;

} // namespace

void HoverPicture::setFiles(const QList<VideoFile>& files)
{
    if (m_files == files)
        return;
    m_files = files;
    m_decoder.reset();
    m_asked = 0;
}

bool HoverPicture::ask(qint64 instant)
{
    const bool isShown = std::ranges::any_of(m_files, [instant](const VideoFile& file) {
        return file.begin <= instant && instant < file.end;
    });
    m_asked = isShown ? instant : 0;
    if (!isShown)
        return false;
    if (!m_decoder) {
        m_decoder = std::make_unique<CameraDecoder>(m_files, hoverBytes);
        connect(m_decoder.get(), &CameraDecoder::frameReady, this, [this](const VideoFrame& frame) {
            if (frame.asked == m_asked)
                Q_EMIT ready(frame.image);
        });
    }
    m_decoder->request(instant, Clip::Accuracy::KeyFrame);
    return true;
}

} // namespace Review
