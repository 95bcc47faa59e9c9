// SPDX-License-Identifier: MIT
#pragma once

#include "cameradecoder.h"

#include <QImage>
#include <QObject>

#include <memory>

namespace Review {

/// Pictures of a camera for where the mouse rests: the nearest that is quickly found.
class HoverPicture : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    void setFiles(const QList<VideoFile>& files);
    /// Asks for the picture of an instant. Returns whether a file shows it; otherwise none is to
    /// come.
    bool ask(qint64 instant);
    /// No picture is wanted any longer.
    void forget() { m_asked = 0; }

Q_SIGNALS:
    /// Emitted with the picture that was asked for last; null where the file has none.
    void ready(const QImage& picture);

private:
    QList<VideoFile> m_files;
    std::unique_ptr<CameraDecoder> m_decoder; ///< from the first question on
    qint64 m_asked = 0;
};

} // namespace Review
