// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"
#include "pimagewidget.h"

#include <QRect>

namespace CorvelGui {

/// Which part of a picture is shown where.
struct PicturePlace
{
    QRectF source; ///< in the picture, from 0 to 1 each way
    QRectF target;

    bool operator==(const PicturePlace&) const = default;
};

/// Where a picture of @p size stands in @p room, both in device-independent pixels and not empty.
/// Only left, right, top and bottom count of @p alignment; otherwise it is in the middle.
CORVELGUI_INTERNAL_EXPORT PicturePlace placePicture(const QSizeF& size, const QRectF& room,
                                                    PImageWidget::Fit fit, Qt::Alignment alignment);

} // namespace CorvelGui
