// SPDX-License-Identifier: MIT
#pragma once

#include "camera.h"

#include <QImage>
#include <QString>

class QPainter;

namespace Review {

/// What is shown of a camera: a picture with the time at which it was taken, or the words why there
/// is none.
struct CameraPicture
{
    /// Of a picture that only has words, and the room for any other.
    static constexpr QSize size{1280, 720};
    static constexpr QColor background{28, 30, 32};

    CameraPicture() = default;
    CameraPicture(const Camera& camera, const VideoFrame& frame);

    /// Paints the name and the time above, and the words in the middle of @p area.
    void paintTexts(QPainter& painter, const QRect& area) const;
    /// The picture with its texts in it.
    QImage withTexts() const;
    /// The picture as it was recorded, with the name and the time below it.
    QImage withCaption() const;

    QString camera = {};
    QImage image = {};
    QString time = {};
    /// When it was taken, and how far the clock that is shown was ahead of UTC then; 0 and 0
    /// without a picture.
    qint64 instant = 0; ///< milliseconds since the Unix epoch
    int offset = 0;     ///< seconds
    /// Why there is no picture.
    QString message = {};

private:
    int paintNameAndTime(QPainter& painter, const QRect& area) const;
};

} // namespace Review
