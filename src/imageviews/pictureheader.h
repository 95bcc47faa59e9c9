// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QSize>

namespace CorvelGui {

/// The format of a picture as Qt names it, by how its data begins: "bmp", "gif", "jpeg" or "png".
/// Empty for anything else.
QByteArray pictureFormat(const QByteArray& data);

/// Whether all of a picture in @p format seems to be there and it takes a sensible time to read, as
/// far as that can be told without reading it. Qt's readers show pictures that were cut off with
/// the rest in black or grey, and take for every scan of a JPEG picture as long as for the first.
bool isWholePicture(const QByteArray& data, const QByteArray& format);

/// The area that a GIF is painted on. Qt tells the size of its first picture, which may be smaller,
/// but makes an image of this size. Invalid for other formats.
QSize canvasSize(const QByteArray& data, const QByteArray& format);

} // namespace CorvelGui
