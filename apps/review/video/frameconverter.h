// SPDX-License-Identifier: MIT
#pragma once

#include "ffmpeg.h"

#include <QImage>

namespace Review {

/// Makes images of decoded pictures, upright and with square pixels, in the colours that the
/// stream means.
class FrameConverter
{
public:
    /// @p stream says how its pictures are turned.
    explicit FrameConverter(const AVStream& stream);

    /// Null where the picture has a form that cannot be converted.
    QImage image(const AVFrame& frame);

private:
    QImage upright(const QImage& image, AVRational pixelAspect) const;

    double m_rotation; ///< degrees, clockwise
    AVRational m_pixelAspect;
    Scaler m_scaler;
};

} // namespace Review
