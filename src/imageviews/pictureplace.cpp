// SPDX-License-Identifier: MIT
#include "pictureplace.h"

namespace CorvelGui {

namespace {

/// The place of @p part within @p whole.
QRectF aligned(const QSizeF& part, const QRectF& whole, Qt::Alignment alignment)
{
    QRectF rect(QPointF(), part);
    rect.moveCenter(whole.center());
    if (alignment & Qt::AlignLeft)
        rect.moveLeft(whole.left());
    else if (alignment & Qt::AlignRight)
        rect.moveRight(whole.right());
    if (alignment & Qt::AlignTop)
        rect.moveTop(whole.top());
    else if (alignment & Qt::AlignBottom)
        rect.moveBottom(whole.bottom());
    return rect;
}

} // namespace

PicturePlace placePicture(const QSizeF& size, const QRectF& room, PImageWidget::Fit fit,
                          Qt::Alignment alignment)
{
    const QRectF whole(0, 0, 1, 1);
    switch (fit) {
    case PImageWidget::Fit::Stretch:
        return {whole, room};
    case PImageWidget::Fit::Cover: {
        const QSizeF part = room.size().scaled(size, Qt::KeepAspectRatio);
        const QSizeF share(part.width() / size.width(), part.height() / size.height());
        return {aligned(share, whole, alignment), room};
    }
    case PImageWidget::Fit::Shrink:
        if (size.width() <= room.width() && size.height() <= room.height())
            return {whole, aligned(size, room, alignment)};
        break;
    case PImageWidget::Fit::Contain:
        break;
    }
    return {whole, aligned(size.scaled(room.size(), Qt::KeepAspectRatio), room, alignment)};
}

} // namespace CorvelGui
